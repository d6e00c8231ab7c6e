// MPEG files, whose three tags are read and written as one, and what every engine does on saving.

#include "kit/HRFAssert.h"
#include "support/HRFTestBytes.h"
#include "support/HRFTestFile.h"
#include "tags/MPEGMetaData.h"

using namespace HRFTestBytes;
using namespace Qt::StringLiterals;
using K = HRFTagKey;

namespace {

const QByteArray audio = MPEGAudio();

bool hasID3v1Tag(const QByteArray &bytes)
{
    return bytes.last(128).startsWith("TAG");
}

// clang-format off
const std::vector<std::pair<QByteArray, QByteArray>> itemsOfAPE = {
    {"ARTIST", "ape"}, {"TRACK", "3"}, {"TOTALTRACKS", "30"}, {"COMPOSER", "ape"},
    {"TITLE", "ape"}, {"PODCAST", "1"}};
// clang-format on

/// A file with the given tags, each of which says its own name.
HRFTestFile withTags(bool ID3v2, bool ID3v1, bool APE)
{
    QByteArray bytes = audio;
    if (ID3v2) {
        bytes.prepend(ID3v2Tag(
            3,
            {textFrame("TPE1", "id3v2"), textFrame("TRCK", "2/20"), textFrame("TCOM", "id3v2")}));
    }
    if (APE)
        bytes += APETag(itemsOfAPE);
    if (ID3v1)
        bytes += ID3v1Tag("id3v1", "id3v1", 1);
    return {"mp3", bytes};
}

} // namespace

TEST(MPEGTags, AreReadInTheirOrder)
{
    for (int mask = 0; mask < 8; ++mask) {
        SCOPED_TRACE(mask);
        const bool v2 = (mask & 1) != 0;
        const bool v1 = (mask & 2) != 0;
        const bool ape = (mask & 4) != 0;
        HRFTestFile file = withTags(v2, v1, ape);
        const QString artist = v2 ? u"id3v2"_s : v1 ? u"id3v1"_s : ape ? u"ape"_s : u""_s;
        EXPECT_EQ(file.text(K::artist), artist);
        EXPECT_EQ(file.text(K::title), v1 ? u"id3v1"_s : ape ? u"ape"_s : u""_s);
        EXPECT_EQ(file.text(K::composer), v2 ? u"id3v2"_s : ape ? u"ape"_s : u""_s);
        EXPECT_EQ(file.text(K::comment), v1 ? u"v1 comment"_s : u""_s);
        EXPECT_EQ(file.text(K::genre), v1 ? u"Rock"_s : u""_s);
        EXPECT_EQ(file.value(K::year).toInt(), v1 ? 1971 : 0);
        EXPECT_EQ(file.value(K::trackNumber).toInt(), v2 ? 2 : v1 ? 1 : ape ? 3 : 0);
        EXPECT_EQ(file.value(K::trackTotal).toInt(), v2 ? 20 : ape ? 30 : 0);
        EXPECT_EQ(file.value(K::isPodcast).toBool(), ape);
        QStringList versions = {v2 ? u"ID3v2.3"_s : u""_s, v1 ? u"ID3v1"_s : u""_s,
                                ape ? u"APE"_s : u""_s};
        versions.removeAll(u""_s);
        EXPECT_EQ(file.text(K::tagVersion), versions.join(u", "_s));
        const auto engine = file.open();
        engine->setArtist(u"forgotten"_s);
        EXPECT_TRUE(engine->stripTags() && engine->updateFileWithError());
        EXPECT_EQ(file.bytes, audio);
    }
}

TEST(MPEGTags, AreWrittenWhenTheyAreOnAndElseRemoved)
{
    for (int mask = 0; mask < 64; ++mask) {
        SCOPED_TRACE(mask);
        const bool v2 = (mask & 1) != 0;
        const bool v1 = (mask & 2) != 0;
        const bool ape = (mask & 4) != 0;
        const HRFSettings settings(HRFMPEGTags(v2, v1, ape));
        HRFTestFile file = withTags((mask & 8) != 0, (mask & 16) != 0, (mask & 32) != 0);
        file.set(K::title, v2 || v1 || ape ? u"new"_s : QVariant());
        EXPECT_EQ(ID3v2Version(file.bytes), v2 ? 4 : 0);
        EXPECT_EQ(hasID3v1Tag(file.bytes), v1);
        EXPECT_EQ(file.bytes.contains("APETAGEX"), ape);
        EXPECT_TRUE(file.bytes.contains(audio));
        EXPECT_EQ(file.text(K::title), v2 || v1 || ape ? u"new"_s : u""_s);
    }
}

TEST(MPEGTags, AllHoldAValue)
{
    const HRFSettings settings(HRFMPEGTags(true, true, true));
    HRFTestFile file{"mp3", audio};
    file.set(
        {{K::artist, u"artist"_s}, {K::trackNumber, 5}, {K::trackTotal, 12}, {K::isPodcast, true}});
    EXPECT_EQ(contentsOf(file.bytes, "TRCK"), QByteArrayList{"\0035/12"});
    EXPECT_EQ(file.bytes.at(file.bytes.size() - 2), 5);
    const auto engine = file.open();
    const auto &mpeg = dynamic_cast<const MPEGMetaData &>(*engine);
    EXPECT_EQ(mpeg.stringForAPETag("ARTIST"), u"artist"_s);
    EXPECT_EQ(mpeg.stringForAPETag("DISCNUMBER"), HRFText());
    EXPECT_EQ(mpeg.numberForAPEKey(K::trackTotal), 12);
    EXPECT_THROW(mpeg.stringForAPETag(nullptr), HRFAssertionFailure);
}

