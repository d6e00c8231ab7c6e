// What is particular to MP4 files.

#include "support/HRFTestBytes.h"
#include "support/HRFTestFile.h"
#include "tags/MP4MetaData.h"

using namespace HRFTestBytes;
using namespace Qt::StringLiterals;
using K = HRFTagKey;

namespace {

QByteArray atom(const char *name, const QByteArray &contents)
{
    return bigEndian(quint64(contents.size() + 8)) + name + contents;
}

QByteArray longAtom(const char *name, const QByteArray &contents)
{
    return bigEndian(1) + name + bigEndian(quint64(contents.size() + 16), 8) + contents;
}

/// An atom that goes on to the end of the file.
QByteArray openAtom(const char *name, const QByteArray &contents)
{
    return bigEndian(0) + name + contents;
}

QByteArray data(quint32 type, const QByteArray &value)
{
    return atom("data", bigEndian(type) + bigEndian(0) + value);
}

QByteArray freeForm(const QByteArray &name, const QByteArray &values)
{
    return atom("----",
                atom("mean", bigEndian(0) + "com.apple.iTunes") + atom("name", bigEndian(0) + name)
                    + values);
}

QByteArray meta(const QByteArray &contents, const char *handler = "mdir")
{
    return atom("meta",
                bigEndian(0) + atom("hdlr", QByteArray(8, '\0') + handler + QByteArray(13, '\0'))
                    + contents);
}

/// A chunk offset table as deep in a movie as it must be.
QByteArray track(const QByteArray &entries)
{
    const QByteArray table =
        atom("stco", bigEndian(0) + bigEndian(quint64(entries.size() / 4)) + entries);
    return atom("trak", atom("mdia", atom("minf", atom("stbl", table))));
}

QByteArray userData(const QByteArray &items, const QByteArray &more = {})
{
    return atom("udta", meta(atom("ilst", items) + more));
}

const QByteArray fileType = atom("ftyp", "M4A isom");
const QByteArray audio = atom("mdat", "audio");
const QByteArray trak = track(bigEndian(0));
const QByteArray list = meta(atom("ilst", {}));
const QByteArray nameAtom = atom("name", "abcd");
const QByteArray padding = atom("free", QByteArray(500, '\0'));

HRFTestFile fileWithItems(const QByteArray &items)
{
    return {"m4a", fileType + atom("moov", userData(items)) + audio};
}

enum class Outcome { unreadable, refused, saved };
using enum Outcome;

/// Whether a comment of the given length can be saved. The audio of a saved file stays whole, and
/// other files stay as they are.
Outcome outcomeOfSaving(const QByteArray &contents, qsizetype length = 2000)
{
    HRFTestFile file{"m4a", fileType + contents};
    const QByteArray old = file.bytes;
    if (!file.tryOpen())
        return unreadable;
    const QString comment(length, u'x');
    if (const auto updated = file.trySet({{K::comment, comment}}); !updated) {
        EXPECT_EQ(file.bytes, old);
        EXPECT_FALSE(updated.error().recoverySuggestion.isEmpty());
        return refused;
    }
    EXPECT_TRUE(file.bytes.contains(audio));
    EXPECT_EQ(file.bytes.count(nameAtom), old.count(nameAtom));
    EXPECT_EQ(file.text(K::comment), comment);
    return saved;
}

/// An index with one entry, which begins with the given numbers.
QByteArray fragmentIndex(char version, const QByteArray &numbers)
{
    constexpr quint32 sizesOfFragmentNumbers = 0b01'10'11; // less 1
    return atom("mfra",
                atom("tfra",
                     version + QByteArray(3, '\0') + bigEndian(1)
                         + bigEndian(sizesOfFragmentNumbers) + bigEndian(1) + numbers + "aabbbcccc")
                    + atom("mfro", bigEndian(0, 8)));
}

} // namespace

