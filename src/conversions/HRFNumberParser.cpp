#include "conversions/HRFNumberParser.h"

#include "kit/HRFAssert.h"

#include <unicode/fmtable.h>
#include <unicode/parsepos.h>

#include <cmath>

namespace {

std::unique_ptr<const icu::NumberFormat> formatOf(const QLocale &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::NumberFormat> format(icu::NumberFormat::createInstance(
        icu::Locale(locale.name().toLatin1().constData()), status));
    HRFRequire(U_SUCCESS(status), "numberFormat");
    format->setGroupingUsed(false);
    return format;
}

} // namespace

HRFNumberParser::HRFNumberParser(const QLocale &locale) : m_format(formatOf(locale)) { }

const HRFNumberParser &HRFNumberParser::shared()
{
    static const HRFNumberParser parser{QLocale()};
    return parser;
}

QVariant HRFNumberParser::numberFromString(const QString &text) const
{
    const icu::UnicodeString source(false, text.utf16(), int32_t(text.size()));
    icu::Formattable number;
    icu::ParsePosition position;
    m_format->parse(source, number, position);
    if (position.getIndex() == 0 || position.getIndex() != source.length())
        return {};
    UErrorCode status = U_ZERO_ERROR;
    const double asDouble = number.getDouble(status);
    if (number.getType() != icu::Formattable::kDouble)
        return qlonglong(number.getInt64());
    return U_SUCCESS(status) && std::isfinite(asDouble) ? QVariant(asDouble) : QVariant();
}
