#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QVariant>

#include <optional>

/// One native field of a tag, for display.
struct HRFFrameDescription
{
    QString frameID;
    QString frameData;

    friend bool operator==(const HRFFrameDescription &, const HRFFrameDescription &) = default;
};

using HRFText = std::optional<QString>;
using HRFNumber = std::optional<qlonglong>;
using HRFDate = std::optional<QDateTime>;
using HRFBoolean = std::optional<bool>;
using HRFData = std::optional<QByteArray>;
using HRFFrameList = std::optional<QList<HRFFrameDescription>>;

/// Property values as QVariant: no value is an invalid QVariant; the null marker is
/// QVariant::fromValue(nullptr).
namespace HRFTagValue {

template <class T> QVariant from(const std::optional<T> &value)
{
    return value ? QVariant::fromValue(*value) : QVariant();
}

template <class T> std::optional<T> as(const QVariant &value)
{
    if (!value.isValid() || value.isNull())
        return {};
    return value.value<T>();
}

/// Whether the value says nothing: no value, the null marker, an empty text or empty data.
inline bool isNothing(const QVariant &value)
{
    if (!value.isValid() || value.isNull())
        return true;
    switch (value.typeId()) {
    case QMetaType::QString:
        return static_cast<const QString *>(value.constData())->isEmpty();
    case QMetaType::QByteArray:
        return static_cast<const QByteArray *>(value.constData())->isEmpty();
    default:
        return false;
    }
}

} // namespace HRFTagValue