TEST(MP4Check, RefusesWhatSavingWouldDamage)
{
    const auto movie = [](const QByteArray &contents) { return atom("moov", contents) + audio; };
    const QByteArray otherList = meta(atom("ilst", {}), "mdta");
    const QByteArray keys = meta(atom("keys", bigEndian(0, 8)) + atom("ilst", {}));
    const QByteArray longItem = longAtom("\251nam", data(1, "One"));
    const QByteArray openList = openAtom("udta", bigEndian(0) + list.sliced(4));
    const QByteArray emptyTable = atom("stco", bigEndian(0) + bigEndian(9));
    const std::tuple<const char *, QByteArray, Outcome> cases[] = {
        {"no user data", movie(trak), saved},
        {"no tags", movie(trak + atom("udta", nameAtom)), saved},
        {"tags", movie(trak + atom("udta", list)), saved},
        {"other handler", movie(atom("udta", otherList)), refused},
        {"keys", movie(atom("udta", keys)), refused},
        {"keys of the movie", movie(otherList + atom("udta", list)), saved},

        {"open movie", audio + openAtom("moov", trak + atom("udta", list)), refused},
        {"open movie without tags", audio + openAtom("moov", trak), refused},
        {"open user data", audio + openAtom("moov", openAtom("udta", list)), refused},
        {"open tags", audio + openAtom("moov", openList), refused},
        {"open audio", movie(atom("udta", list)) + openAtom("mdat", "more"), saved},

        {"long movie", longAtom("moov", trak) + audio, refused},
        {"long user data", movie(longAtom("udta", nameAtom)), refused},
        {"long movie with user data", longAtom("moov", atom("udta", nameAtom)) + audio, saved},
        {"long atoms with tags", longAtom("moov", longAtom("udta", list) + trak) + audio, saved},
        {"long item", movie(userData(longItem)), refused},

        {"zero behind user data", movie(atom("udta", nameAtom + bigEndian(0)) + trak), refused},
        {"zero at the end", movie(trak + atom("udta", list + bigEndian(0))), refused},
        {"item past the tags", movie(userData(bigEndian(40) + "\251nam") + trak), refused},
        {"offsets without room", movie(atom("trak", emptyTable) + trak), refused},
    };
    for (const auto &[name, contents, outcome] : cases)
        EXPECT_EQ(outcomeOfSaving(contents), outcome) << name;
    for (const auto &[fixture, table] : {std::pair("aac.m4a", "stco"), {"co64.m4a", "co64"}}) {
        HRFTestFile file = HRFTestFile::fixture(fixture);
        file.bytes.replace(file.bytes.indexOf(table) + 8, 2, "\x0F\xFF", 2);
        const QByteArray old = file.bytes;
        EXPECT_TRUE(HRFFailure(file.trySet({{K::title, u"A longer title than before"_s}}))
                        .contains(u"chunk offsets"_s));
        EXPECT_EQ(file.bytes, old) << fixture;
    }
}

TEST(MP4Check, RefusesToMoveAudioBeyondTheReachOfItsOffsets)
{
    const std::tuple<quint32, qsizetype, Outcome> cases[] = {
        {0xFFFFFFF0, 2000, refused}, {0xFFFFFFF0, 400, saved}, {0xFFFF0000, 2000, saved},
        {0x80000000, 2000, saved},   {1, 2000, saved},         {0xFFFFFFFF, 400, saved}};
    for (const auto &[offset, length, outcome] : cases) {
        const QByteArray movie =
            atom("moov", track(bigEndian(1) + bigEndian(offset)) + userData({}, padding));
        EXPECT_EQ(outcomeOfSaving(movie + audio, length), outcome) << offset;
    }
}

TEST(MP4Check, RefusesToMoveFragmentsThatCannotBeCorrected)
{
    const QByteArray pinned =
        atom("moof", atom("traf", atom("tfhd", bigEndian(1) + bigEndian(1) + bigEndian(0, 8))));
    const QByteArray relative =
        atom("moof", atom("traf", atom("tfhd", bigEndian(0x20000) + bigEndian(1))));
    const std::tuple<const char *, QByteArray, Outcome> cases[] = {
        {"one fragment", pinned, saved},
        {"two fragments", pinned + audio + pinned, refused},
        {"two relative fragments", relative + audio + relative, saved},
        {"damaged index", relative + atom("mfra", bigEndian(9)), refused},
        {"index without room", relative + fragmentIndex(0, bigEndian(0)), refused},
        {"index without reach", relative + fragmentIndex(0, bigEndian(0xFFFFFFF0, 8)), refused},
    };
    for (const auto &[name, rest, moved] : cases) {
        const QByteArray file = atom("moov", userData({}, padding)) + audio + rest;
        EXPECT_EQ(outcomeOfSaving(file), moved) << name;
        EXPECT_EQ(outcomeOfSaving(file, 400), saved) << name;
    }
}

