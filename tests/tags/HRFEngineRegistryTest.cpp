#include "tags/HRFEngineRegistry.h"

#include "support/HRFTestMP3.h"
#include "tags/HRFTagEngine.h"

#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

constexpr const char *firstTypes[] = {"abc", "both"};
constexpr const char *secondTypes[] = {"both", "xyz"};
constexpr HRFEngineClass first{"First", firstTypes, "", nullptr};
constexpr HRFEngineClass second{"Second", secondTypes, "", nullptr};

class HRFTagEngineFactory : public testing::Test
{
protected:
    HRFFileReference reference(const QString &name) const
    {
        return HRFFileReference::fromPath(m_folder.filePath(name));
    }

    HRFFileReference write(const QString &name, const std::string &bytes) const
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes.data(), qint64(bytes.size()));
        return reference(name);
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST(HRFEngineRegistry, GivesATypeToItsLastOwnerAndCountsEveryClassOnce)
{
    HRFEngineRegistry registry;
    for (const HRFEngineClass *engineClass : {&first, &second, &first})
        registry.registerMetadataClass(*engineClass);
    EXPECT_THAT(registry.classes(), ElementsAre(&first, &second));
    EXPECT_EQ(registry.classForType("abc"), &first);
    EXPECT_EQ(registry.classForType("both"), &second);
    EXPECT_EQ(registry.classForType(""), nullptr);
    EXPECT_THAT(registry.types(), ElementsAre("abc", "both", "xyz"));
}

TEST(HRFEngineRegistry, HasEveryEngineInOrder)
{
    // clang-format off
    const std::pair<const char *, std::set<QByteArray>> rows[] = {
        {"MP4MetaData", {"mp4", "mpg4", "m4a", "m4b", "m4p", "m4r", "m4v", "aac", "adts"}},
        {"MPEGMetaData", {"mp2", "mp3", "mpga"}}, {"FLACMetaData", {"flac"}},
        {"OGGOpusMetaData", {"opus"}}, {"WAVMetaData", {"bwf", "wav", "wave"}},
        {"OGGVorbisMetaData", {"ogg", "oga"}}, {"DSFMetaData", {"dsf"}},
        {"DSDIFFMetaData", {"dff", "dsdiff"}}, {"AIFFMetaData", {"aif", "aifc", "aiff", "cdda"}},
        {"OGGSpeexMetaData", {"spx"}},
    };
    // clang-format on
    const auto &classes = HRFEngineRegistry::shared().classes();
    ASSERT_EQ(classes.size(), std::size(rows));
    std::set<QByteArray> types;
    for (std::size_t i = 0; i < classes.size(); ++i) {
        EXPECT_STREQ(classes[i]->name, rows[i].first);
        EXPECT_THAT(rows[i].second,
                    ElementsAreArray(std::set<QByteArray>(classes[i]->fileTypes.begin(),
                                                          classes[i]->fileTypes.end())));
        types.insert(rows[i].second.begin(), rows[i].second.end());
    }
    EXPECT_EQ(HRFTagEngine::metaDataFileTypes(), types);
}

TEST_F(HRFTagEngineFactory, OpensClaimedTypesInAnyCase)
{
    for (const QString &name : {u"a.mp3"_s, u"b.MP3"_s, u"c.Mp2"_s, u"d.x.mpga"_s}) {
        const HRFFileReference file = write(name, HRFTestMP3::audio());
        const HRFEngineClass *engineClass = HRFTagEngine::metaDataClassForURL(file);
        ASSERT_TRUE(engineClass) << qPrintable(name);
        EXPECT_STREQ(engineClass->name, "MPEGMetaData");
        EXPECT_TRUE(HRFTagEngine::canInitWithURL(file));
        const auto engine = HRFTagEngine::initWithURL(file);
        ASSERT_TRUE(engine) << qPrintable(name);
        EXPECT_EQ((*engine)->fileURL(), file);
    }
}

TEST_F(HRFTagEngineFactory, TellsWhyThereIsNoEngine)
{
    const std::string audio = HRFTestMP3::audio();
    ASSERT_EQ(::mkdir(reference(u"folder.mp3"_s).nativePath(), 0700), 0);
    ASSERT_EQ(::mkfifo(reference(u"pipe.mp3"_s).nativePath(), 0600), 0);
    const std::pair<HRFFileReference, int> rows[] = {
        {{}, HRFTagEngineErrorCode::noURL},
        {write(u"x.mp3.txt"_s, audio), HRFTagEngineErrorCode::noEngine},
        {write(u".mp3"_s, audio), HRFTagEngineErrorCode::noEngine},
        {write(u"mp3"_s, audio), HRFTagEngineErrorCode::noEngine},
        {reference(u"absent.mp3"_s), HRFTagEngineErrorCode::noEngine},
        {reference(u"folder.mp3"_s), HRFTagEngineErrorCode::noEngine},
        {reference(u"pipe.mp3"_s), HRFTagEngineErrorCode::noEngine},
        {write(u"empty.mp3"_s, ""), HRFTagEngineErrorCode::unreadable},
        {write(u"text.mp3"_s, "Not a sound."), HRFTagEngineErrorCode::unreadable},
        {write(u"cut.mp3"_s,
               HRFTestMP3::ID3v2Tag(4, {HRFTestMP3::textFrame("TIT2", "a")}).substr(0, 15)),
         HRFTagEngineErrorCode::unreadable},
    };
    for (const auto &[file, code] : rows) {
        const auto engine = HRFTagEngine::initWithURL(file);
        ASSERT_FALSE(engine) << file.nativePath().constData();
        EXPECT_EQ(engine.error().domain, QString::fromLatin1(HRFTagEngineErrorDomain));
        EXPECT_EQ(engine.error().code, code) << file.nativePath().constData();
        EXPECT_EQ(engine.error().path, file.displayPath());
    }
}
