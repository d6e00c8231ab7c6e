// MPEG files, whose three tags are read and written as one, and what every engine does on saving.

#include "support/HRFTestBytes.h"
#include "support/HRFTestFile.h"

using namespace HRFTestBytes;
using namespace Qt::StringLiterals;
using K = HRFTagKey;

namespace {

const QByteArray audio = HRFTestFile::fixture("plain.mp3").bytes;

// A fixture with three tags, each of which says its own name.
const QByteArray threeTags = HRFTestFile::fixture("id3v23-ape-id3v1.mp3").bytes;
const QByteArray tagID3v2 = threeTags.first(ID3v2Size(threeTags));
const QByteArray tagAPE = threeTags.sliced(threeTags.indexOf("APETAGEX")).chopped(128);
const QByteArray tagID3v1 = threeTags.last(128);

HRFTestFile withTags(bool ID3v2, bool ID3v1, bool APE)
{
    return {"mp3", (ID3v2 ? tagID3v2 : "") + audio + (APE ? tagAPE : "") + (ID3v1 ? tagID3v1 : "")};
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
        const QString title = v2 ? u"ID3v2 title"_s
            : v1                 ? u"ID3v1 title"_s
            : ape                ? u"APE title"_s
                                 : u""_s;
        EXPECT_EQ(file.text(K::title), title);
        EXPECT_EQ(file.text(K::artist), v1 ? u"ID3v1 artist"_s : ape ? u"APE artist"_s : u""_s);
        EXPECT_EQ(file.text(K::composer), ape ? u"APE composer"_s : u""_s);
        EXPECT_EQ(file.value(K::trackTotal).toInt(), v2 ? 12 : 0);
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
        EXPECT_EQ(file.bytes.last(128).startsWith("TAG"), v1);
        EXPECT_EQ(file.bytes.contains("APETAGEX"), ape);
        EXPECT_TRUE(file.bytes.contains(audio));
        EXPECT_EQ(file.text(K::title), v2 || v1 || ape ? u"new"_s : u""_s);
    }
}

TEST(MPEGTags, CompleteAPairFromEachOther)
{
    HRFTestFile file{"mp3", audio};
    {
        const HRFSettings settings(HRFMPEGTags(false, false, true));
        file.set(K::trackTotal, 30);
    }
    file.set(K::trackNumber, 7);
    EXPECT_EQ(contentsOf(file.bytes, "TRCK"), QByteArrayList{"\0037/30"});
}

TEST(MPEGFile, TellsAboutItsSound)
{
    const QByteArray plain = QByteArray(audio).replace("Info", "none");
    const std::tuple<QByteArray, bool, bool, QString> rows[] = {
        {plain, false, false, u"Mono"_s},
        {QByteArray(plain).replace(0, 4, "\xFF\xFB\x28\x64"), false, false, u"Joint Stereo"_s},
        {QByteArray(plain).replace(0, 2, "\xFF\xFA"), false, true, u"Mono"_s}, // with a checksum
        {QByteArray(audio).replace("Info", "Xing"), true, false, u"Mono"_s},
    };
    for (const auto &[bytes, isVBR, isProtected, mode] : rows) {
        const auto engine = HRFTestFile{"mp3", bytes}.open(true);
        EXPECT_EQ(engine->isVBR(), isVBR);
        EXPECT_EQ(engine->isDRMProtected(), isProtected);
        EXPECT_EQ(engine->channels(), mode == u"Mono"_s ? 1 : 2);
        EXPECT_EQ(engine->channelMode(), mode);
        EXPECT_EQ(engine->sampleRate(), 32000);
    }
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
    const QByteArray rest = audio + tagID3v1;
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

TEST(MPEGTags, AreNotLookedForWithinTheSoundWhenStripping)
{
    const QByteArray sound =
        QByteArray(500, 'x') + "ID3\4\0\0\0\0\1\0"_ba + QByteArray(500, 'y') + audio;
    HRFTestFile file{"mp3", tagID3v2 + tagID3v2 + sound};
    file.strip();
    EXPECT_EQ(file.bytes, sound);
}
