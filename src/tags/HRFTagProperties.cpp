#include "tags/HRFTagProperties.h"

#include "kit/HRFAssert.h"
#include "kit/HRFISO8601DateFormatter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

const QStringList &HRFTagProperties::propertyNames()
{
    static const QStringList names = [] {
        QStringList list;
        for (const HRFPropertyRow &row : HRFPropertyRows)
            list.append(QString::fromLatin1(row.name.data(), qsizetype(row.name.size())));
        return list;
    }();
    return names;
}

QVariant HRFTagProperties::valueForKey(HRFTagKey key) const
{
    switch (HRFRowForKey(key).type) {
    case HRFPropertyType::Text:
        return HRFTagValue::from(stringForKey(key));
    case HRFPropertyType::Number:
        return HRFTagValue::from(numberForKey(key));
    case HRFPropertyType::Boolean:
        return HRFTagValue::from(booleanForKey(key));
    case HRFPropertyType::Date:
        return HRFTagValue::from(dateForKey(key));
    case HRFPropertyType::Data:
        return m_artwork.isEmpty() ? QVariant() : QVariant(m_artwork);
    case HRFPropertyType::Frames:
        return {};
    }
    return {};
}

void HRFTagProperties::setValueForKey(const QVariant &value, HRFTagKey key)
{
    HRFRequire(HRFRowForKey(key).isTag, "isTag");
    switch (HRFRowForKey(key).type) {
    case HRFPropertyType::Text:
        return setStringForKey(HRFTagValue::as<QString>(value), key);
    case HRFPropertyType::Number:
        return setNumberForKey(HRFTagValue::as<qlonglong>(value), key);
    case HRFPropertyType::Boolean:
        return setBooleanForKey(HRFTagValue::as<bool>(value), key);
    case HRFPropertyType::Date:
        return setDateForKey(HRFTagValue::as<QDateTime>(value), key);
    case HRFPropertyType::Data:
        m_artwork = HRFTagValue::as<QByteArray>(value).value_or(QByteArray());
        return;
    case HRFPropertyType::Frames:
        return;
    }
}

HRFText HRFTagProperties::stringForKey(HRFTagKey) const
{
    return {};
}

void HRFTagProperties::setStringForKey(const HRFText &, HRFTagKey) { }

HRFNumber HRFTagProperties::numberForKey(HRFTagKey key) const
{
    return numberForString(stringForKey(key));
}

void HRFTagProperties::setNumberForKey(const HRFNumber &value, HRFTagKey key)
{
    setStringForKey(stringForNumber(value), key);
}

HRFBoolean HRFTagProperties::booleanForKey(HRFTagKey key) const
{
    return booleanForString(stringForKey(key));
}

void HRFTagProperties::setBooleanForKey(const HRFBoolean &value, HRFTagKey key)
{
    setStringForKey(stringForBoolean(value), key);
}

HRFDate HRFTagProperties::dateForKey(HRFTagKey key) const
{
    return dateForString(stringForKey(key));
}

void HRFTagProperties::setDateForKey(const HRFDate &value, HRFTagKey key)
{
    setStringForKey(stringForDate(value), key);
}

HRFNumber HRFTagProperties::numberForString(const HRFText &text)
{
    if (!text)
        return {};
    const QStringView view = QStringView(*text).trimmed();
    qsizetype end = view.startsWith(u'-') || view.startsWith(u'+') ? 1 : 0;
    while (end < view.size() && view[end] >= u'0' && view[end] <= u'9')
        ++end;
    bool fits = false;
    const qlonglong number = view.left(end).toLongLong(&fits);
    return fits ? number : 0;
}

HRFText HRFTagProperties::stringForNumber(const HRFNumber &number)
{
    const qint32 value = qint32(number.value_or(0));
    return value == 0 ? HRFText() : QString::number(value);
}

HRFBoolean HRFTagProperties::booleanForString(const HRFText &text)
{
    const HRFNumber number = numberForString(text);
    return number ? HRFBoolean(*number != 0) : HRFBoolean();
}

HRFText HRFTagProperties::stringForBoolean(const HRFBoolean &value)
{
    return value.value_or(false) ? HRFText(u"1"_s) : HRFText();
}

HRFText HRFTagProperties::stringForDate(const HRFDate &date)
{
    return date ? HRFText(HRFISO8601DateFormatter::shared().stringFromDate(*date)) : HRFText();
}

HRFDate HRFTagProperties::dateForString(const HRFText &text)
{
    if (!text)
        return {};
    const HRFISO8601DateFormatter &formatter = HRFISO8601DateFormatter::shared();
    if (HRFDate date = formatter.dateFromString(*text))
        return date;

    constexpr qsizetype shortestPattern = 8;
    QString pattern = QString::fromUtf16(HRFID3TimestampPattern) + u"ZZZZZ"_s;
    if (!text->contains(u'T'))
        pattern.replace(u'T', u' ');
    pattern.truncate(std::max(text->size(), shortestPattern));
    return formatter.withDateFormat(pattern).dateFromString(text->left(pattern.size()));
}

QVariant HRFTagProperties::valueFromText(const HRFText &text, HRFPropertyType type)
{
    switch (type) {
    case HRFPropertyType::Text:
        return HRFTagValue::from(text);
    case HRFPropertyType::Number:
        return HRFTagValue::from(numberForString(text));
    case HRFPropertyType::Boolean:
        return HRFTagValue::from(booleanForString(text));
    case HRFPropertyType::Date:
        return HRFTagValue::from(dateForString(text));
    default:
        return {};
    }
}

HRFText HRFTagProperties::textFromValue(const QVariant &value, HRFPropertyType type)
{
    switch (type) {
    case HRFPropertyType::Text:
        return HRFTagValue::as<QString>(value);
    case HRFPropertyType::Number:
        return stringForNumber(HRFTagValue::as<qlonglong>(value));
    case HRFPropertyType::Boolean:
        return stringForBoolean(HRFTagValue::as<bool>(value));
    case HRFPropertyType::Date:
        return stringForDate(HRFTagValue::as<QDateTime>(value));
    default:
        return {};
    }
}
