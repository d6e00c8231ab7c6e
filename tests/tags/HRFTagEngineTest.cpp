#include "tags/HRFTagEngine.h"

#include "support/HRFTestBytes.h"
#include "support/HRFTestFile.h"
#include "tags/HRFEngineClass.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class HRFTagEngineTest : public testing::Test
{
protected:
    HRFFileReference reference(const QString &name) const
    {
        return HRFFileReference::fromPath(m_folder.filePath(name));
    }
    HRFFileReference write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return reference(name);
    }

    const QByteArray m_audio = HRFTestFile::fixture("plain.mp3").bytes;
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(HRFTagEngineTest, OpensClaimedTypesInAnyCase)
{
    EXPECT_EQ(HRFTagEngine::metaDataFileTypes(),
              (std::set<QByteArray>{"aac", "adts",   "aif",  "aifc", "aiff", "bwf",  "cdda",
                                    "dff", "dsdiff", "dsf",  "flac", "m4a",  "m4b",  "m4p",
                                    "m4r", "m4v",    "mp2",  "mp3",  "mp4",  "mpg4", "mpga",
                                    "oga", "ogg",    "opus", "spx",  "wav",  "wave"}));
    for (const QString &name : {u"a.mp3"_s, u"b.MP3"_s, u"c.Mp2"_s, u"d.x.mpga"_s}) {
        const HRFFileReference file = write(name, m_audio);
        EXPECT_STREQ(HRFTagEngine::metaDataClassForURL(file)->name, "MPEGMetaData");
        EXPECT_TRUE(HRFTagEngine::canInitWithURL(file));
        EXPECT_EQ(HRFTagEngine::initWithURL(file).value()->fileURL(), file);
    }
}

TEST_F(HRFTagEngineTest, TellsWhyThereIsNoEngine)
{
    const QByteArray cut = HRFTestBytes::ID3v2Tag(4, {{"TIT2", "title"}}).chopped(1);
    ASSERT_EQ(::mkdir(reference(u"folder.mp3"_s).nativePath(), 0700), 0);
    ASSERT_EQ(::mkfifo(reference(u"pipe.mp3"_s).nativePath(), 0600), 0);
    const std::pair<HRFFileReference, int> rows[] = {
        {{}, HRFTagEngineErrorCode::noURL},
        {write(u"x.mp3.txt"_s, m_audio), HRFTagEngineErrorCode::noEngine},
        {write(u".mp3"_s, m_audio), HRFTagEngineErrorCode::noEngine},
        {write(u"mp3"_s, m_audio), HRFTagEngineErrorCode::noEngine},
        {reference(u"absent.mp3"_s), HRFTagEngineErrorCode::noEngine},
        {reference(u"folder.mp3"_s), HRFTagEngineErrorCode::noEngine},
        {reference(u"pipe.mp3"_s), HRFTagEngineErrorCode::noEngine},
        {write(u"empty.mp3"_s, ""), HRFTagEngineErrorCode::unreadable},
        {write(u"cut.mp3"_s, cut), HRFTagEngineErrorCode::unreadable},
    };
    for (const auto &[file, code] : rows) {
        const auto engine = HRFTagEngine::initWithURL(file);
        ASSERT_FALSE(engine) << file.nativePath().constData();
        EXPECT_EQ(engine.error().domain, QString::fromLatin1(HRFTagEngineErrorDomain));
        EXPECT_EQ(engine.error().code, code) << file.nativePath().constData();
        EXPECT_EQ(engine.error().path, file.displayPath());
    }
}

TEST_F(HRFTagEngineTest, RefusesToSaveAFileThatAnotherProgramChanged)
{
    const HRFFileReference file = reference(u"song.mp3"_s);
    const char *path = file.nativePath().constData();
    const QByteArray other = m_audio + "of another program";
    const std::pair<QByteArray, std::function<void()>> rows[] = {
        {other, [&] { write(u"song.mp3"_s, other); }},
        {m_audio,
         [&] {
             const timespec times[] = {{1000000000, 0}, {1000000000, 0}};
             ::utimensat(AT_FDCWD, path, times, 0);
         }},
        {m_audio,
         [&] {
             ::unlink(path);
             write(u"song.mp3"_s, m_audio);
         }},
    };
    for (const auto &[bytes, change] : rows) {
        write(u"song.mp3"_s, m_audio);
        const auto engine = HRFTagEngine::initWithURL(file).value();
        engine->setTitle(u"new"_s);
        change();
        const auto updated = engine->updateFileWithError();
        ASSERT_FALSE(updated);
        const HRFError &error = updated.error();
        EXPECT_EQ(error.domain, QString::fromLatin1(HRFLirraErrorDomain));
        EXPECT_EQ(error.code, HRFLirraErrorCode::saveFailed);
        EXPECT_EQ(error.path, file.displayPath());
        EXPECT_EQ(error.description, u"Lirra failed to save the file “song.mp3”"_s);
        ASSERT_TRUE(error.underlying);
        EXPECT_EQ(error.underlying->domain, QString::fromLatin1(HRFPOSIXErrorDomain));
        EXPECT_EQ(error.underlying->code, EBUSY);
        EXPECT_EQ(error.recoverySuggestion, error.underlying->description);
        QFile present(m_folder.filePath(u"song.mp3"_s));
        EXPECT_TRUE(present.open(QIODevice::ReadOnly) && present.readAll() == bytes);
    }
}
