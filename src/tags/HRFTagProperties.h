#pragma once

#include "tags/HRFTagKey.h"
#include "tags/HRFTagValue.h"

#include <QStringList>

template <HRFPropertyType> struct HRFPropertyValue;
template <> struct HRFPropertyValue<HRFPropertyType::Data>
{
    using Type = QByteArray;
};
template <> struct HRFPropertyValue<HRFPropertyType::Text>
{
    using Type = QString;
};
template <> struct HRFPropertyValue<HRFPropertyType::Date>
{
    using Type = QDateTime;
};
template <> struct HRFPropertyValue<HRFPropertyType::Number>
{
    using Type = qlonglong;
};
template <> struct HRFPropertyValue<HRFPropertyType::Boolean>
{
    using Type = bool;
};
template <> struct HRFPropertyValue<HRFPropertyType::Frames>
{
    using Type = QList<HRFFrameDescription>;
};

/// The format-neutral vocabulary of tag fields: every property by key and by name, and the
/// conversions between the text that a tag stores and the values that the program works with.
///
/// A subclass overrides the pair stringForKey and setStringForKey, and valueForKey and
/// setValueForKey where its format stores a field as something other than text. The named accessors
/// are the same as the ones by key.
class HRFTagProperties
{
public:
    HRFTagProperties() = default;
    HRFTagProperties(const HRFTagProperties &) = delete;
    HRFTagProperties &operator=(const HRFTagProperties &) = delete;
    virtual ~HRFTagProperties() = default;

    /// The names of all properties, in their fixed order.
    static const QStringList &propertyNames();

    /// The value of a property: QString, qlonglong, QDateTime (UTC), bool, QByteArray or
    /// QList<HRFFrameDescription>, or an invalid QVariant.
    virtual QVariant valueForKey(HRFTagKey key) const;
    /// Sets a tag; no value or the null marker removes it. Only tags can be set (assertion
    /// "isTag").
    virtual void setValueForKey(const QVariant &value, HRFTagKey key);

    /// The stored text of a field.
    virtual HRFText stringForKey(HRFTagKey key) const;
    /// Stores the text of a field; nothing removes the field.
    virtual void setStringForKey(const HRFText &value, HRFTagKey key);

    virtual HRFNumber numberForKey(HRFTagKey key) const;
    virtual void setNumberForKey(const HRFNumber &value, HRFTagKey key);
    virtual HRFBoolean booleanForKey(HRFTagKey key) const;
    /// True is stored as 1; false removes the field.
    virtual void setBooleanForKey(const HRFBoolean &value, HRFTagKey key);
    virtual HRFDate dateForKey(HRFTagKey key) const;
    virtual void setDateForKey(const HRFDate &value, HRFTagKey key);

    /// The leading whole number of the text: "7/12" is 7, a text without one is 0.
    static HRFNumber numberForString(const HRFText &text);
    /// Decimal text of the number taken as a 32-bit integer; nothing for 0.
    static HRFText stringForNumber(const HRFNumber &number);
    static HRFText stringForDate(const HRFDate &date);
    /// Reads ISO 8601, and near misses of ID3v2.4 timestamps: a space for the T, text behind them.
    static HRFDate dateForString(const HRFText &text);
    static HRFBoolean booleanForString(const HRFText &text);
    static HRFText stringForBoolean(const HRFBoolean &value);

    /// What a stored text means for a property of the given type, and the reverse.
    static QVariant valueFromText(const HRFText &text, HRFPropertyType type);
    static HRFText textFromValue(const QVariant &value, HRFPropertyType type);

// title() and setTitle(value), and so on for every tag; bitRate() and so on for the others.
#define X(name, Name, type)                                                                        \
    std::optional<HRFPropertyValue<HRFPropertyType::type>::Type> name() const                      \
    {                                                                                              \
        return HRFTagValue::as<HRFPropertyValue<HRFPropertyType::type>::Type>(                     \
            valueForKey(HRFTagKey::name));                                                         \
    }                                                                                              \
    void set##Name(const std::optional<HRFPropertyValue<HRFPropertyType::type>::Type> &value)      \
    {                                                                                              \
        setValueForKey(HRFTagValue::from(value), HRFTagKey::name);                                 \
    }
    HRF_TAG_PROPERTIES(X)
#undef X
#define X(name, type)                                                                              \
    std::optional<HRFPropertyValue<HRFPropertyType::type>::Type> name() const                      \
    {                                                                                              \
        return HRFTagValue::as<HRFPropertyValue<HRFPropertyType::type>::Type>(                     \
            valueForKey(HRFTagKey::name));                                                         \
    }
    HRF_FILE_PROPERTIES(X)
#undef X

private:
    QByteArray m_artwork;
};
