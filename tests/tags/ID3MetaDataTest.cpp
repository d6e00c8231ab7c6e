#include "tags/ID3MetaData.h"

#include "support/HRFSettings.h"
#include "support/HRFTestMP3.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using namespace HRFTestMP3;
using namespace Qt::StringLiterals;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::UnorderedElementsAre;
using K = HRFTagKey;

namespace {

const QByteArray jpeg = "\xFF\xD8\xFF\xE0 a picture"_ba;
const QByteArray png = "\x89PNG\r\n\x1A\n another"_ba;

constexpr std::size_t tagCount = std::size_t(K::frames);

/// Two values for every tag, and how it is emptied.
QVariant sample(K key, bool second)
{
    switch (HRFRowForKey(key).type) {
    case HRFPropertyType::Data:
        return second ? png : jpeg;
    case HRFPropertyType::Date:
        return QDateTime(QDate(second ? 1999 : 2004, 2, 1 + int(key) % 28), QTime(23, 59, 58),
                         Qt::UTC);
    case HRFPropertyType::Number:
        return qlonglong((key == K::year ? 1900 : 100) + int(key) + (second ? 20 : 0));
    case HRFPropertyType::Boolean:
        return true;
    default:
        break;
    }
    const QString name = HRFTagProperties::propertyNames().at(qsizetype(key));
    if (key == K::website)
        return QString(u"https://example.org/é/"_s + (second ? name : QString()));
    return QString(second ? u"Ž 日本 "_s + name : name + u" – é / 1; 😀"_s);
}

QVariant emptied(K key)
{
    switch (HRFRowForKey(key).type) {
    case HRFPropertyType::Number:
        return qlonglong(0);
    case HRFPropertyType::Boolean:
        return false;
    case HRFPropertyType::Text:
        return u""_s;
    default:
        return {};
    }
}

struct Mode
{
    const char *name;
    const char *ID3v2Version;
    bool isCompatible = false;
    bool ID3v2 = true;
    bool APE = false;
};

void PrintTo(const Mode &mode, std::ostream *stream)
{
    *stream << mode.name;
}

/// Every tag that the given tags of a file can hold.
class EveryTag : public testing::TestWithParam<Mode>
{
protected:
    EveryTag()
    {
        m_settings.set("ID3v2Version", QString::fromLatin1(GetParam().ID3v2Version));
        m_settings.set("iTunesID3v2Compatibility", GetParam().isCompatible);
        m_settings.setTags(GetParam().ID3v2, false, GetParam().APE);
        for (std::size_t i = 0; i < tagCount; ++i)
            if (GetParam().ID3v2 || K(i) != K::artwork)
                m_keys.push_back(K(i));
    }

    HRFTestFile::Values values(QVariant (*value)(K key)) const
    {
        HRFTestFile::Values result;
        for (const K key : m_keys)
            result.emplace_back(key, value(key));
        return result;
    }

    HRFSettings m_settings;
    std::vector<K> m_keys;
    HRFTestFile m_file;
};

constexpr Mode modes[] = {
    {"ID3v23Latin1", "31"},
    {"ID3v23UTF16", "316"},
    {"ID3v24Latin1", "41"},
    {"ID3v24UTF16", "416"},
    {"ID3v24UTF8", "48"},
    {"ID3v23Compatible", "316", true},
    {"ID3v24Compatible", "48", true},
    {"ID3v24AndAPE", "48", false, true, true},
    {"OnlyAPE", "48", false, false, true},
};

INSTANTIATE_TEST_SUITE_P(HRFTagEngine, EveryTag, testing::ValuesIn(modes),
                         [](const auto &each) { return each.param.name; });

class ID3MetaDataTest : public testing::Test
{
protected:
    static HRFTestFile tagged(const std::vector<HRFRawFrame> &frames, int version = 4)
    {
        return {ID3v2Tag(version, frames) + audio()};
    }

    HRFSettings m_settings;
};

} // namespace

TEST_P(EveryTag, IsSetChangedAndEmptied)
{
    for (auto *value :
         {+[](K key) { return sample(key, false); }, +[](K key) { return sample(key, true); }}) {
        m_file.set(values(value));
        const auto engine = m_file.open();
        for (const K key : m_keys)
            EXPECT_EQ(engine->valueForKey(key), value(key)) << HRFRowForKey(key).name;
    }
    m_file.set(values(emptied));
    EXPECT_EQ(m_file.bytes, audio());
}

TEST_P(EveryTag, StandsAlone)
{
    for (const K key : m_keys) {
        SCOPED_TRACE(HRFRowForKey(key).name);
        m_file.bytes = audio();
        m_file.set({{key, sample(key, false)}});
        const auto engine = m_file.open();
        for (const K other : m_keys)
            EXPECT_EQ(engine->valueForKey(other), other == key ? sample(key, false) : QVariant())
                << HRFRowForKey(other).name;
        m_file.set({{key, {}}});
        EXPECT_EQ(m_file.bytes, audio());
    }
}

