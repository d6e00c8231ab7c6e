#include "tags/MPEGMetaData.h"

#include "kit/HRFAssert.h"
#include "support/HRFSettings.h"
#include "support/HRFTestMP3.h"

#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace HRFTestMP3;
using namespace Qt::StringLiterals;
using namespace std::string_literals;
using testing::ElementsAre;
using K = HRFTagKey;

namespace {

class MPEGMetaDataTest : public testing::Test
{
protected:
    /// A file with the given tags, each of which says its own name.
    static std::string withTags(bool ID3v2, bool ID3v1, bool APE)
    {
        std::string bytes = audio();
        if (ID3v2)
            bytes.insert(0,
                         ID3v2Tag(3,
                                  {textFrame("TPE1", "id3v2"), textFrame("TRCK", "2/20"),
                                   textFrame("TCOM", "id3v2")}));
        if (APE)
            bytes += APETag({{"ARTIST", "ape"},
                             {"TRACK", "3"},
                             {"TOTALTRACKS", "30"},
                             {"COMPOSER", "ape"},
                             {"TITLE", "ape"},
                             {"PODCAST", "1"}});
        if (ID3v1)
            bytes += ID3v1Tag("id3v1", "id3v1", 1);
        return bytes;
    }

    HRFSettings m_settings;
};

QString firstOf(std::initializer_list<std::pair<bool, const char16_t *>> choices)
{
    for (const auto &[isPresent, name] : choices)
        if (isPresent)
            return QString::fromUtf16(name);
    return {};
}

} // namespace

TEST_F(MPEGMetaDataTest, ReadsTheFirstTagThatSaysSomething)
{
    for (int mask = 0; mask < 8; ++mask) {
        SCOPED_TRACE(mask);
        const bool v2 = (mask & TagLib::MPEG::File::ID3v2) != 0;
        const bool v1 = (mask & TagLib::MPEG::File::ID3v1) != 0;
        const bool ape = (mask & TagLib::MPEG::File::APE) != 0;
        const auto engine = HRFTestFile{withTags(v2, v1, ape)}.open();
        EXPECT_EQ(engine->artist().value_or(QString()),
                  firstOf({{v2, u"id3v2"}, {v1, u"id3v1"}, {ape, u"ape"}}));
        EXPECT_EQ(engine->title().value_or(QString()), firstOf({{v1, u"id3v1"}, {ape, u"ape"}}));
        EXPECT_EQ(engine->composer().value_or(QString()), firstOf({{v2, u"id3v2"}, {ape, u"ape"}}));
        EXPECT_EQ(engine->comment().value_or(QString()), firstOf({{v1, u"v1 comment"}}));
        EXPECT_EQ(engine->genre().value_or(QString()), firstOf({{v1, u"Rock"}}));
        EXPECT_EQ(engine->year().value_or(0), v1 ? 1971 : 0);
        EXPECT_EQ(engine->trackNumber().value_or(0), v2 ? 2 : v1 ? 1 : ape ? 3 : 0);
        EXPECT_EQ(engine->trackTotal().value_or(0), v2 ? 20 : ape ? 30 : 0);
        EXPECT_EQ(engine->isPodcast().value_or(false), ape);
        QStringList versions;
        for (const auto &[isPresent, name] :
             {std::pair(v2, u"ID3v2.3"_s), std::pair(v1, u"ID3v1"_s), std::pair(ape, u"APE"_s)})
            if (isPresent)
                versions.append(name);
        EXPECT_EQ(engine->tagVersion().value_or(QString()), versions.join(u", "_s));
    }
}

TEST_F(MPEGMetaDataTest, WritesTheTagsThatAreOnAndRemovesTheOthers)
{
    for (int mask = 0; mask < 64; ++mask) {
        SCOPED_TRACE(mask);
        const bool v2 = (mask & 1) != 0;
        const bool v1 = (mask & 2) != 0;
        const bool ape = (mask & 4) != 0;
        m_settings.setTags(v2, v1, ape);
        HRFTestFile file{withTags((mask & 8) != 0, (mask & 16) != 0, (mask & 32) != 0)};
        file.set({{K::title, v2 || v1 || ape ? u"new"_s : QVariant()}});
        EXPECT_EQ(ID3v2Version(file.bytes), v2 ? 4 : 0);
        EXPECT_EQ(hasID3v1Tag(file.bytes), v1);
        EXPECT_EQ(hasAPETag(file.bytes), ape);
        EXPECT_TRUE(file.bytes.contains(audio()));
        EXPECT_EQ(file.read(K::title).toString(), firstOf({{v2 || v1 || ape, u"new"}}));
    }
}

