#pragma once

#include <QDateTime>
#include <QVariant>

#include <bit>
#include <variant>
#include <vector>

/// A set of up to 64 numbered properties.
using HRFPropertySet = quint64;

constexpr HRFPropertySet HRFPropertyBit(int property)
{
    return HRFPropertySet(1) << property;
}

template <class Visit> void HRFForEachProperty(HRFPropertySet set, Visit visit)
{
    for (; set; set &= set - 1)
        visit(std::countr_zero(set));
}

/// The values of an object by property number: texts, whole and other numbers, booleans and dates.
///
/// What has no value takes no room, and the rest no more than it must: a list holds some fifty
/// values for each of its files.
class HRFValues
{
public:
    /// An invalid QVariant where there is no value.
    QVariant value(int property) const;
    void setValue(int property, const QVariant &value);
    HRFPropertySet present() const { return m_texts.present | m_scalars.present; }
    /// The properties whose values are texts.
    HRFPropertySet texts() const { return m_texts.present; }
    /// The text of a property; empty where the value is none.
    const QString &text(int property) const;
    void setText(int property, const QString &text);

    /// Gives back what room is left.
    void squeeze();

private:
    using Scalar = std::variant<qlonglong, double, bool, QDateTime>;

    /// One value per bit, in the order of the bits.
    template <class Value> struct Row
    {
        HRFPropertySet present = 0;
        std::vector<Value> values{};

        std::size_t place(int property) const
        {
            return std::size_t(std::popcount(present & (HRFPropertyBit(property) - 1)));
        }
        const Value *find(int property) const
        {
            return present & HRFPropertyBit(property) ? &values[place(property)] : nullptr;
        }
        void set(int property, Value value)
        {
            const auto position = values.begin() + std::ptrdiff_t(place(property));
            if (present & HRFPropertyBit(property))
                *position = std::move(value);
            else
                values.insert(position, std::move(value));
            present |= HRFPropertyBit(property);
        }
        void remove(int property)
        {
            if (!(present & HRFPropertyBit(property)))
                return;
            values.erase(values.begin() + std::ptrdiff_t(place(property)));
            present &= ~HRFPropertyBit(property);
        }
    };

    static Scalar scalarOf(const QVariant &value);

    Row<QString> m_texts;
    Row<Scalar> m_scalars;
};
