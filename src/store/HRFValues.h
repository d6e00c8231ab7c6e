#pragma once

#include <QVariant>

#include <bit>
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

/// The values of an object by property number. What has no value takes no room.
class HRFValues
{
public:
    /// An invalid QVariant where there is no value.
    const QVariant &value(int property) const;
    void setValue(int property, const QVariant &value);
    HRFPropertySet present() const { return m_present; }
    bool has(int property) const { return m_present & HRFPropertyBit(property); }
    void squeeze() { m_values.shrink_to_fit(); }

private:
    std::size_t place(int property) const
    {
        return std::size_t(std::popcount(m_present & (HRFPropertyBit(property) - 1)));
    }

    HRFPropertySet m_present = 0;
    std::vector<QVariant> m_values; ///< one per bit of m_present, in the same order
};
