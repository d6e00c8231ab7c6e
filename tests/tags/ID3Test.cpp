// What an ID3v2 tag keeps, what is written into it and when it is not touched at all.

#include "support/HRFTestBytes.h"
#include "support/HRFTestFile.h"

using namespace HRFTestBytes;
using namespace Qt::StringLiterals;
using testing::Contains;
using K = HRFTagKey;

namespace {

const QByteArray audio = HRFTestFile::fixture("plain.mp3").bytes;
const HRFSettings::Values version3 = {{"ID3v2Version", 316}};
const HRFSettings::Values version4 = {{"ID3v2Version", 48}};
const HRFSettings::Values compatible = {{"iTunesID3v2Compatibility", true}};
const HRFTagValues newTitle = {{K::title, u"new"_s}};

const HRFSettings::Values &settingsOf(int version)
{
    return version == 3 ? version3 : version4;
}

HRFTestFile tagged(const std::vector<Frame> &frames, int version = 4)
{
    return {"mp3", ID3v2Tag(version, frames) + audio};
}

} // namespace

TEST(ID3Reading, TakesTheFirstFrameThatSaysSomething)
{
    const Frame year = textFrame("TORY", "1981");
    const Frame people = textFrame("IPLS", "producer");
    const HRFDate january1981 = QDateTime(QDate(1981, 1, 1), QTime(0, 0), Qt::UTC);
    const HRFDate may1980 = QDateTime(QDate(1980, 5, 1), QTime(0, 0), Qt::UTC);
    // clang-format off
    const std::tuple<int, std::vector<Frame>, K, QVariant> rows[] = {
        {3, {year}, K::originalReleaseDate, *january1981},
        {4, {year}, K::originalReleaseDate, *january1981},
        {4, {year, textFrame("TDOR", "1980-05")}, K::originalReleaseDate, *may1980},
        {4, {year, textFrame("TDOR", "long ago")}, K::originalReleaseDate, *january1981},
        {4, {textFrame("TYER", "1999"), textFrame("TDRC", "2004")}, K::year, 2004},
        {3, {people}, K::involvedPeopleList, u"producer"_s},
        {4, {people, textFrame("TIPL", "mix")}, K::involvedPeopleList, u"mix"_s},
        {4, {{"COMM", "\0engiTunNORM\0one"_ba}, {"COMM", "\0deu\0two"_ba}}, K::comment, u"two"_s},
        {4, {{"USLT", "\0eng\0one"_ba}, {"USLT", "\0deu\0two"_ba}}, K::lyrics, u"one"_s},
        {4, {{"WXXX", "\0x\0a.b"_ba}, {"WXXX", "\0y\0c.d"_ba}}, K::website, u"a.b"_s},
        {4, {{"PCST", bigEndian(0)}}, K::isPodcast, true},
        {4, {{"POPM", "a@b\0\x40\0\0\0\x09"_ba}, {"POPM", "b\0\x01"_ba}}, K::rating, 64},
    };
    // clang-format on
    for (const auto &[version, frames, key, value] : rows)
        EXPECT_EQ(tagged(frames, version).value(key), value) << HRFRowForKey(key).name;
}

TEST(ID3Reading, TakesPairsApart)
{
    const std::tuple<const char *, HRFNumber, HRFNumber> rows[] = {
        {"7", 7, {}},      {"7/12", 7, 12}, {"0/0", 0, 0},     {"0/12", {}, 12},  {"7/0", 7, {}},
        {"07/012", 7, 12}, {"0", {}, {}},   {"7/12/3", 7, {}}, {"-7/12", {}, 12}, {"x/y", 0, 0},
    };
    for (const auto &[text, number, total] : rows) {
        HRFTestFile file =
            tagged({textFrame("TRCK", text), textFrame("TPOS", text), textFrame("MVIN", text)});
        for (const K key : {K::trackNumber, K::discNumber, K::movementNumber})
            EXPECT_EQ(HRFTagValue::as<qlonglong>(file.value(key)), number) << text;
        for (const K key : {K::trackTotal, K::discTotal, K::movementTotal})
            EXPECT_EQ(HRFTagValue::as<qlonglong>(file.value(key)), total) << text;
    }
}

TEST(ID3Reading, TellsTheVersionAndTheFrames)
{
    const std::pair<QByteArray, QString> rows[] = {
        {"ID3\2\0\0\0\0\0\x08TT2\0\0\2\0a"_ba, u"ID3v2.2"_s},
        {ID3v2Tag(3, {textFrame("TIT2", "a")}), u"ID3v2.3"_s},
        {ID3v2Tag(4, {textFrame("TIT2", "a")}, 1), u"ID3v2.4.1"_s},
    };
    for (const auto &[tag, name] : rows) {
        HRFTestFile file{"mp3", tag + audio};
        EXPECT_EQ(file.value(K::tagVersion), name);
        EXPECT_EQ(file.open()->tagSize(), qlonglong(tag.size()) - 10);
        EXPECT_EQ(file.open()->frames(), (QList<HRFFrameDescription>{{u"TIT2"_s, u"a"_s}}));
    }
}