TEST_F(ID3MetaDataTest, ReadsNumberPairs)
{
    const std::tuple<const char *, HRFNumber, HRFNumber> rows[] = {
        {"7", 7, {}},      {"7/12", 7, 12}, {"0/0", 0, 0},     {"0/12", {}, 12},  {"7/0", 7, {}},
        {"07/012", 7, 12}, {"0", {}, {}},   {"7/12/3", 7, {}}, {"-7/12", {}, 12}, {"x/y", 0, 0},
    };
    for (const auto &[text, number, total] : rows) {
        const auto engine =
            tagged({textFrame("TRCK", text), textFrame("TPOS", text), textFrame("MVIN", text)})
                .open();
        for (const auto &half :
             {engine->trackNumber(), engine->discNumber(), engine->movementNumber()})
            EXPECT_EQ(half, number) << text;
        for (const auto &half :
             {engine->trackTotal(), engine->discTotal(), engine->movementTotal()})
            EXPECT_EQ(half, total) << text;
    }
}

TEST_F(ID3MetaDataTest, WritesNumberPairsInEitherOrder)
{
    const std::tuple<K, K, const char *> pairs[] = {{K::trackNumber, K::trackTotal, "TRCK"},
                                                    {K::discNumber, K::discTotal, "TPOS"},
                                                    {K::movementNumber, K::movementTotal, "MVIN"}};
    const std::tuple<qlonglong, qlonglong, std::vector<std::string>> rows[] = {
        {7, 12, {"\0037/12"}}, {7, 0, {"\0037"}}, {0, 12, {"\0030/12"}}, {0, 0, {}}};
    for (const auto &[numberKey, totalKey, frame] : pairs)
        for (const auto &[number, total, contents] : rows)
            for (const bool isTotalFirst : {false, true}) {
                HRFTestFile file = tagged({textFrame(frame, "3/4")});
                HRFTestFile::Values values = {{numberKey, number}, {totalKey, total}};
                if (isTotalFirst)
                    std::ranges::reverse(values);
                file.set(values);
                EXPECT_EQ(contentsOf(file.bytes, frame), contents) << frame << isTotalFirst;
            }
}

TEST_F(ID3MetaDataTest, KeepsTheOwnerOfARating)
{
    const std::string owner = "someone@example.org\0"s;
    HRFTestFile file = tagged({{"POPM", owner + "\x40\0\0\0\x09"s}, {"POPM", "b\0\x01"s}});
    EXPECT_EQ(file.read(K::rating), QVariant(64));
    file.set({{K::rating, 300}});
    EXPECT_EQ(contentsOf(file.bytes, "POPM").at(0), owner + "\xFF\0\0\0\x09"s);
    EXPECT_EQ(contentsOf(file.bytes, "POPM").size(), 2U);
    file.set({{K::rating, 0}});
    EXPECT_EQ(file.bytes, audio());
    file.set({{K::rating, 1}});
    EXPECT_THAT(contentsOf(file.bytes, "POPM"), ElementsAre("\0\x01\0\0\0\0"s));
}

TEST_F(ID3MetaDataTest, LeavesOneCommentAndOneLyrics)
{
    HRFTestFile file = tagged({{"COMM", "\0engiTunNORM\0first"s},
                               {"COMM", "\0deu\0second"s},
                               {"USLT", "\0eng\0one"s},
                               {"USLT", "\0deu\0two"s}});
    EXPECT_EQ(file.read(K::comment), u"second"_s);
    EXPECT_EQ(file.read(K::lyrics), u"one"_s);
    file.set({{K::comment, u"new"_s}, {K::lyrics, u"la la"_s}});
    EXPECT_THAT(contentsOf(file.bytes, "COMM"), ElementsAre("\003ENG\0new"s));
    EXPECT_THAT(contentsOf(file.bytes, "USLT"), ElementsAre(testing::EndsWith("\0la la"s)));
}

TEST_F(ID3MetaDataTest, ReplacesTheFirstPictureOnly)
{
    const std::string second = "\0image/gif\0\x04"
                               "back\0GIF89a..."s;
    const std::string third = "\0image/bmp\0\x08\0bytes"s;
    HRFTestFile file =
        tagged({{"APIC", "\0image/gif\0\x06name\0GIF89a"s}, {"APIC", second}, {"APIC", third}});
    EXPECT_EQ(file.read(K::artwork), "GIF89a"_ba);
    file.set({{K::artwork, png}});
    EXPECT_THAT(contentsOf(file.bytes, "APIC"),
                ElementsAre("\0image/png\0\x03name\0"s + png.toStdString(), second, third));
    file.set({{K::artwork, "unknown"_ba}});
    EXPECT_EQ(contentsOf(file.bytes, "APIC").at(0), "\0image/png\0\x03name\0unknown"s);
    file.set({{K::artwork, {}}});
    EXPECT_EQ(file.bytes, audio());
}

