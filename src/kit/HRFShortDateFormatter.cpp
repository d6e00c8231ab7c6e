#include "kit/HRFShortDateFormatter.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

/// Two digits would not tell 1924 from 2024.
QString withFullYear(QString format)
{
    return format.contains("yyyy"_L1) ? format : format.replace("yy"_L1, "yyyy"_L1);
}

} // namespace

QString HRFShortDateFormatter::stringFromDate(const QDateTime &date)
{
    const QLocale locale;
    const QDateTime inUTC = date.toUTC();
    if (inUTC.time() == QTime(0, 0))
        return locale.toString(inUTC.date(), withFullYear(locale.dateFormat(QLocale::ShortFormat)));
    return locale.toString(date.toLocalTime(),
                           withFullYear(locale.dateTimeFormat(QLocale::ShortFormat)));
}
