// What is particular to WAV, AIFF, DSF and DSDIFF files.

#include "formats/HRFFormatFile.h"

#include <taglib/dsdiffdiintag.h>
#include <taglib/dsdifffile.h>
#include <taglib/id3v2tag.h>
#include <taglib/infotag.h>
#include <taglib/privateframe.h>
#include <taglib/wavfile.h>

using namespace Qt::StringLiterals;
using K = HRFTagKey;

namespace {

struct NativeTexts
{
    TagLib::String id3;
    TagLib::String other;
};

NativeTexts nativeTitles(const HRFFormatFile &file)
{
    if (file.path().endsWith(".wav")) {
        const TagLib::RIFF::WAV::File native(file.path().constData());
        return {native.ID3v2Tag()->title(), native.InfoTag()->title()};
    }
    const TagLib::DSDIFF::File native(file.path().constData());
    return {native.ID3v2Tag()->title(), native.DIINTag()->title()};
}

} // namespace

TEST(UnionRules, TellsTheTagsOfAFile)
{
    for (const auto &[fixture, version] : {std::pair("plain.wav", u""_s),
                                           {"bext.wav", u""_s},
                                           {"info.wav", u"INFO"_s},
                                           {"id3-info.wav", u"ID3v2.3, INFO"_s},
                                           {"plain.dff", u""_s},
                                           {"diin.dff", u"DIIN"_s},
                                           {"id3.dff", u"ID3v2.4"_s},
                                           {"id3-diin.dff", u"ID3v2.4, DIIN"_s}})
        EXPECT_EQ(HRFFormatFile(fixture).text(K::tagVersion), version) << fixture;
}

TEST(UnionRules, PrefersID3AndWritesBoth)
{
    const struct
    {
        const char *fixture;
        QString title;
        K second;
        QString secondText;
    } cases[] = {{"info.wav", u"INFO title"_s, K::trackNumber, u"3"_s},
                 {"id3-info.wav", u"ID3 title"_s, K::trackNumber, u"3"_s},
                 {"diin.dff", u"DIIN title"_s, K::artist, u"DIIN artist"_s},
                 {"id3-diin.dff", u"ID3 title"_s, K::artist, u"DIIN artist"_s}};
    for (const auto &[fixture, title, second, secondText] : cases) {
        SCOPED_TRACE(fixture);
        const HRFFormatFile file(fixture);
        EXPECT_EQ(file.text(K::title), title);
        EXPECT_EQ(file.text(second), secondText);
        file.set(K::title, u"Neü"_s);
        EXPECT_EQ(nativeTitles(file).id3, L"Ne\u00FC");
        EXPECT_EQ(nativeTitles(file).other, L"Ne\u00FC");
        file.set(K::title, QVariant());
        EXPECT_TRUE(nativeTitles(file).id3.isEmpty() && nativeTitles(file).other.isEmpty());
        EXPECT_EQ(file.text(second), secondText);
    }
}

TEST(WAVRules, LeavesTheTotalToID3)
{
    const HRFFormatFile file("info.wav");
    file.set(K::trackTotal, 12LL);
    const TagLib::RIFF::WAV::File native(file.path().constData());
    EXPECT_EQ(native.ID3v2Tag()->frameList("TRCK").front()->toString(), "3/12");
    EXPECT_EQ(native.InfoTag()->fieldText("ITRK"), "3");
    EXPECT_EQ(file.value(K::trackNumber), 3);
}

TEST(WAVRules, KeepsTheTagsThatAreSwitchedOn)
{
    const struct
    {
        bool id3, info;
        QString version;
    } cases[] = {
        {true, true, u"ID3v2.4, INFO"_s}, {true, false, u"ID3v2.4"_s}, {false, true, u"INFO"_s}};
    for (const auto &[id3, info, version] : cases) {
        const HRFSetting first(u"lirra.tagging.RIFF.ID3v2"_s, id3);
        const HRFSetting second(u"lirra.tagging.RIFF.INFO"_s, info);
        const HRFFormatFile file("id3-info.wav");
        file.set(K::title, u"New"_s);
        EXPECT_EQ(file.text(K::title), u"New"_s);
        EXPECT_EQ(file.text(K::tagVersion), version);
    }
}

TEST(WAVRules, RefusesAValueThatNoTagSwitchedOnCanHold)
{
    const HRFSetting id3(u"lirra.tagging.RIFF.ID3v2"_s, false);
    const HRFFormatFile file("id3-info.wav");
    const QByteArray before = file.bytes();
    EXPECT_FALSE(file.trySet({{K::lyrics, u"Some"_s}}));
    const HRFSetting info(u"lirra.tagging.RIFF.INFO"_s, false);
    EXPECT_FALSE(file.trySet({{K::title, u"New"_s}}));
    EXPECT_TRUE(file.bytes() == before);
    file.strip();
    EXPECT_EQ(file.text(K::tagVersion), u""_s);
}