TEST(MPEGTags, CompleteAPairFromEachOther)
{
    HRFTestFile file = withTags(false, false, true);
    file.set(K::trackNumber, 7);
    EXPECT_EQ(contentsOf(file.bytes, "TRCK"), QByteArrayList{"\0037/30"});
}

TEST(MPEGFile, TellsAboutItsSound)
{
    QByteArray xing = MPEGAudio("\xFF\xFB\x90\x64", 1);
    xing.replace(36, 16, "Xing\0\0\0\3\0\0\0\x13\0\0\x20\0"_ba);
    const std::tuple<QByteArray, bool, bool, qlonglong, QString> rows[] = {
        {MPEGAudio("\xFF\xFB\x90\x64", 100), false, false, 2, u"Joint Stereo"_s},
        {MPEGAudio("\xFF\xFA\x90\xC4", 100), false, true, 1, u"Mono"_s}, // with a checksum
        {xing + audio, true, false, 2, u"Joint Stereo"_s},
    };
    for (const auto &[bytes, isVBR, isProtected, channels, mode] : rows) {
        const auto engine = HRFTestFile{"mp3", bytes}.open(true);
        EXPECT_EQ(engine->isVBR(), isVBR);
        EXPECT_EQ(engine->isDRMProtected(), isProtected);
        EXPECT_EQ(engine->channels(), channels);
        EXPECT_EQ(engine->channelMode(), mode);
        EXPECT_EQ(engine->sampleRate(), 44100);
        EXPECT_TRUE(isVBR || (engine->bitRate() == 128 && engine->duration() == 2));
    }
}

TEST(MPEGFile, IsLeftAloneWhenItMayNotBeWritten)
{
    const HRFSettings settings(HRFMPEGTags(true, true, true));
    HRFTestFile file = withTags(false, true, false);
    file.faults.isReadOnly = true;
    const auto engine = file.open();
    EXPECT_FALSE(engine->canUpdateFile());
    EXPECT_EQ(dynamic_cast<MPEGMetaData &>(*engine).APETag(), nullptr);
    EXPECT_FALSE(engine->stripTags());
    const auto updated = file.trySet({{K::composer, u"new"_s}});
    ASSERT_FALSE(updated);
    EXPECT_EQ(updated.error().domain, QString::fromLatin1(HRFFileErrorDomain));
    EXPECT_EQ(updated.error().code, HRFFileErrorCode::writeNoPermission);
    EXPECT_EQ(file.bytes, withTags(false, true, false).bytes);
}

TEST(MPEGFile, SavesATimeToTheSecond)
{
    const QDateTime time(QDate(2004, 5, 6), QTime(7, 8, 9, 123), Qt::UTC);
    HRFTestFile file{"mp3", audio};
    file.set(K::taggingTime, time);
    EXPECT_EQ(file.value(K::taggingTime), time.addMSecs(-123));
}

TEST(MPEGFile, RefusesValuesThatItCannotHold)
{
    // clang-format off
    const std::tuple<bool, K, QVariant> rows[] = {
        {false, K::trackNumber, -3}, {false, K::trackTotal, -3}, {false, K::year, 12345},
        {false, K::year, -5}, {true, K::albumArtist, u"a"_s}, {true, K::title, QString(31, u'x')},
        {true, K::title, u"日本"_s}, {true, K::trackNumber, 300}, {true, K::artwork, "\xFF\xD8"_ba},
    };
    // clang-format on
    for (const auto &[isOnlyID3v1, key, value] : rows) {
        const HRFSettings settings(HRFMPEGTags(!isOnlyID3v1, isOnlyID3v1, false));
        HRFTestFile file = withTags(true, true, true);
        EXPECT_FALSE(file.trySet({{key, value}})) << HRFRowForKey(key).name;
        EXPECT_EQ(file.bytes, withTags(true, true, true).bytes) << HRFRowForKey(key).name;
    }
}

// TagLib takes the first save for done and remembers where the tags would be now.
TEST(MPEGFile, KeepsItsSoundWhenAnEngineSavesAgainAfterAFailure)
{
    const HRFSettings settings(HRFMPEGTags(false, true, false));
    const QByteArray rest = audio + ID3v1Tag("title", "artist");
    const QByteArray old = ID3v2Tag(3, {textFrame("TPE1", QByteArray(1000, 'a'))}) + rest;
    for (const bool isRefused : {true, false}) { // else the write fails
        HRFTestFile file{"mp3", old, {.failingWrite = isRefused ? HRFFaults::never : 0}};
        const auto engine = file.open();
        engine->setAlbumArtist(isRefused ? u"which ID3v1 has not"_s : QString());
        EXPECT_FALSE(engine->updateFileWithError());
        EXPECT_EQ(file.bytes, old);
        engine->setAlbumArtist({});
        EXPECT_EQ(engine->updateFileWithError() ? rest : old, file.bytes) << isRefused;
    }
    HRFTestFile file{"mp3", old, {.failingWrite = 0}};
    EXPECT_FALSE(file.tryStrip());
    EXPECT_EQ(file.bytes, old);
}

TEST(MPEGFile, SavesTheSameEngineTwice)
{
    const HRFSettings settings(HRFMPEGTags(true, true, true));
    HRFTestFile file = withTags(true, true, true);
    const auto engine = file.open();
    for (const QString &title : {u"much longer than before"_s.repeated(100), u"b"_s}) {
        engine->setTitle(title);
        EXPECT_TRUE(engine->updateFileWithError());
        EXPECT_EQ(file.text(K::title), title);
        EXPECT_TRUE(file.bytes.contains(audio) && hasID3v1Tag(file.bytes));
    }
}
