#include "store/HRFValues.h"

const QVariant &HRFValues::value(int property) const
{
    static const QVariant nothing;
    return has(property) ? m_values[place(property)] : nothing;
}

void HRFValues::setValue(int property, const QVariant &value)
{
    const auto position = m_values.begin() + std::ptrdiff_t(place(property));
    if (value.isValid()) {
        if (has(property))
            *position = value;
        else
            m_values.insert(position, value);
        m_present |= HRFPropertyBit(property);
    } else if (has(property)) {
        m_values.erase(position);
        m_present &= ~HRFPropertyBit(property);
    }
}
