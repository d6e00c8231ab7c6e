#include "kit/HRFISO8601DateFormatter.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The date as printed, or "-" when there is none.
std::string parsed(const HRFISO8601DateFormatter &formatter, const QString &text)
{
    const auto date = formatter.dateFromString(text);
    return date ? formatter.stringFromDate(*date).toStdString() : "-";
}

} // namespace

TEST(HRFISO8601DateFormatter, ParsesISO8601)
{
    const std::pair<QString, const char *> cases[] = {
        {u"2004"_s, "2004-01-01T00:00:00Z"},
        {u"2004-02-29"_s, "2004-02-29T00:00:00Z"},
        {u"1500-02-28"_s, "1500-02-28T00:00:00Z"},
        {u"2004-05-06T07"_s, "2004-05-06T07:00:00Z"},
        {u"2004-05-06T07-05"_s, "2004-05-06T12:00:00Z"},
        {u"2004-05-06T07:08+0130"_s, "2004-05-06T05:38:00Z"},
        {u"2004-05-06T07:08:09"_s, "2004-05-06T07:08:09Z"},
        {u"2004-12-31T23:59:59.999Z"_s, "2004-12-31T23:59:59Z"},
        {u"2004-12-31T23:59:59,9-00:01"_s, "2005-01-01T00:00:59Z"},
        {u"9999-12-31T23:59:59Z"_s, "9999-12-31T23:59:59Z"},
        {u"0001-01-01T00:00:00Z"_s, "0001-01-01T00:00:00Z"}};
    for (const auto &[text, date] : cases)
        EXPECT_EQ(parsed(HRFISO8601DateFormatter::shared(), text), date) << qPrintable(text);
    const QString others =
        u"|200|20045|0000|-2004| 2004|2004 |2004-|2004-5|2004-00|2004-13|2004-05-"
        u"|2004-05-00|2003-02-29|20040506|2004-05T07|2004-05-06Z|2004-05-06T"
        u"|2004-05-06 07:08:09|2004-05-06t07:08:09|2004-05-06T7:08:09"
        u"|2004-05-06T24:00:00|2004-05-06T07:60:00|2004-05-06T07:08:60"
        u"|2004-05-06T07:|2004-05-06T07:08:|2004-05-06T07:08:09."
        u"|2004-05-06T07:08.5|2004-05-06T07:08:09Z |2004-05-06T07:08:09+"
        u"|2004-05-06T07+1|2004-05-06T07:08:09+24|2004-05-06T07:08:09+01:60"
        u"|2004-05-06T07:08:09+01:|2004-05-06T07:08:09+01:00Z|٢٠٠٤"
        u"|0001-01-01T00:00+00:01|9999-12-31T23:59-00:01|123-12-31T23:59-01"_s;
    for (const QString &text : others.split(u'|'))
        EXPECT_EQ(parsed(HRFISO8601DateFormatter::shared(), text), "-") << qPrintable(text);
}

TEST(HRFISO8601DateFormatter, ParsesByPattern)
{
    const QString full = QString::fromUtf16(HRFID3TimestampPattern);
    const std::tuple<QString, QString, const char *> cases[] = {
        {full, u"2004-05-06T07:08:09"_s, "2004-05-06T07:08:09Z"},
        {full, u"2004-05-06 07:08:09"_s, "-"},
        {full, u"2004-05-06T24:00:00"_s, "-"},
        {full.left(4), u"2004"_s, "2004-01-01T00:00:00Z"},
        {full.left(4), u"0000"_s, "-"},
        {full.left(4), u"20045"_s, "-"},
        {full.left(8), u"2004-05-"_s, "2004-05-01T00:00:00Z"},
        {full.left(10), u"2003-02-29"_s, "-"},
        {full.left(11), u"2004-05-06T"_s, "2004-05-06T00:00:00Z"},
        {u"HH:mm:ss.SSS"_s, u"01:02:03.999"_s, "1970-01-01T01:02:03Z"},
        {u"yyyy-MM-dd HH:mmZ"_s, u"2004-05-06 01:00+0200"_s, "2004-05-05T23:00:00Z"},
        {u"MMM d, yyyy"_s, u"May 6, 2004"_s, "2004-05-06T00:00:00Z"},
        {u"yyyyTT'xT'''T''MM"_s, u"2004TTxT'T'05"_s, "2004-05-01T00:00:00Z"},
        {u""_s, u"2004"_s, "-"},
        {u"T'y'"_s, u"Ty"_s, "-"},
        {u"bogus"_s, u"2004"_s, "-"},
        {u"yyyy'"_s, u"2004"_s, "-"}};
    for (const auto &[pattern, text, date] : cases) {
        const auto formatter = HRFISO8601DateFormatter::shared().withDateFormat(pattern);
        EXPECT_EQ(parsed(formatter, text), date) << qPrintable(pattern) << ": " << qPrintable(text);
    }
}

TEST(HRFISO8601DateFormatter, PrintsInUTC)
{
    const auto &formatter = HRFISO8601DateFormatter::shared();
    const QDateTime eastern(QDate(2004, 1, 1), QTime(1, 2, 3, 999), Qt::OffsetFromUTC, 7200);
    EXPECT_EQ(formatter.stringFromDate(eastern), u"2003-12-31T23:02:03Z"_s);
    EXPECT_EQ(formatter.stringFromDate({}), u""_s);
}