TEST_F(MPEGMetaDataTest, WritesAValueToEveryTagThatHoldsIt)
{
    m_settings.setTags(true, true, true);
    HRFTestFile file;
    file.set(
        {{K::artist, u"artist"_s}, {K::trackNumber, 5}, {K::trackTotal, 12}, {K::isPodcast, true}});
    EXPECT_THAT(contentsOf(file.bytes, "TRCK"), ElementsAre("\0035/12"));
    EXPECT_EQ(file.bytes.at(file.bytes.size() - 2), 5);
    const auto engine = file.open();
    const auto &mpeg = dynamic_cast<const MPEGMetaData &>(*engine);
    const std::pair<const char *, HRFText> rows[] = {
        {"TRACK", u"5"_s},   {"TOTALTRACKS", u"12"_s}, {"ARTIST", u"artist"_s},
        {"PODCAST", u"1"_s}, {"DISCNUMBER", {}},
    };
    for (const auto &[item, text] : rows)
        EXPECT_EQ(mpeg.stringForAPETag(item), text) << item;
    EXPECT_EQ(mpeg.numberForAPEKey(K::trackTotal), 12);
    EXPECT_THROW(mpeg.stringForAPETag(nullptr), HRFAssertionFailure);

    file.set({{K::trackNumber, 0}});
    EXPECT_THAT(contentsOf(file.bytes, "TRCK"), ElementsAre("\0030/12"));
    EXPECT_FALSE(file.read(K::trackNumber).isValid());
}

TEST_F(MPEGMetaDataTest, CompletesAPairFromTheOtherTag)
{
    HRFTestFile file{withTags(false, false, true)};
    file.set({{K::trackNumber, 7}});
    EXPECT_THAT(contentsOf(file.bytes, "TRCK"), ElementsAre("\0037/30"));
}

TEST_F(MPEGMetaDataTest, StripsEveryTag)
{
    for (int mask = 0; mask < 8; ++mask) {
        HRFTestFile file{withTags((mask & 1) != 0, (mask & 2) != 0, (mask & 4) != 0)};
        const auto engine = file.open();
        engine->setArtist(u"forgotten"_s);
        EXPECT_TRUE(engine->stripTags());
        EXPECT_EQ(file.bytes, audio());
        EXPECT_TRUE(engine->updateFileWithError());
        EXPECT_TRUE(file.bytes == audio()) << mask;
    }
    HRFTestFile file{withTags(true, false, true), {.failingWrite = 0}};
    EXPECT_FALSE(file.open()->stripTags());
    EXPECT_TRUE(file.bytes == withTags(true, false, true));
}

TEST_F(MPEGMetaDataTest, FindsOutAboutTheSound)
{
    std::string xing = audio(plainHeader, 1);
    xing.replace(36, 16, "Xing\0\0\0\3\0\0\0\x13\0\0\x20\0"s);
    const std::tuple<std::string, bool, bool, qlonglong, QString> rows[] = {
        {audio(plainHeader, 100), false, false, 2, u"Joint Stereo"_s},
        {audio(checkedHeader, 100), false, true, 1, u"Mono"_s},
        {xing + audio(), true, false, 2, u"Joint Stereo"_s},
    };
    for (const auto &[bytes, isVBR, isProtected, channels, mode] : rows) {
        const auto engine = HRFTestFile{bytes}.open(true);
        EXPECT_EQ(engine->isVBR(), isVBR);
        EXPECT_EQ(engine->isDRMProtected(), isProtected);
        EXPECT_EQ(engine->channels(), channels);
        EXPECT_EQ(engine->channelMode(), mode);
        EXPECT_EQ(engine->sampleRate(), 44100);
        EXPECT_EQ(engine->format(), u"MPEG-1 layer 3"_s);
        if (!isVBR) {
            EXPECT_EQ(engine->bitRate(), 128);
            EXPECT_EQ(engine->duration(), 2);
        }
    }
    for (const K key : {K::bitRate, K::duration, K::format, K::channelMode, K::sampleRate})
        EXPECT_FALSE(HRFTestFile().read(key).isValid()) << int(key);
}

TEST_F(MPEGMetaDataTest, CreatesNoTagInAFileThatItMayNotWrite)
{
    m_settings.setTags(true, true, true);
    HRFTestFile file{withTags(false, true, false), {.isReadOnly = true}};
    const auto engine = file.open();
    EXPECT_FALSE(engine->canUpdateFile());
    EXPECT_EQ(dynamic_cast<MPEGMetaData &>(*engine).APETag(), nullptr);
    EXPECT_FALSE(engine->stripTags());
    const auto updated = file.trySet({{K::composer, u"new"_s}});
    ASSERT_FALSE(updated);
    EXPECT_EQ(updated.error().domain, QString::fromLatin1(HRFFileErrorDomain));
    EXPECT_EQ(updated.error().code, HRFFileErrorCode::writeNoPermission);
    EXPECT_EQ(file.bytes, withTags(false, true, false));
}

