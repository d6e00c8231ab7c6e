#include "support/HRFSettings.h"
#include "support/HRFTestMP3.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace HRFTestMP3;
using namespace Qt::StringLiterals;
using namespace std::string_literals;
using testing::Contains;
using testing::ElementsAre;
using K = HRFTagKey;

namespace {

/// What a save must leave alone, forget nothing of, or not begin at all.
class ID3TagKeeping : public testing::Test
{
protected:
    void setVersion(int version)
    {
        m_settings.set("ID3v2Version", version == 3 ? u"316"_s : u"48"_s);
    }

    HRFSettings m_settings;
};

/// Frames without a property of their own, and pictures.
const HRFRawFrame foreignFrames[] = {
    {"XABC", "\xFF\xFB\0 any bytes \xFF\xE0"s},
    {"PRIV", "owner\0\xFF\x00\xFE data"s},
    {"UFID", "http://owner\0id\0with zero"s},
    {"MCDI", "\0\1\2\3\4"s},
    {"GEOB",
     "\1application/x\0\xFF\xFEn\0\0\0\xFF\xFE"
     "d\0\0\0object"s},
    {"ETCO", "\2\3\0\0\1\0"s},
    {"SYLT", "\0eng\2\1words\0one\0\0\0\0\1"s},
    {"RVAD", "\3\x10\1\1\2\2"s},
    {"TRDA", "\0May 1st"s},
    {"CHAP", "c1\0\0\0\0\0\0\0\1\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s},
    {"TXXX", "\0own\0first\0second"s},
    {"APIC", "\0image/jpeg\0\4back\0\xFF\xD8\xFF bytes"s},
    {"APIC", "\1image/jpeg\0\5\xFF\xFEz\1\0\0\xFF\xD8\xFF bytes"s},
    {"APIC", "\0-->\0\7link\0http://a.b/c.png"s},
};

} // namespace

TEST_F(ID3TagKeeping, LeavesForeignFramesByteForByte)
{
    for (const int from : {3, 4})
        for (const int to : {3, 4})
            for (const HRFRawFrame &frame : foreignFrames) {
                setVersion(to);
                HRFTestFile file{ID3v2Tag(from, {frame, textFrame("TIT2", "a")}) + audio()};
                file.set({{K::title, u"b"_s}});
                EXPECT_EQ(ID3v2Version(file.bytes), to);
                EXPECT_THAT(contentsOf(file.bytes, frame.id), ElementsAre(frame.content))
                    << frame.id << " from ID3v2." << from << " to ID3v2." << to;
            }
}

TEST_F(ID3TagKeeping, KeepsAFrameOrRefusesToSave)
{
    const std::tuple<int, int, HRFRawFrame> rows[] = {
        {3, 3, {"XABC", "secret"s, "\0\x40"s}},
        {4, 4, {"XABC", "secret"s, "\0\x04"s}},
        {4, 3, {"RVA2", "track\0\1\2\0\0"s}},
        {4, 3, {"EQU2", "\1id\0\1\2\3\4"s}},
    };
    for (const auto &[from, to, frame] : rows) {
        setVersion(to);
        const std::string old = ID3v2Tag(from, {frame, textFrame("TIT2", "a")}) + audio();
        HRFTestFile file{old};
        if (file.trySet({{K::title, u"b"_s}}))
            EXPECT_THAT(ID3v2Frames(file.bytes), Contains(frame)) << frame.id << " to " << to;
        else
            EXPECT_TRUE(file.bytes == old) << frame.id;
    }
}

TEST_F(ID3TagKeeping, TakesAFrameOutOfItsGroup)
{
    for (const auto &[version, flags] : {std::pair(3, "\0\x20"s), std::pair(4, "\0\x40"s)}) {
        setVersion(version);
        HRFTestFile file{ID3v2Tag(version, {{"XABC", "\x81words"s, flags}}) + audio()};
        file.set({{K::title, u"b"_s}});
        EXPECT_THAT(ID3v2Frames(file.bytes), Contains(HRFRawFrame{"XABC", "words"})) << version;
    }
}

TEST_F(ID3TagKeeping, GoesOnBehindEmptyFrames)
{
    for (const int version : {3, 4}) {
        HRFTestFile file{ID3v2Tag(version,
                                  {textFrame("TIT2", "a"),
                                   {"TPE1", ""},
                                   {"TXXX", ""},
                                   textFrame("TALB", "b"),
                                   {"COMM", ""},
                                   textFrame("TCOM", "c"),
                                   {"XABC", "bytes"},
                                   {"TENC", ""}})
                         + audio()};
        EXPECT_EQ(file.read(K::album), u"b"_s);
        EXPECT_EQ(file.read(K::composer), u"c"_s);
        file.set({{K::title, u"d"_s}});
        EXPECT_EQ(file.read(K::album), u"b"_s);
        EXPECT_EQ(file.read(K::composer), u"c"_s);
        EXPECT_THAT(contentsOf(file.bytes, "XABC"), ElementsAre("bytes"));
        EXPECT_TRUE(file.bytes.ends_with(audio()));
    }
}

TEST_F(ID3TagKeeping, KeepsTheRecordingDayBehindAnEmptyFrame)
{
    const HRFRawFrame time[] = {textFrame("TYER", "2004"), textFrame("TDAT", "0605"),
                                textFrame("TIME", "0708")};
    for (const HRFRawFrame &first : {textFrame("TPE1", "a"), HRFRawFrame{"TPE1", ""}}) {
        HRFTestFile file{ID3v2Tag(3, {first, time[0], time[1], time[2]}) + audio()};
        file.set({{K::title, u"b"_s}});
        EXPECT_THAT(contentsOf(file.bytes, "TDRC"),
                    ElementsAre("\0"
                                "2004-05-06T07:08"s));
    }
}

TEST_F(ID3TagKeeping, RefusesToSaveADamagedTag)
{
    const auto damaged = [](std::size_t offset, const std::string &damage) {
        return ID3v2Tag(4, {textFrame("TIT2", "title"), textFrame("TPE1", "artist")})
            .replace(offset, damage.size(), damage);
    };
    constexpr std::size_t firstFrame = 10;
    constexpr std::size_t secondFrame = firstFrame + 10 + 6;
    const std::string tags[] = {
        damaged(secondFrame + 7, "\x7F"),
        damaged(secondFrame, "t\xFF!?"),
        damaged(firstFrame + 6, "\x7F"),
        ID3v2Tag(4, {textFrame("TIT2", "a"), {"XABC", "\x81 encrypted"s, "\0\x04"s}}),
    };
    for (const std::string &tag : tags)
        for (const QVariant &title : {QVariant(u"new"_s), QVariant()}) {
            HRFTestFile file{tag + audio()};
            EXPECT_FALSE(file.trySet({{K::title, title}})) << tag << title.isValid();
            EXPECT_TRUE(file.bytes == tag + audio()) << tag << title.isValid();
        }
}

TEST_F(ID3TagKeeping, WritesTheVersionAndEncodingOfThePreference)
{
    struct Row
    {
        const char *preference;
        int version;
        char plain; ///< encoding of text that Latin-1 can hold
        char wide; ///< of other text
        char user; ///< of user text
    };
    constexpr Row rows[] = {{"31", 3, 0, 1, 1}, {"316", 3, 1, 1, 1}, {"38", 3, 1, 1, 1},
                            {"41", 4, 0, 3, 3}, {"416", 4, 1, 1, 3}, {"48", 4, 3, 3, 3}};
    for (const Row &row : rows) {
        m_settings.set("ID3v2Version", QString::fromLatin1(row.preference));
        HRFTestFile file;
        file.set({{K::title, u"a"_s},
                  {K::comment, u"é"_s},
                  {K::bpm, 9},
                  {K::artist, u"ž"_s},
                  {K::work, u"a"_s}});
        EXPECT_EQ(ID3v2Version(file.bytes), row.version) << row.preference;
        for (const auto &[id, encoding] :
             {std::pair("TIT2", row.plain), std::pair("COMM", row.plain),
              std::pair("TBPM", row.plain), std::pair("TPE1", row.wide),
              std::pair("TXXX", row.user)})
            EXPECT_EQ(contentsOf(file.bytes, id).at(0).at(0), encoding) << row.preference << id;
    }
}

TEST_F(ID3TagKeeping, KeepsTheEncodingOfOtherFrames)
{
    const HRFRawFrame artist{"TPE1", "\1\xFF\xFEz\1"s};
    HRFTestFile file{ID3v2Tag(4, {artist, textFrame("TALB", "album")}) + audio()};
    file.set({{K::title, u"b"_s}});
    EXPECT_THAT(ID3v2Frames(file.bytes), Contains(artist));
    EXPECT_THAT(ID3v2Frames(file.bytes), Contains(textFrame("TALB", "album")));
}

TEST_F(ID3TagKeeping, KeepsEveryValueWhenTheVersionChanges)
{
    const std::vector<HRFRawFrame> frames = {
        textFrame("TMOO", "mood"),       textFrame("TPRO", "notice"),
        textFrame("TDRL", "2004-05-06"), textFrame("TDTG", "2004-05-07T01:02:03"),
        textFrame("TSST", "set"),        textFrame("TMCL", "piano"),
        textFrame("TDEN", "2004-05"),    textFrame("TDOR", "1980-03-04"),
        textFrame("TIPL", "mix\0a\0b"s), textFrame("TDRC", "2004-05-06T07:08:09"),
        textFrame("TCON", "17\0Own"s),   textFrame("TPE1", "one\0two"s),
    };
    HRFTestFile file{ID3v2Tag(4, frames) + audio()};
    const auto before = file.open();
    for (const int version : {3, 4, 3}) {
        setVersion(version);
        file.set({{K::title, u"b"_s}});
        EXPECT_EQ(ID3v2Version(file.bytes), version);
        EXPECT_LE(contentsOf(file.bytes, "TORY").size(), 1U);
        const auto after = file.open();
        for (auto i = std::size_t(K::title) + 1; i < std::size_t(K::frames); ++i)
            EXPECT_EQ(after->valueForKey(K(i)), before->valueForKey(K(i)))
                << HRFRowForKey(K(i)).name << " in ID3v2." << version;
    }
}

TEST_F(ID3TagKeeping, KeepsTheYearOfTheNewerFrame)
{
    setVersion(3);
    HRFTestFile file{ID3v2Tag(4, {textFrame("TYER", "1999"), textFrame("TDRC", "2004")}) + audio()};
    file.set({{K::title, u"b"_s}});
    EXPECT_EQ(file.read(K::year), QVariant(2004));
}

TEST_F(ID3TagKeeping, ReplacesAValueOfTheOtherVersionsForm)
{
    HRFTestFile file;
    setVersion(3);
    file.set({{K::mood, u"old"_s}});
    EXPECT_TRUE(contentsOf(file.bytes, "TMOO").empty());
    setVersion(4);
    file.set({{K::mood, u"new"_s}});
    EXPECT_THAT(ID3v2Frames(file.bytes), ElementsAre(HRFRawFrame{"TMOO", "\003new"}));
}
