#include "kit/HRFDatePattern.h"

#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

#include <cmath>
#include <limits>
#include <map>
#include <memory>

namespace {

/// Far enough back to have no Julian dates.
constexpr UDate alwaysGregorian = -std::numeric_limits<UDate>::max();
constexpr std::size_t mostKeptFormats = 32;

icu::UnicodeString toICU(const QString &text)
{
    return {reinterpret_cast<const char16_t *>(text.utf16()), static_cast<int32_t>(text.size())};
}

bool isASCIILetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

/// The pattern with every T in quotes; nothing when it has no field or a quote does not end.
std::optional<QString> patternForICU(const QString &pattern)
{
    QString result;
    bool isQuoted = false; // in the given pattern
    bool isResultQuoted = false;
    bool hasField = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (c == u'\'' && pattern.mid(i + 1, 1) == u'\'') {
            result += u"''";
            ++i;
        } else if (c == u'\'') {
            isQuoted = !isQuoted;
        } else {
            const bool isLiteral = isQuoted || c == u'T';
            if (isLiteral != isResultQuoted)
                result += u'\'';
            isResultQuoted = isLiteral;
            hasField = hasField || (!isLiteral && isASCIILetter(c));
            result += c;
        }
    }
    if (isQuoted || !hasField)
        return std::nullopt;
    return isResultQuoted ? result + u'\'' : result;
}

std::unique_ptr<icu::SimpleDateFormat> makeFormat(const QString &pattern)
{
    const auto adapted = patternForICU(pattern);
    if (!adapted)
        return nullptr;
    const icu::Locale posix("en_US_POSIX");
    UErrorCode status = U_ZERO_ERROR;
    auto calendar =
        std::make_unique<icu::GregorianCalendar>(*icu::TimeZone::getGMT(), posix, status);
    calendar->setGregorianChange(alwaysGregorian, status);
    auto format = std::make_unique<icu::SimpleDateFormat>(toICU(*adapted), posix, status);
    if (U_FAILURE(status))
        return nullptr;
    format->adoptCalendar(calendar.release());
    format->setLenient(false);
    return format;
}

/// Making a format takes many times as long as parsing with it, and one may serve only one thread.
const icu::SimpleDateFormat *formatOfThisThread(const QString &pattern)
{
    thread_local std::map<QString, std::unique_ptr<icu::SimpleDateFormat>> formats;
    const auto found = formats.find(pattern);
    if (found != formats.end())
        return found->second.get();
    if (formats.size() == mostKeptFormats)
        formats.clear();
    return formats.emplace(pattern, makeFormat(pattern)).first->second.get();
}

} // namespace

std::optional<QDateTime> dateFromPattern(const QString &pattern, const QString &text)
{
    const icu::SimpleDateFormat *format = formatOfThisThread(pattern);
    if (!format || text.isEmpty())
        return std::nullopt;
    icu::ParsePosition position(0);
    const UDate milliseconds = format->parse(toICU(text), position);
    if (position.getIndex() != text.size())
        return std::nullopt;
    const auto seconds = static_cast<qint64>(std::floor(milliseconds / U_MILLIS_PER_SECOND));
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}
