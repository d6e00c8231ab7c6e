#include "store/HRFValues.h"

QVariant HRFValues::value(int property) const
{
    if (const QString *text = m_texts.find(property))
        return *text;
    if (const Scalar *scalar = m_scalars.find(property))
        return std::visit([](const auto &held) { return QVariant::fromValue(held); }, *scalar);
    return {};
}

void HRFValues::setValue(int property, const QVariant &value)
{
    if (value.typeId() == QMetaType::QString)
        return setText(property, *static_cast<const QString *>(value.constData()));
    m_texts.remove(property);
    if (value.isValid())
        m_scalars.set(property, scalarOf(value));
    else
        m_scalars.remove(property);
}

const QString &HRFValues::text(int property) const
{
    static const QString nothing;
    const QString *text = m_texts.find(property);
    return text ? *text : nothing;
}

void HRFValues::setText(int property, const QString &text)
{
    m_scalars.remove(property);
    m_texts.set(property, text);
}

void HRFValues::squeeze()
{
    m_texts.values.shrink_to_fit();
    m_scalars.values.shrink_to_fit();
}

HRFValues::Scalar HRFValues::scalarOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QDateTime:
        return value.toDateTime();
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Double:
    case QMetaType::Float:
        return value.toDouble();
    default:
        return value.toLongLong();
    }
}
