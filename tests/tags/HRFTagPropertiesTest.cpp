#include "tags/HRFTagProperties.h"

#include "kit/HRFAssert.h"

#include <gtest/gtest.h>

#include <map>

using namespace Qt::StringLiterals;
using K = HRFTagKey;

namespace {

/// Keeps every field as text.
class TextProperties : public HRFTagProperties
{
public:
    HRFText stringForKey(K key) const override
    {
        const auto found = texts.find(key);
        return found == texts.end() ? HRFText() : found->second;
    }
    void setStringForKey(const HRFText &value, K key) override
    {
        texts.erase(key);
        if (value)
            texts.emplace(key, *value);
    }

    std::map<K, QString> texts;
};

HRFDate utc(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
}

} // namespace

TEST(HRFTagProperties, ReadsNumbersAndBooleans)
{
    const std::tuple<HRFText, HRFNumber, HRFBoolean> rows[] = {
        {{}, {}, {}},
        {u""_s, 0, false},
        {u"abc"_s, 0, false},
        {u"03"_s, 3, true},
        {u"3/12"_s, 3, true},
        {u" \t7x"_s, 7, true},
        {u"-3"_s, -3, true},
        {u"+4"_s, 4, true},
        {u"- 3"_s, 0, false},
        {u"0.9"_s, 0, false},
        {u"/12"_s, 0, false},
        {u"-"_s, 0, false},
        {u"2147483648"_s, 2147483648, true},
    };
    for (const auto &[text, number, boolean] : rows) {
        EXPECT_EQ(HRFTagProperties::numberForString(text), number) << number.value_or(-1);
        EXPECT_EQ(HRFTagProperties::booleanForString(text), boolean) << number.value_or(-1);
    }
}

TEST(HRFTagProperties, WritesNeitherZeroNorFalse)
{
    TextProperties properties;
    const auto textOf = [&properties](K key, const QVariant &value) {
        properties.texts[key] = u"old"_s;
        properties.setValueForKey(value, key);
        return properties.stringForKey(key);
    };
    const std::tuple<K, QVariant, HRFText> rows[] = {
        {K::bpm, {}, {}},
        {K::bpm, 0, {}},
        {K::bpm, 12, u"12"_s},
        {K::bpm, -3, u"-3"_s},
        {K::bpm, 2147483647, u"2147483647"_s},
        {K::isPodcast, {}, {}},
        {K::isPodcast, false, {}},
        {K::isPodcast, true, u"1"_s},
        {K::title, QVariant::fromValue(nullptr), {}},
        {K::releaseTime, {}, {}},
        {K::releaseTime, QDateTime(QDate(2004, 5, 6), QTime(1, 8, 9), Qt::OffsetFromUTC, 7200),
         u"2004-05-05T23:08:09Z"_s},
    };
    for (const auto &[key, value, text] : rows)
        EXPECT_EQ(textOf(key, value), text) << qPrintable(value.toString());
}

TEST(HRFTagProperties, ReadsDatesAndTheirNearMisses)
{
    const std::pair<const char16_t *, HRFDate> rows[] = {
        {u"2004-05-06T07:08:09Z", utc(2004, 5, 6, 7, 8, 9)},
        {u"2004-05-06T07:08:09+02:00", utc(2004, 5, 6, 5, 8, 9)},
        {u"2004", utc(2004, 1, 1)},
        {u"2004-05", utc(2004, 5, 1)},
        {u"2004-02-29", utc(2004, 2, 29)},
        {u"2004-05-06 07:08:09", utc(2004, 5, 6, 7, 8, 9)},
        {u"2004-05-06 07:08", utc(2004, 5, 6, 7, 8)},
        {u"2004-05-06 07:08:09+0200 or so", utc(2004, 5, 6, 5, 8, 9)},
        {u"2005-02-29", {}},
        {u"20", {}},
        {u"", {}},
        {u"yesterday", {}},
    };
    for (const auto &[text, date] : rows)
        EXPECT_EQ(HRFTagProperties::dateForString(QString::fromUtf16(text)), date)
            << qPrintable(QString::fromUtf16(text));
    EXPECT_FALSE(HRFTagProperties::dateForString({}));
}

TEST(HRFTagProperties, ListsTheNamesInTheirOrder)
{
    const QStringList &names = HRFTagProperties::propertyNames();
    ASSERT_EQ(names.size(), 77);
    const std::pair<int, const char16_t *> rows[] = {
        {1, u"artwork"}, {18, u"lyrics"},      {19, u"title"},     {20, u"language"},
        {46, u"work"},   {50, u"taggingTime"}, {63, u"isPodcast"}, {64, u"frames"},
        {66, u"isVBR"},  {77, u"tagVersion"},
    };
    for (const auto &[number, name] : rows)
        EXPECT_EQ(names[number - 1], QString::fromUtf16(name));
    EXPECT_EQ(&names, &HRFTagProperties::propertyNames());
    EXPECT_EQ(HRFTagKeyForName("trackTotal"), K::trackTotal);
    EXPECT_FALSE(HRFTagKeyForName("date"));
}

TEST(HRFTagProperties, NamesTheSameFieldsAsTheKeys)
{
    TextProperties properties;
    properties.setIsrc(u"b"_s);
    properties.setYear(1987);
    properties.setIsPartOfACompilation(true);
    properties.setTaggingTime(utc(2004, 5, 6));
    properties.setArtwork("bytes");
    EXPECT_EQ(properties.valueForKey(K::isrc), u"b"_s);
    EXPECT_EQ(properties.valueForKey(K::year), QVariant(qlonglong(1987)));
    EXPECT_EQ(properties.valueForKey(K::isPartOfACompilation), QVariant(true));
    EXPECT_EQ(properties.valueForKey(K::taggingTime), QVariant(*utc(2004, 5, 6)));
    EXPECT_EQ(properties.valueForKey(K::artwork), QByteArray("bytes"));
    properties.setValueForKey({}, K::isrc);
    EXPECT_FALSE(properties.isrc());
    EXPECT_EQ(properties.year(), 1987);
    EXPECT_THROW(properties.setValueForKey(1, K::bitRate), HRFAssertionFailure);
}