TEST_F(ID3MetaDataTest, WritesTheWorkAsThePreferenceSays)
{
    const HRFTestFile::Values values = {{K::work, u"a"_s}, {K::grouping, u"b"_s}};
    HRFTestFile file;
    file.set(values);
    EXPECT_THAT(
        ID3v2Frames(file.bytes),
        UnorderedElementsAre(HRFRawFrame{"TXXX", "\003WORK\0a"s}, HRFRawFrame{"TIT1", "\003b"s}));
    m_settings.set("iTunesID3v2Compatibility", true);
    file.bytes = audio();
    file.set(values);
    EXPECT_THAT(ID3v2Frames(file.bytes),
                UnorderedElementsAre(HRFRawFrame{"TIT1", "\003a"s}, HRFRawFrame{"GRP1", "\003b"s}));
}

TEST_F(ID3MetaDataTest, EncodesWhatAWebsiteCannotHold)
{
    const std::pair<QString, QString> rows[] = {
        {u"https://é.org/a%20b?c=d"_s, u"https://é.org/a%20b?c=d"_s},
        {u"https://ž.org/日"_s, u"https://%C5%BE.org/%E6%97%A5"_s},
        {u"https://x.org/😀"_s, u"https://x.org/%F0%9F%98%80"_s},
    };
    for (const auto &[given, kept] : rows) {
        HRFTestFile file = tagged({{"WXXX", "\0x\0http://a.b"s}, {"WXXX", "\0y\0http://c.d"s}});
        EXPECT_EQ(file.read(K::website), u"http://a.b"_s);
        file.set({{K::website, given}});
        EXPECT_EQ(file.read(K::website), kept);
        EXPECT_THAT(contentsOf(file.bytes, "WXXX"),
                    ElementsAre("\003WEBSITE\0"s + kept.toLatin1().toStdString()));
    }
    m_settings.setTags(false, false, true);
    for (const auto &[given, kept] : rows) {
        HRFTestFile file;
        file.set({{K::website, given}});
        EXPECT_EQ(file.read(K::website), given) << "An APE tag can hold " << qPrintable(given);
    }
}

TEST_F(ID3MetaDataTest, TakesAPodcastFrameForTheFlag)
{
    HRFTestFile file = tagged({{"PCST", std::string(4, '\0')}, {"PCST", std::string(4, '\0')}});
    EXPECT_EQ(file.read(K::isPodcast), true);
    file.set({{K::isPodcast, true}});
    EXPECT_EQ(contentsOf(file.bytes, "PCST").size(), 2U);
    file.set({{K::isPodcast, false}});
    EXPECT_EQ(file.bytes, audio());
}

TEST_F(ID3MetaDataTest, TellsTheVersionAndTheFrames)
{
    const std::pair<std::string, const char16_t *> rows[] = {
        {"ID3\2\0\0\0\0\0\x08TT2\0\0\2\0a"s, u"ID3v2.2"},
        {ID3v2Tag(3, {textFrame("TIT2", "a")}), u"ID3v2.3"},
        {ID3v2Tag(4, {textFrame("TIT2", "a")}), u"ID3v2.4"},
        {ID3v2Tag(4, {textFrame("TIT2", "a")}, 1), u"ID3v2.4.1"},
    };
    for (const auto &[tag, name] : rows) {
        const auto engine = HRFTestFile{tag + audio()}.open();
        EXPECT_EQ(engine->tagVersion(), QString::fromUtf16(name));
        EXPECT_EQ(engine->tagSize(), qlonglong(tag.size()) - 10);
        EXPECT_EQ(engine->framesCount(), 1);
        EXPECT_EQ(engine->frames(), (QList<HRFFrameDescription>{{u"TIT2"_s, u"a"_s}}));
    }
    EXPECT_FALSE(HRFTestFile().open()->tagSize());
}

TEST_F(ID3MetaDataTest, ReadsTheFramesOfBothVersions)
{
    const HRFRawFrame old = textFrame("TORY", "1981");
    const HRFRawFrame people = textFrame("IPLS", "producer");
    constexpr K date = K::originalReleaseDate;
    constexpr K list = K::involvedPeopleList;
    const std::tuple<int, std::vector<HRFRawFrame>, K, const char16_t *> rows[] = {
        {3, {old}, date, u"1981-01-01T00:00:00Z"},
        {4, {old}, date, u"1981-01-01T00:00:00Z"},
        {4, {old, textFrame("TDOR", "1980-05")}, date, u"1980-05-01T00:00:00Z"},
        {4, {old, textFrame("TDOR", "long ago")}, date, u"1981-01-01T00:00:00Z"},
        {3, {people}, list, u"producer"},
        {4, {people, textFrame("TIPL", "mix")}, list, u"mix"},
    };
    for (const auto &[version, frames, key, text] : rows) {
        const QVariant value = tagged(frames, version).read(key);
        EXPECT_EQ(HRFTagProperties::textFromValue(value, HRFRowForKey(key).type),
                  QString::fromUtf16(text));
    }
}