TEST(ID3Writing, ChangesTheFramesOfAProperty)
{
    const QByteArray owner = "someone@example.org\0"_ba;
    const std::vector<Frame> ratings = {{"POPM", owner + "\x40\0\0\0\x09"_ba},
                                        {"POPM", "b\0\1"_ba}};
    const std::vector<Frame> websites = {{"WXXX", "\0x\0a.b"_ba}, {"WXXX", "\0y\0c.d"_ba}};
    const std::vector<Frame> pictures = {{"APIC", "\0image/gif\0\6name\0GIF89a"_ba},
                                         {"APIC", "\0image/gif\0\4\0GIF89a..."_ba}};
    const std::vector<Frame> whole = {textFrame("TYER", "2004"), textFrame("TDAT", "0605"),
                                      textFrame("TIME", "0708")};
    std::vector<Frame> behindEmpty = whole;
    behindEmpty.insert(behindEmpty.begin(), {"TPE1", ""});
    const std::vector<Frame> withEmpty = {
        textFrame("TIT2", "a"), {"TPE1", ""},  {"TXXX", ""}, textFrame("TALB", "b"),
        {"COMM", ""},           {"XABC", "x"}, {"TENC", ""}};
    const std::vector<Frame> comments = {{"COMM", "\0engiTunNORM\0a"_ba}, {"COMM", "\0deu\0b"_ba}};
    const QByteArray otherPicture = pictures[1].content;
    const QByteArray time = "\0\x32\x30\x30\x34-05-06T07:08"_ba;
    const HRFTagValues work = {{K::work, u"a"_s}, {K::grouping, u"b"_s}};
    const QString url = u"https://é.org/a%20b?c=d"_s;
    const QString wideUrl = u"https://ž.org/日😀"_s;
    // clang-format off
    const struct
    {
        int version;
        std::vector<Frame> frames;
        HRFSettings::Values settings;
        HRFTagValues values;
        QByteArray id;
        QByteArrayList contents; ///< of the frames with that identifier afterwards
    } rows[] = {
        {4, {textFrame("TRCK", "3/4")}, {}, {{K::trackTotal, 0}}, "TRCK", {"\0033"}},
        {4, {textFrame("TRCK", "3/4")}, {}, {{K::trackNumber, 0}}, "TRCK", {"\0030/4"}},
        {4, ratings, {}, {{K::rating, 300}}, "POPM",
         {owner + "\xFF\0\0\0\x09"_ba, "b\0\1\0\0\0\0"_ba}},
        {4, ratings, {}, {{K::rating, 0}}, "POPM", {}},
        {4, {}, {}, {{K::rating, 1}}, "POPM", {"\0\1\0\0\0\0"_ba}},
        {4, comments, {}, {{K::comment, u"new"_s}}, "COMM", {"\3ENG\0new"_ba}},
        {4, pictures, {}, {{K::artwork, HRFSamplePNG}}, "APIC",
         {"\0image/png\0\3name\0"_ba + HRFSamplePNG, otherPicture}},
        {4, pictures, {}, {{K::artwork, "?"_ba}}, "APIC",
         {"\0image/gif\0\3name\0?"_ba, otherPicture}},
        {4, pictures, {}, {{K::artwork, {}}}, "APIC", {}},
        {4, {}, {}, work, "TXXX", {"\3WORK\0a"_ba}},
        {4, {}, {}, work, "TIT1", {"\3b"}},
        {4, {}, compatible, work, "TIT1", {"\3a"}},
        {4, {}, compatible, work, "GRP1", {"\3b"}},
        // Latin-1 is all that a URL can hold.
        {4, websites, {}, {{K::website, url}}, "WXXX",
         {"\3WEBSITE\0https://\xE9.org/a%20b?c=d"_ba}},
        {4, websites, {}, {{K::website, wideUrl}}, "WXXX",
         {"\3WEBSITE\0https://%C5%BE.org/%E6%97%A5%F0%9F%98%80"_ba}},
        {4, {{"PCST", "1234"}, {"PCST", "5678"}}, {}, {{K::isPodcast, false}}, "PCST", {}},
        // A frame leaves its group whole.
        {3, {{"XABC", "\x81words", "\0\x20"_ba}}, version3, newTitle, "XABC", {"words"}},
        {4, {{"XABC", "\x81words", "\0\x40"_ba}}, version4, newTitle, "XABC", {"words"}},
        {3, whole, version4, newTitle, "TDRC", {time}},
        {3, behindEmpty, version4, newTitle, "TDRC", {time}},
        {3, withEmpty, version4, newTitle, "TALB", {"\0b"_ba}},
        {4, withEmpty, version4, newTitle, "TALB", {"\0b"_ba}},
        {4, withEmpty, version3, newTitle, "XABC", {"x"}},
        {4, {{"TPE1", "\1\xFF\xFEz\1"}}, version4, newTitle, "TPE1", {"\1\xFF\xFEz\1"}},
        {3, {{"TXXX", "\0MOOD\0old"_ba}}, version4, {{K::mood, u"new"_s}}, "TXXX", {}},
        {3, {}, version3, {{K::mood, u"new"_s}}, "TMOO", {}},
    };
    // clang-format on
    for (const auto &[version, frames, settings, values, id, contents] : rows) {
        const HRFSettings applied(settings);
        HRFTestFile file = tagged(frames, version);
        file.set(values);
        EXPECT_EQ(contentsOf(file.bytes, id), contents) << id;
        for (const Frame &frame : ID3v2Frames(file.bytes))
            EXPECT_EQ(frame.flags, "\0\0"_ba) << frame.id;
        EXPECT_TRUE(file.bytes.endsWith(audio));
    }
}