TEST(MP4Check, MovesTheIndexOfFragments)
{
    const QByteArray movie = fileType + atom("moov", trak);
    const QByteArray fragment = atom("moof", {}) + audio;
    for (const char version : {'\0', '\1'}) {
        const auto indexOf = [version](qsizetype place) {
            const int width = version == 0 ? 4 : 8;
            return fragmentIndex(version, bigEndian(7, width) + bigEndian(quint64(place), width));
        };
        HRFTestFile file{"m4a", movie + fragment + indexOf(movie.size())};
        file.set(K::title, u"One"_s);
        const qsizetype moved = file.bytes.indexOf(fragment);
        EXPECT_GT(moved, movie.size());
        EXPECT_TRUE(file.bytes.endsWith(indexOf(moved)));
    }
}

namespace {

struct ItemCase
{
    const char *name;
    QByteArrayList atoms;
    K key;
    QVariant value; ///< what is read
    QVariant newValue; ///< nothing when the atoms are of no property
};

const QByteArray data1 = data(1, "One");
const QByteArray data2 = data(1, "Two");
const QByteArray jpeg = data(13, "\xFFjpeg");
const QByteArray other = data(99, "image");
const QVariant one = u"One"_s;
const QVariant newText = u"New"_s;
const QVariant newCover = "\xFFnew"_ba;

// clang-format off
const ItemCase itemCases[] = {
    {"text twice", {atom("\251nam", data1), atom("\251nam", data2)}, K::title, one, newText},
    {"two texts in one atom", {atom("\251nam", data1 + data2)}, K::title, one, newText},
    {"freeform twice", {freeForm("LABEL", data1), freeForm("LABEL", data2)},
     K::publisher, one, newText},
    {"freeform of mixed types", {freeForm("LABEL", data(0, "One") + data(21, "\2"))},
     K::publisher, one, newText},
    {"freeform with a colon", {freeForm("a:b", data1)}, K::title, {}, {}},
    {"freeform without data", {freeForm("LABEL", {})}, K::publisher, {}, {}},
    {"cover twice", {atom("covr", jpeg), atom("covr", data(14, "\x89png"))},
     K::artwork, "\xFFjpeg"_ba, newCover},
    {"cover of another type", {atom("covr", other)}, K::artwork, {}, newCover},
    {"covers of two types", {atom("covr", other + jpeg)}, K::artwork, "\xFFjpeg"_ba, newCover},
    {"unknown atom", {atom("itnu", data(21, "\1"))}, K::title, {}, {}},
    {"atom without data", {atom("\251nam", "raw bytes")}, K::title, {}, newText},
    {"unreadable before text", {atom("\251nam", "raw bytes"), atom("\251nam", data1)},
     K::title, one, newText},
    {"text of no type", {atom("\251too", data(0, "One"))}, K::encoder, one, newText},
    {"binary data of no type", {atom("\251too", data(0, "\0\1"_ba))}, K::encoder, {}, newText},
    {"UTF-16", {atom("\251wrt", data(2, "\0O\x01\x31"_ba))}, K::composer, u"O\u0131"_s, newText},
    {"not UTF-8", {atom("\251ART", data(1, "Bj\xF6rk"))}, K::artist, u"Bj\u00F6rk"_s, newText},
    {"text behind a zero", {atom("\251cmt", data(1, "One\0Two"_ba))}, K::comment, one, newText},
    {"locale", {atom("\251cmt", atom("data", bigEndian(1) + bigEndian(9) + "One"))},
     K::comment, one, newText},
    {"number of 1 byte", {atom("tmpo", data(21, "x"))}, K::bpm, 120, 40000},
    {"number of 2 bytes", {atom("tmpo", data(21, "\x9C\x40"))}, K::bpm, 40000, 90},
    {"number of 4 bytes", {atom("tmpo", data(21, bigEndian(120)))}, K::bpm, 120, 90},
    {"number of 8 bytes", {atom("tmpo", data(21, bigEndian(120, 8)))}, K::bpm, 120, 90},
    {"number of 5 bytes", {atom("tmpo", data(21, "\1\2\3\4\5"))}, K::bpm, {}, 90},
    {"long pair", {atom("trkn", data(0, "\0\0\0\3\0\0\0\0\1"_ba))}, K::trackNumber, 3, 4},
    {"number without total", {atom("trkn", data(0, "\0\0\0\7\0\0"_ba))}, K::trackNumber, 7, 8},
    {"total without number", {atom("disk", data(0, "\0\0\0\0\0\x0C"_ba))}, K::discTotal, 12, 8},
    {"genre by number", {atom("gnre", data(0, "\0\2"_ba)), atom("\251gen", data2)},
     K::genre, u"Classic Rock"_s, newText},
};
// clang-format on

} // namespace

