#include "conversions/HRFAttributeDescription+Parsing.h"
#include "conversions/HRFConversionError.h"
#include "conversions/HRFNumberParser.h"
#include "kit/HRFISO8601DateFormatter.h"
#include "store/HRFAttributeDescription.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr double twoTo63 = 9223372036854775808.0;

std::unexpected<HRFError> refusal(const char *text)
{
    return std::unexpected(
        HRFConversionError(HRFConversionErrorCode::valueRefused,
                           QCoreApplication::translate("HRFAttributeDescription", text)));
}

double largestValue(HRFAttributeType type)
{
    switch (type) {
    case HRFAttributeType::Integer16:
        return std::numeric_limits<qint16>::max();
    case HRFAttributeType::Integer32:
        return std::numeric_limits<qint32>::max();
    case HRFAttributeType::Integer64:
        return twoTo63;
    case HRFAttributeType::Double:
        return std::numeric_limits<double>::max();
    case HRFAttributeType::Float:
        return double(std::numeric_limits<float>::max());
    default:
        return 0;
    }
}

bool isInteger(HRFAttributeType type)
{
    return type == HRFAttributeType::Integer16 || type == HRFAttributeType::Integer32
        || type == HRFAttributeType::Integer64;
}

/// Without its fraction, and not beyond what the type holds.
qlonglong wholeNumber(const QVariant &number)
{
    if (number.typeId() == QMetaType::LongLong)
        return number.toLongLong();
    using Limits = std::numeric_limits<qlonglong>;
    const double value = number.toDouble();
    if (value >= twoTo63)
        return Limits::max();
    return value < -twoTo63 ? Limits::min() : qlonglong(value);
}

HRFResult<QVariant> numberOf(const QString &text, HRFAttributeType type)
{
    const QVariant number = HRFNumberParser::shared().numberFromString(text);
    if (!number.isValid())
        return refusal(QT_TRANSLATE_NOOP("HRFAttributeDescription", "Number could not be parsed"));
    // Compared in single precision: just below the largest 32-bit integer is too big already.
    if (double(number.toFloat()) > largestValue(type))
        return refusal(QT_TRANSLATE_NOOP("HRFAttributeDescription", "Number is too big"));
    return isInteger(type) ? QVariant(wholeNumber(number)) : QVariant(number.toDouble());
}

HRFResult<QVariant> dateOf(const QString &text)
{
    if (const auto date = HRFISO8601DateFormatter::shared().dateFromString(text.trimmed()))
        return QVariant(*date);
    return refusal(QT_TRANSLATE_NOOP("HRFAttributeDescription", "Date could not be parsed"));
}

QVariant booleanOf(const QString &text)
{
    const QString word = text.trimmed().toLower();
    return word == u"yes" || word == u"true" || word.toLongLong() != 0;
}

} // namespace

HRFResult<QVariant> HRFValueOfText(const QString &text, const HRFAttributeDescription &attribute)
{
    if (attribute.isNumeric())
        return numberOf(text, attribute.type);
    if (attribute.isDate())
        return dateOf(text);
    return attribute.isBoolean() ? booleanOf(text) : QVariant(text);
}
