#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

/// The moment in UTC that the whole text names by a pattern in Unicode date pattern syntax (UTS
/// #35) in which the letter T stands for itself; nothing when the text is not of that form, or when
/// the pattern is invalid or has no field. The calendar is the Gregorian one at all times.
std::optional<QDateTime> dateFromPattern(const QString &pattern, const QString &text);
