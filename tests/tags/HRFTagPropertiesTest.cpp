#include "tags/HRFTagProperties.h"

#include "kit/HRFAssert.h"
#include "tags/HRFFrameRows.h"
#include "tags/HRFMapManager.h"

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
    // clang-format off
    const std::tuple<HRFText, HRFNumber, HRFBoolean> rows[] = {
        {{}, {}, {}}, {u""_s, 0, false}, {u"abc"_s, 0, false}, {u"03"_s, 3, true},
        {u"3/12"_s, 3, true}, {u" \t7x"_s, 7, true}, {u"-3"_s, -3, true}, {u"+4"_s, 4, true},
        {u"- 3"_s, 0, false}, {u"0.9"_s, 0, false}, {u"/12"_s, 0, false}, {u"-"_s, 0, false},
        {u"2147483648"_s, 2147483648, true}};
    // clang-format on
    for (const auto &[text, number, boolean] : rows) {
        EXPECT_EQ(HRFTagProperties::numberForString(text), number) << number.value_or(-1);
        EXPECT_EQ(HRFTagProperties::booleanForString(text), boolean) << number.value_or(-1);
    }
}

TEST(HRFTagProperties, WritesNeitherZeroNorFalse)
{
    const std::tuple<K, QVariant, HRFText> rows[] = {
        {K::bpm, {}, {}},
        {K::bpm, 0, {}},
        {K::bpm, -3, u"-3"_s},
        {K::bpm, 2147483647, u"2147483647"_s},
        {K::isPodcast, false, {}},
        {K::isPodcast, true, u"1"_s},
        {K::title, QVariant::fromValue(nullptr), {}},
        {K::releaseTime, {}, {}},
        {K::releaseTime, QDateTime(QDate(2004, 5, 6), QTime(1, 8, 9), Qt::OffsetFromUTC, 7200),
         u"2004-05-05T23:08:09Z"_s}};
    TextProperties properties;
    for (const auto &[key, value, text] : rows) {
        properties.texts[key] = u"old"_s;
        properties.setValueForKey(value, key);
        EXPECT_EQ(properties.stringForKey(key), text) << qPrintable(value.toString());
    }
    EXPECT_THROW(properties.setValueForKey(1, K::bitRate), HRFAssertionFailure);
}

TEST(HRFTagProperties, ReadsDatesAndTheirNearMisses)
{
    // clang-format off
    const std::pair<HRFText, HRFDate> rows[] = {
        {u"2004-05-06T07:08:09Z"_s, utc(2004, 5, 6, 7, 8, 9)}, {u"2004"_s, utc(2004, 1, 1)},
        {u"2004-05-06 07:08:09"_s, utc(2004, 5, 6, 7, 8, 9)}, {u"2004-05"_s, utc(2004, 5, 1)},
        {u"2004-05-06 07:08"_s, utc(2004, 5, 6, 7, 8)}, {u"2004-02-29"_s, utc(2004, 2, 29)},
        {u"2004-05-06 07:08:09+0200 or so"_s, utc(2004, 5, 6, 5, 8, 9)},
        {u"2005-02-29"_s, {}}, {u"20"_s, {}}, {u""_s, {}}, {u"yesterday"_s, {}}, {{}, {}}};
    // clang-format on
    for (const auto &[text, date] : rows)
        EXPECT_EQ(HRFTagProperties::dateForString(text), date) << qPrintable(text.value_or(u""_s));
}

TEST(HRFTagProperties, NamesAndDescribesTheFields)
{
    const QStringList &names = HRFTagProperties::propertyNames();
    ASSERT_EQ(names.size(), 77);
    for (const auto &[number, name] : {std::pair(1, u"artwork"_s),
                                       {50, u"taggingTime"_s},
                                       {64, u"frames"_s},
                                       {77, u"tagVersion"_s}})
        EXPECT_EQ(names[number - 1], name);
    for (const HRFFrameRow &row : HRFFrameRows) {
        const QString name = row.key == K::date ? u"date"_s : names.at(qsizetype(row.key));
        EXPECT_FALSE(HRFMapManager::frameDescriptions().value(name).isEmpty()) << qPrintable(name);
    }
    EXPECT_EQ(HRFTagKeyForName("trackTotal"), K::trackTotal);
    EXPECT_FALSE(HRFTagKeyForName("date"));
}
