#pragma once

#include <QLocale>
#include <QVariant>
#include <unicode/numfmt.h>

#include <memory>

/// Reads decimal numbers as people of a language write them, without signs between groups of
/// digits. May be used from any thread.
class HRFNumberParser
{
public:
    explicit HRFNumberParser(const QLocale &locale);
    /// That of the user's language.
    static const HRFNumberParser &shared();

    /// A qlonglong, or a double where the number is no whole one or too great; no value when the
    /// text is more or less than a finite number.
    QVariant numberFromString(const QString &text) const;

private:
    std::unique_ptr<const icu::NumberFormat> m_format;
};