TEST(MP4Items, KeepTheirAtomsWhileTheyAreUnchanged)
{
    for (const ItemCase &item : itemCases) {
        SCOPED_TRACE(item.name);
        HRFTestFile file = fileWithItems(item.atoms.join());
        EXPECT_EQ(file.value(item.key), item.value);
        file.set(K::album, u"An album"_s);
        EXPECT_EQ(file.value(item.key), item.value);
        for (const QByteArray &bytes : item.atoms)
            EXPECT_TRUE(file.bytes.contains(bytes)) << bytes;
        EXPECT_TRUE(file.bytes.endsWith(audio));
        file.strip();
        EXPECT_EQ(file.value(K::framesCount), 0);
    }
}

TEST(MP4Items, AreReplacedAndRemovedWithAllTheirAtoms)
{
    for (const ItemCase &item : itemCases) {
        if (!item.newValue.isValid())
            continue;
        for (const QVariant &value : {item.newValue, item.value, QVariant()}) {
            SCOPED_TRACE(item.name);
            HRFTestFile file = fileWithItems(item.atoms.join());
            file.set(item.key, value);
            EXPECT_EQ(file.value(item.key), value);
            EXPECT_EQ(file.value(K::framesCount), value.isValid() ? 1 : 0);
        }
    }
}

TEST(MP4Rules, RefuseANumberThatTheAtomCannotHold)
{
    HRFTestFile file = fileWithItems({});
    const QByteArray old = file.bytes;
    EXPECT_FALSE(file.trySet({{K::bpm, 70000}}));
    EXPECT_EQ(file.bytes, old);
}

TEST(MP4Rules, WriteNeitherFalseNorMoreThanAByteHolds)
{
    HRFTestFile file = fileWithItems({});
    file.set({{K::rating, 300}, {K::isPodcast, true}, {K::isPartOfACompilation, true}});
    EXPECT_EQ(file.value(K::rating), 255);
    file.set({{K::isPartOfACompilation, false}, {K::rating, 0}});
    EXPECT_EQ(file.value(K::framesCount), 1);
}

TEST(MP4Rules, ListAllTexts)
{
    const auto engine =
        fileWithItems(atom("\251ART", data1 + data2) + atom("tmpo", data(21, "\1"))).open();
    EXPECT_EQ(engine->framesCount(), 2);
    EXPECT_EQ(engine->frames(), (QList<HRFFrameDescription>{{u"©ART"_s, u"One, Two"_s}}));
    EXPECT_EQ(dynamic_cast<MP4MetaData &>(*engine).stringForTag("tmpo"), u""_s);
    EXPECT_EQ(HRFTestFile::fixture("no-udta.m4a").open()->frames(), HRFFrameList());
}

TEST(MP4Rules, ReadNumbersThatAreText)
{
    HRFTestFile file = HRFTestFile::fixture("aac.m4a");
    file.set(K::movementNumber, 3);
    const qsizetype type = file.bytes.indexOf("\251mvi") + 12;
    file.bytes.replace(type, 4, bigEndian(1));
    file.bytes.replace(type + 8, 2, "12");
    EXPECT_EQ(file.value(K::movementNumber), 12);
}
