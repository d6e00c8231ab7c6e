#include "mp4/MP4TestFile.h"

#include <gtest/gtest.h>

using K = HRFTagKey;
using namespace Qt::StringLiterals;

namespace {

QByteArray freeForm(const QByteArray &name, const QByteArray &values)
{
    return atom("----",
                atom("mean", number32(0) + "com.apple.iTunes") + atom("name", number32(0) + name)
                    + values);
}

QByteArray fileWithItems(const QByteArray &items)
{
    return fileType + atom("moov", atom("udta", metaAtom(atom("ilst", items)))) + audio;
}

void set(QByteArray &file, K key, const QVariant &value)
{
    const auto engine = openMP4(file);
    ASSERT_TRUE(engine);
    engine->setValueForKey(value, key);
    const auto updated = engine->updateFileWithError();
    ASSERT_TRUE(updated) << updated.error().fullText().toStdString();
}

QVariant valueIn(QByteArray file, K key)
{
    return openMP4(file)->valueForKey(key);
}

struct ItemCase
{
    const char *name;
    QByteArrayList atoms;
    K key;
    QVariant value; ///< what is read
    QVariant newValue; ///< nothing when the atoms are of no property
};

void PrintTo(const ItemCase &item, std::ostream *stream)
{
    *stream << item.name;
}

const QByteArray data1 = dataAtom(1, "One");
const QByteArray data2 = dataAtom(1, "Two");
const QVariant newText = u"New"_s;

const ItemCase itemCases[] = {
    {"text twice", {atom("\251nam", data1), atom("\251nam", data2)}, K::title, u"One"_s, newText},
    {"two texts in one atom", {atom("\251nam", data1 + data2)}, K::title, u"One"_s, newText},
    {"freeform twice",
     {freeForm("LABEL", data1), freeForm("LABEL", data2)},
     K::publisher,
     u"One"_s,
     newText},
    {"freeform of mixed types",
     {freeForm("LABEL", dataAtom(0, "One") + dataAtom(21, "\2"))},
     K::publisher,
     u"One"_s,
     newText},
    {"freeform with a colon", {freeForm("a:b", data1)}, K::title, {}, {}},
    {"freeform without data", {freeForm("LABEL", {})}, K::publisher, {}, {}},
    {"cover twice",
     {atom("covr", dataAtom(13, "\xFFjpeg")), atom("covr", dataAtom(14, "\x89png"))},
     K::artwork,
     "\xFFjpeg"_ba,
     "\xFFnew"_ba},
    {"cover of another type", {atom("covr", dataAtom(99, "image"))}, K::artwork, {}, "\xFFnew"_ba},
    {"cover beside one of another type",
     {atom("covr", dataAtom(99, "image") + dataAtom(13, "\xFFjpeg"))},
     K::artwork,
     "\xFFjpeg"_ba,
     "\xFFnew"_ba},
    {"unknown atom", {atom("itnu", dataAtom(21, "\1"))}, K::title, {}, {}},
    {"atom without data", {atom("\251nam", "raw bytes")}, K::title, {}, newText},
    {"unreadable before text",
     {atom("\251nam", "raw bytes"), atom("\251nam", data1)},
     K::title,
     u"One"_s,
     newText},
    {"text of no type", {atom("\251too", dataAtom(0, "One"))}, K::encoder, u"One"_s, newText},
    {"binary data of no type",
     {atom("\251too", dataAtom(0, bytesOf("\0\1")))},
     K::encoder,
     {},
     newText},
    {"UTF-16",
     {atom("\251wrt", dataAtom(2, bytesOf("\0O\x01\x31")))},
     K::composer,
     u"O\u0131"_s,
     newText},
    {"not UTF-8", {atom("\251ART", dataAtom(1, "Bj\xF6rk"))}, K::artist, u"Bj\u00F6rk"_s, newText},
    {"text behind a zero",
     {atom("\251cmt", dataAtom(1, bytesOf("One\0Two")))},
     K::comment,
     u"One"_s,
     newText},
    {"locale",
     {atom("\251cmt", atom("data", number32(1) + number32(9) + "One"))},
     K::comment,
     u"One"_s,
     newText},
    {"number of 1 byte", {atom("tmpo", dataAtom(21, "\x78"))}, K::bpm, 120, 40000},
    {"number of 2 bytes", {atom("tmpo", dataAtom(21, "\x9C\x40"))}, K::bpm, 40000, 90},
    {"number of 4 bytes", {atom("tmpo", dataAtom(21, number32(120)))}, K::bpm, 120, 90},
    {"number of 8 bytes",
     {atom("tmpo", dataAtom(21, number32(0) + number32(120)))},
     K::bpm,
     120,
     90},
    {"number of 5 bytes", {atom("tmpo", dataAtom(21, "\1\2\3\4\5"))}, K::bpm, {}, 90},
    {"long pair", {atom("trkn", dataAtom(0, bytesOf("\0\0\0\3\0\0\0\0\1")))}, K::trackNumber, 3, 4},
    {"genre by number",
     {atom("gnre", dataAtom(0, bytesOf("\0\2"))), atom("\251gen", data2)},
     K::genre,
     u"Classic Rock"_s,
     newText},
};

class MP4Items : public testing::TestWithParam<ItemCase>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(All, MP4Items, testing::ValuesIn(itemCases));

TEST_P(MP4Items, KeepsAtomsWhileTheirItemIsUnchanged)
{
    const ItemCase &item = GetParam();
    QByteArray file = fileWithItems(item.atoms.join());
    EXPECT_EQ(valueIn(file, item.key), item.value);
    set(file, K::album, u"An album"_s);
    EXPECT_EQ(valueIn(file, K::album), u"An album"_s);
    EXPECT_EQ(valueIn(file, item.key), item.value);
    for (const QByteArray &bytes : item.atoms)
        EXPECT_TRUE(file.contains(bytes)) << bytes.toPercentEncoding().toStdString();
    EXPECT_TRUE(file.endsWith(audio));
}

TEST_P(MP4Items, ReplacesAllAtomsOfAnItem)
{
    const ItemCase &item = GetParam();
    if (!item.newValue.isValid())
        return;
    QByteArray file = fileWithItems(item.atoms.join());
    set(file, item.key, item.newValue);
    EXPECT_EQ(valueIn(file, item.key), item.newValue);
    EXPECT_EQ(valueIn(file, K::framesCount), 1);

    file = fileWithItems(item.atoms.join());
    set(file, item.key, item.value);
    EXPECT_EQ(valueIn(file, item.key), item.value);
    EXPECT_EQ(valueIn(file, K::framesCount), item.value.isValid() ? 1 : 0);
}

TEST_P(MP4Items, RemovesAllAtomsOfAnItem)
{
    const ItemCase &item = GetParam();
    QByteArray file = fileWithItems(item.atoms.join());
    if (item.newValue.isValid()) {
        set(file, item.key, {});
    } else {
        const auto engine = openMP4(file);
        ASSERT_TRUE(engine->stripTags() && engine->updateFileWithError());
    }
    EXPECT_EQ(valueIn(file, K::framesCount), 0);
}

TEST(MP4ItemNumbers, RefusesANumberThatTheAtomCannotHold)
{
    QByteArray file = fileWithItems({});
    const QByteArray oldFile = file;
    const auto engine = openMP4(file);
    engine->setValueForKey(70000, K::bpm);
    EXPECT_FALSE(engine->updateFileWithError());
    EXPECT_EQ(file, oldFile);
}