TEST(WAVRules, WritesTheVersionThatTheUserWants)
{
    const HRFSetting version(u"lirra.tagging.ID3v2Version"_s, u"316"_s);
    const HRFFormatFile file("plain.wav");
    file.set({{K::title, u"Ж"_s}, {K::mood, u"calm"_s}});
    EXPECT_EQ(file.text(K::tagVersion), u"ID3v2.3, INFO"_s);
    EXPECT_EQ(file.text(K::mood), u"calm"_s);
    for (const char *fixture : {"plain.aiff", "dsf-channels1.dsf", "plain.dff"}) {
        const HRFFormatFile other(fixture);
        other.set(K::title, u"Ж"_s);
        EXPECT_EQ(other.text(K::tagVersion), u"ID3v2.4"_s) << fixture;
    }
}

TEST(IFFRules, RefusesToSaveATruncatedFile)
{
    for (const char *fixture : {"plain.wav", "bext.wav", "plain.aiff", "sowt.aifc"}) {
        const HRFFormatFile file(fixture);
        const QByteArray truncated = file.bytes().chopped(100);
        file.setBytes(truncated);
        const auto result = file.trySet({{K::title, u"New"_s}});
        ASSERT_FALSE(result) << fixture;
        EXPECT_TRUE(result.error().fullText().contains(u"truncated"_s)) << fixture;
        EXPECT_TRUE(file.bytes() == truncated) << fixture;
    }
}

TEST(ID3Rules, KeepsUnknownFramesByteForByte)
{
    const QByteArray secret("\0\1\2\xFF unknown", 12);
    for (const char *fixture :
         {"plain.wav", "plain.aiff", "dsf-channels1.dsf", "id3.dff", "id3v23.mp3"}) {
        SCOPED_TRACE(fixture);
        const HRFFormatFile file(fixture);
        file.set({{K::title, u"Old"_s}, {K::copyright, u"ABCDEFGHIJKLMNOPQ"_s}});
        // A frame of the same size whose identifier nobody knows.
        QByteArray bytes = file.bytes();
        const qsizetype at = bytes.indexOf("TCOP");
        ASSERT_GT(at, 0);
        bytes.replace(at, 4, "XQZ9").replace(at + 11, secret.size(), secret);
        file.setBytes(bytes);
        file.set({{K::title, u"New and longer"_s}, {K::artwork, HRFSampleJPEG}});
        EXPECT_TRUE(file.bytes().contains(bytes.sliced(at, 28)));
    }
}

TEST(AIFFRules, CallsAFileReadWithoutPropertiesAIFF)
{
    EXPECT_EQ(HRFFormatFile("sowt.aifc").text(K::format), u"AIFF"_s);
    EXPECT_EQ(HRFFormatFile("sowt.aifc").open(true)->format(), u"AIFF-C"_s);
}

TEST(DSFRules, NamesTheChannelTypes)
{
    const QString modes[] = {u"Mono"_s,       u"Stereo"_s,     u"3 Channels"_s,   u"Quadraphonic"_s,
                             u"4 Channels"_s, u"5 Channels"_s, u"5.1 Surround"_s, u""_s};
    for (int type = 1; type <= 8; ++type) {
        const QByteArray fixture = "dsf-channels" + QByteArray::number(type) + ".dsf";
        EXPECT_EQ(HRFFormatFile(fixture).open(true)->channelMode().value_or(QString()),
                  modes[type - 1])
            << type;
    }
}

TEST(DSDIFFRules, LeavesDIINAloneWhenTheTextDoesNotFit)
{
    const HRFFormatFile file("id3-diin.dff");
    file.set(K::title, u"Название"_s);
    EXPECT_EQ(file.text(K::title), u"Название"_s);
    EXPECT_EQ(nativeTitles(file).other, "DIIN title");
}

TEST(DSDIFFRules, LeavesNoEmptyChunks)
{
    for (const char *fixture : {"plain.dff", "diin.dff", "id3.dff", "id3-diin.dff"}) {
        const HRFFormatFile file(fixture);
        const auto engine = file.open();
        for (const QString &title : {u"Neu"_s, QString(), u"Wieder"_s, QString()}) {
            engine->setTitle(title);
            engine->setArtist(title);
            ASSERT_TRUE(HRFSucceeded(engine->updateFileWithError())) << fixture;
            EXPECT_EQ(file.text(K::artist), title) << fixture;
        }
        EXPECT_EQ(file.text(K::tagVersion), u""_s) << fixture;
        EXPECT_TRUE(file.bytes() == HRFFormatFile("plain.dff").bytes()) << fixture;
    }
}
