#include "kit/HRFISO8601DateFormatter.h"

#include "kit/HRFDatePattern.h"

namespace {

constexpr int millisecondsPerSecond = 1000;
constexpr int lastPrintableYear = 9999;

/// Takes a text apart from its beginning.
class Scanner
{
public:
    explicit Scanner(QStringView text) : m_rest(text) { }

    bool atEnd() const { return m_rest.isEmpty(); }

    bool skip(char16_t c)
    {
        const bool isNext = m_rest.startsWith(QChar(c));
        if (isNext)
            m_rest = m_rest.sliced(1);
        return isNext;
    }

    /// The number of exactly so many digits; -1, which no field of a date may be, when they are not
    /// all there.
    int number(int digitCount)
    {
        int value = 0;
        for (int i = 0; i < digitCount; ++i) {
            if (!nextIsDigit())
                return -1;
            value = value * 10 + (m_rest.front().unicode() - u'0');
            m_rest = m_rest.sliced(1);
        }
        return value;
    }

    /// Answers whether there was at least one.
    bool skipDigits()
    {
        const bool any = nextIsDigit();
        while (nextIsDigit())
            m_rest = m_rest.sliced(1);
        return any;
    }

private:
    bool nextIsDigit() const
    {
        return !m_rest.isEmpty() && m_rest.front() >= u'0' && m_rest.front() <= u'9';
    }

    QStringView m_rest;
};

/// Hours, minutes and seconds, of which the last ones may be absent; an invalid time when wrong.
QTime readTime(Scanner &scanner)
{
    const int hour = scanner.number(2);
    if (!scanner.skip(u':'))
        return {hour, 0};
    const int minute = scanner.number(2);
    if (!scanner.skip(u':'))
        return {hour, minute};
    const int second = scanner.number(2);
    const bool hasFraction = scanner.skip(u'.') || scanner.skip(u',');
    if (hasFraction && !scanner.skipDigits())
        return {};
    return {hour, minute, second};
}

/// Seconds east of UTC; nothing when what follows is no zone.
std::optional<int> readZone(Scanner &scanner)
{
    if (scanner.atEnd() || scanner.skip(u'Z'))
        return 0;
    const bool isWest = scanner.skip(u'-');
    if (!isWest && !scanner.skip(u'+'))
        return std::nullopt;
    const int hours = scanner.number(2);
    const bool hasMinutes = scanner.skip(u':') || !scanner.atEnd();
    const QTime offset(hours, hasMinutes ? scanner.number(2) : 0);
    if (!offset.isValid())
        return std::nullopt;
    const int seconds = offset.msecsSinceStartOfDay() / millisecondsPerSecond;
    return isWest ? -seconds : seconds;
}

std::optional<QDateTime> readMoment(Scanner &scanner)
{
    const int year = scanner.number(4);
    const bool hasMonth = scanner.skip(u'-');
    const int month = hasMonth ? scanner.number(2) : 1;
    const bool hasDay = hasMonth && scanner.skip(u'-');
    const int day = hasDay ? scanner.number(2) : 1;
    const bool hasTime = hasDay && scanner.skip(u'T');
    const QTime time = hasTime ? readTime(scanner) : QTime(0, 0);
    const auto zone = hasTime ? readZone(scanner) : 0;
    const QDate date(year, month, day);
    if (!scanner.atEnd() || year < 1 || !date.isValid() || !time.isValid() || !zone)
        return std::nullopt;
    return QDateTime(date, time, Qt::UTC).addSecs(-*zone);
}

/// Only years of four digits can be printed again.
std::optional<QDateTime> withinPrintableYears(const std::optional<QDateTime> &date)
{
    const int year = date ? date->date().year() : 0;
    return year > 0 && year <= lastPrintableYear ? date : std::nullopt;
}

} // namespace

const HRFISO8601DateFormatter &HRFISO8601DateFormatter::shared()
{
    static const HRFISO8601DateFormatter formatter;
    return formatter;
}

HRFISO8601DateFormatter HRFISO8601DateFormatter::withDateFormat(const QString &pattern) const
{
    HRFISO8601DateFormatter copy = *this;
    copy.m_pattern = pattern;
    return copy;
}

QString HRFISO8601DateFormatter::stringFromDate(const QDateTime &date) const
{
    return date.toUTC().toString(Qt::ISODate);
}

std::optional<QDateTime> HRFISO8601DateFormatter::dateFromString(const QString &text) const
{
    if (m_pattern)
        return withinPrintableYears(dateFromPattern(*m_pattern, text));
    Scanner scanner(text);
    return withinPrintableYears(readMoment(scanner));
}
