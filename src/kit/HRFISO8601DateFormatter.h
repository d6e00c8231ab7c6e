#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

/// The timestamp layout of ID3v2.4 (ID3v2.4.0 structure, §4) as a date pattern.
inline constexpr const char16_t *HRFID3TimestampPattern = u"yyyy-MM-ddTHH:mm:ss";

/// Prints and parses ISO 8601 timestamps. Dates are in UTC; a text without a zone is taken as UTC.
class HRFISO8601DateFormatter
{
public:
    /// The formatter without a pattern.
    static const HRFISO8601DateFormatter &shared();

    /// A copy that parses texts of the given pattern in Unicode date pattern syntax (UTS #35),
    /// except that the letter T stands for itself.
    HRFISO8601DateFormatter withDateFormat(const QString &pattern) const;

    /// "yyyy-MM-ddTHH:mm:ssZ", in UTC.
    QString stringFromDate(const QDateTime &date) const;

    /// The moment that the whole text names, in UTC; nothing when it is not of the expected form.
    /// Without a pattern, that form is yyyy, yyyy-MM or yyyy-MM-dd, the last optionally followed by
    /// T, hours, minutes and seconds (also to the hour or minute only, or with a fraction) and a
    /// zone (Z, +hh, +hhmm, +hh:mm). Fractions of seconds are dropped.
    std::optional<QDateTime> dateFromString(const QString &text) const;

private:
    std::optional<QString> m_pattern; ///< absent: ISO 8601
};