TEST_F(MPEGMetaDataTest, TellsWhyASaveFailed)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"song.mp3"_s);
    const auto write = [&path](const std::string &bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes.data(), qint64(bytes.size()));
    };
    write(audio());
    const auto engine = HRFTagEngine::initWithURL(HRFFileReference::fromPath(path)).value();
    engine->setTitle(u"new"_s);
    write(audio() + "of another program");
    const auto updated = engine->updateFileWithError();
    ASSERT_FALSE(updated);
    const HRFError &error = updated.error();
    EXPECT_EQ(error.domain, QString::fromLatin1(HRFLirraErrorDomain));
    EXPECT_EQ(error.code, HRFLirraErrorCode::saveFailed);
    EXPECT_EQ(error.path, path);
    EXPECT_EQ(error.description, u"Lirra failed to save the file “song.mp3”"_s);
    ASSERT_TRUE(error.underlying);
    EXPECT_EQ(error.underlying->domain, QString::fromLatin1(HRFPOSIXErrorDomain));
    EXPECT_EQ(error.underlying->code, EBUSY);
    EXPECT_EQ(error.recoverySuggestion, error.underlying->description);
}

TEST_F(MPEGMetaDataTest, SavesATimeToTheSecond)
{
    const QDateTime time(QDate(2004, 5, 6), QTime(7, 8, 9, 123), Qt::UTC);
    HRFTestFile file;
    file.set({{K::taggingTime, time}});
    EXPECT_EQ(file.read(K::taggingTime), time.addMSecs(-123));
}

TEST_F(MPEGMetaDataTest, RefusesValuesThatTheFileCannotHold)
{
    const std::tuple<bool, K, QVariant> rows[] = {
        {false, K::trackNumber, -3},
        {false, K::trackTotal, -3},
        {false, K::year, 12345},
        {false, K::year, -5},
        {true, K::albumArtist, u"a"_s},
        {true, K::title, QString(31, u'x')},
        {true, K::title, u"日本"_s},
        {true, K::trackNumber, 300},
        {true, K::artwork, "\xFF\xD8\xFF"_ba},
    };
    for (const auto &[isOnlyID3v1, key, value] : rows) {
        m_settings.setTags(!isOnlyID3v1, isOnlyID3v1, false);
        HRFTestFile file{withTags(true, true, true)};
        const auto updated = file.trySet({{key, value}});
        EXPECT_FALSE(updated) << HRFRowForKey(key).name << qPrintable(value.toString());
        EXPECT_TRUE(file.bytes == withTags(true, true, true)) << HRFRowForKey(key).name;
    }
}

// TagLib takes the first save for done and remembers where the tags would be now.
TEST_F(MPEGMetaDataTest, KeepsTheSoundWhenAnEngineSavesAgainAfterAFailure)
{
    m_settings.setTags(false, true, false);
    const std::string old = ID3v2Tag(3, {textFrame("TPE1", std::string(1000, 'a'))}) + audio()
        + ID3v1Tag("title", "artist");
    for (const bool isRefused : {true, false}) {
        HRFTestFile file{old, {.failingWrite = isRefused ? HRFFaults::never : 0}};
        const auto engine = file.open();
        engine->setAlbumArtist(isRefused ? u"a"_s : QString());
        EXPECT_FALSE(engine->updateFileWithError());
        EXPECT_TRUE(file.bytes == old);
        engine->setAlbumArtist({});
        const bool isUpdated = engine->updateFileWithError().has_value();
        EXPECT_TRUE(isUpdated ? file.bytes == audio() + ID3v1Tag("title", "artist")
                              : file.bytes == old)
            << isRefused << isUpdated;
    }
}

TEST_F(MPEGMetaDataTest, SavesTheSameEngineTwice)
{
    m_settings.setTags(true, true, true);
    HRFTestFile file{withTags(true, true, true)};
    const auto engine = file.open();
    for (const QString &title :
         {u"a much longer title than the one before"_s.repeated(100), u"b"_s}) {
        engine->setTitle(title);
        EXPECT_TRUE(engine->updateFileWithError());
        EXPECT_EQ(file.read(K::title), title);
        EXPECT_TRUE(file.bytes.contains(audio()) && hasID3v1Tag(file.bytes));
    }
}
