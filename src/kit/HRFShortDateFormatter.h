#pragma once

#include <QDateTime>
#include <QString>

/// Prints dates for people, in the short form of the user's language with the year in full.
///
/// A moment is shown in local time. Tags often name a day, a month or a year alone, which are kept
/// as the first moment of it in UTC: midnight in UTC is shown as that day, wherever the user is.
namespace HRFShortDateFormatter {

QString stringFromDate(const QDateTime &date);

} // namespace HRFShortDateFormatter