TEST(ID3Writing, UsesTheVersionAndEncodingOfThePreference)
{
    struct Row
    {
        int preference;
        int version;
        char plain; ///< encoding of text that Latin-1 can hold
        char wide; ///< of other text
        char user; ///< of user text
    };
    constexpr Row rows[] = {{31, 3, 0, 1, 1}, {316, 3, 1, 1, 1}, {38, 3, 1, 1, 1},
                            {41, 4, 0, 3, 3}, {416, 4, 1, 1, 3}, {48, 4, 3, 3, 3}};
    for (const Row &row : rows) {
        const HRFSettings settings({{"ID3v2Version", row.preference}});
        HRFTestFile file{"mp3", audio};
        file.set(
            {{K::title, u"a"_s}, {K::comment, u"é"_s}, {K::artist, u"ž"_s}, {K::work, u"a"_s}});
        EXPECT_EQ(ID3v2Version(file.bytes), row.version) << row.preference;
        for (const auto &[id, encoding] : {std::pair("TIT2", row.plain),
                                           {"COMM", row.plain},
                                           {"TPE1", row.wide},
                                           {"TXXX", row.user}})
            EXPECT_EQ(contentsOf(file.bytes, id).at(0).at(0), encoding) << row.preference << id;
    }
}

TEST(ID3Keeping, LeavesForeignFramesByteForByteOrRefusesToSave)
{
    const Frame foreignFrames[] = {
        {"XABC", "\xFF\xFB\0 any bytes \xFF\xE0"_ba},
        {"RVAD", "\3\x10\1\1\2\2"_ba},
        {"TRDA", "\0May 1st"_ba},
        {"CHAP", "c1\0\0\0\0\0\0\0\1\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"_ba},
        {"TXXX", "\0own\0first\0second"_ba},
        {"APIC", "\0image/jpeg\0\4back\0\xFF\xD8\xFF bytes"_ba},
        {"APIC", "\1image/jpeg\0\5\xFF\xFEz\1\0\0\xFF\xD8\xFF bytes"_ba},
        {"APIC", "\0-->\0\7link\0http://a.b/c.png"_ba},
        {"RVA2", "track\0\1\2\0\0"_ba}, // not in ID3v2.3
        {"EQU2", "\1id\0\1\2\3\4"_ba},
        {"XENC", "secret"}, // encrypted
    };
    for (const int from : {3, 4}) {
        for (const int to : {3, 4}) {
            for (Frame frame : foreignFrames) {
                if (frame.id == "XENC")
                    frame.flags = from == 3 ? "\0\x40"_ba : "\0\x04"_ba;
                const HRFSettings settings(settingsOf(to));
                HRFTestFile file = tagged({frame, textFrame("TIT2", "a")}, from);
                const QByteArray old = file.bytes;
                const bool mayRefuse = frame.id == "XENC" || (to == 3 && frame.id.endsWith('2'));
                if (const auto saved = file.trySet(newTitle); !saved && mayRefuse) {
                    EXPECT_EQ(file.bytes, old) << frame.id;
                    continue;
                }
                EXPECT_EQ(ID3v2Version(file.bytes), to);
                EXPECT_THAT(ID3v2Frames(file.bytes), Contains(frame))
                    << frame.id << " from ID3v2." << from << " to ID3v2." << to;
            }
        }
    }
}

