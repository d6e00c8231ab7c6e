#pragma once

#include "tags/HRFTagProperties.h"

#include <utility>

/// Adds a second tag to an engine: a property is read from the first tag that says something, and
/// written to both.
///
/// @tparam Self the engine class itself. It offers secondValueForKey(key) and
///         setSecondValueForKey(value, key) for its second tag, both of which ignore keys that the
///         tag has no field for, and secondTagVersion(), empty when the file has no such tag. When
///         the second tag holds texts, it offers secondStringForKey(key) and
///         setSecondStringForKey(value, key), too.
/// @tparam First the engine class of the first tag.
template <class Self, class First> class HRFTagUnion : public First
{
public:
    HRFText stringForKey(HRFTagKey key) const override
    {
        const auto guard = this->lock();
        HRFText text = First::stringForKey(key);
        if (text && !text->isEmpty())
            return text;
        return self().Self::secondStringForKey(key);
    }

    void setStringForKey(const HRFText &value, HRFTagKey key) override
    {
        const auto guard = this->lock();
        First::setStringForKey(value, key);
        self().Self::setSecondStringForKey(value, key);
    }

    HRFText secondStringForKey(HRFTagKey key) const
    {
        return HRFTagProperties::textFromValue(self().Self::secondValueForKey(key),
                                               HRFRowForKey(key).type);
    }

    void setSecondStringForKey(const HRFText &value, HRFTagKey key)
    {
        self().Self::setSecondValueForKey(
            HRFTagProperties::valueFromText(value, HRFRowForKey(key).type), key);
    }

protected:
    using First::First;

    QVariant firstValueForKey(HRFTagKey key) const { return First::readValue(key); }

    QVariant readValue(HRFTagKey key) const override
    {
        const QVariant value = firstValueForKey(key);
        if (key == HRFTagKey::tagVersion)
            return joinedVersions(value.toString(), self().Self::secondTagVersion());
        return HRFTagValue::isNothing(value) ? self().Self::secondValueForKey(key) : value;
    }

    void writeValue(const QVariant &value, HRFTagKey key) override
    {
        First::writeValue(value, key);
        self().Self::setSecondValueForKey(value, key);
    }

private:
    static QVariant joinedVersions(const QString &first, const QString &second)
    {
        if (second.isEmpty())
            return first.isEmpty() ? QVariant() : QVariant(first);
        return first.isEmpty() ? second : first + QStringLiteral(", ") + second;
    }

    const Self &self() const { return static_cast<const Self &>(*this); }
    Self &self() { return static_cast<Self &>(*this); }
};