TEST(ID3Keeping, RefusesToSaveADamagedTag)
{
    const QByteArray whole = ID3v2Tag(4, {textFrame("TIT2", "title"), textFrame("TPE1", "artist")});
    constexpr qsizetype firstFrame = 10;
    constexpr qsizetype secondFrame = firstFrame + 10 + 6;
    const QByteArray tags[] = {
        QByteArray(whole).replace(secondFrame + 7, 1, "\x7F"),
        QByteArray(whole).replace(secondFrame, 4, "t\xFF!?"),
        QByteArray(whole).replace(firstFrame + 6, 1, "\x7F"),
        ID3v2Tag(4, {textFrame("TIT2", "a"), {"XABC", "\x81 encrypted", "\0\x04"_ba}}),
    };
    for (const QByteArray &tag : tags) {
        for (const QVariant &title : {QVariant(u"new"_s), QVariant()}) {
            HRFTestFile file{"mp3", tag + audio};
            EXPECT_FALSE(file.trySet({{K::title, title}})) << tag;
            EXPECT_EQ(file.bytes, tag + audio);
        }
    }
}

TEST(ID3Keeping, KeepsEveryValueWhenTheVersionChanges)
{
    HRFTestFile file = tagged({
        textFrame("TMOO", "mood"),
        textFrame("TPRO", "notice"),
        textFrame("TDRL", "2004-05-06"),
        textFrame("TDTG", "2004-05-07T01:02:03"),
        textFrame("TSST", "set"),
        textFrame("TMCL", "piano"),
        textFrame("TDEN", "2004-05"),
        textFrame("TDOR", "1980-03-04"),
        textFrame("TIPL", "mix\0a\0b"_ba),
        textFrame("TDRC", "2004-05-06T07:08:09"),
        textFrame("TCON", "17\0Own"_ba),
        textFrame("TPE1", "one\0two"_ba),
    });
    const auto before = file.open();
    for (const int version : {3, 4, 3}) {
        const HRFSettings settings(settingsOf(version));
        file.set(newTitle);
        EXPECT_EQ(ID3v2Version(file.bytes), version);
        EXPECT_LE(contentsOf(file.bytes, "TORY").size(), 1);
        const auto after = file.open();
        for (auto i = std::size_t(K::title) + 1; i < std::size_t(K::frames); ++i)
            EXPECT_EQ(after->valueForKey(K(i)), before->valueForKey(K(i)))
                << HRFRowForKey(K(i)).name << " in ID3v2." << version;
    }
}

TEST(ID3Keeping, KeepsFramesThatTagLibUnderstandsInPart)
{
    const Frame frames[] = {
        {"PRIV", "x"},
        {"UFID", "owner"},
        {"OWNE", "\0USD"_ba},
        {"RVA2", "a\0\1\0\1\0\1\0\2\0"_ba},
        {"WOAR", "\0http://x"_ba},
        {"GEOB", "\1a/b\0\xFE\xFF\0x\0\0\0\0object"_ba},
        {"GEOB", QByteArray("\0a/b\0\0\0", 7) + QByteArray(300, 'x')},
    };
    for (const int from : {3, 4}) {
        for (const Frame &frame : frames) {
            HRFTestFile file = tagged({frame, textFrame("TIT2", "a")}, from);
            file.set(newTitle);
            EXPECT_THAT(ID3v2Frames(file.bytes), Contains(frame)) << frame.id << frame.content;
        }
    }
}

TEST(ID3Keeping, KeepsTheWordsOfText)
{
    // In plain numbers, the sizes of long frames are not those of ID3v2.4.
    const QString longText = QString(200, u'x') + u"ä"_s;
    QByteArray plainSize = ID3v2Tag(4, {{"TIT2", "\3" + longText.toUtf8().chopped(1)}});
    plainSize.replace(14, 4, bigEndian(202));
    const std::tuple<QByteArray, K, QString> rows[] = {
        {ID3v2Tag(3, {textFrame("TCON", "(Neo) Soul")}), K::genre, u"(Neo) Soul"_s},
        {ID3v2Tag(4, {textFrame("TCON", "(17)(Neo) Soul")}), K::genre, u"Rock / (Neo) Soul"_s},
        {ID3v2Tag(3, {textFrame("TCON", "((escaped)")}), K::genre, u"((escaped)"_s},
        {ID3v2Tag(3, {{"PIC\0"_ba, "\0JPG\3\0picture"_ba}}), K::artwork, u"picture"_s},
        {ID3v2Tag(3, {textFrame("TCON", "(17)")}), K::genre, u"Rock"_s},
        {ID3v2Tag(4, {{"TIT2", "\3Caf\xC3\xA9 \xEF\xBF\xBD"}}), K::title, u"Café \uFFFD"_s},
        {plainSize, K::title, longText.chopped(1) + u"Ã"_s},
    };
    for (const auto &[tag, key, words] : rows) {
        HRFTestFile file{"mp3", tag + audio};
        EXPECT_EQ(file.text(key), words);
        file.set(K::album, u"new"_s);
        EXPECT_EQ(file.text(key), words);
    }
}
