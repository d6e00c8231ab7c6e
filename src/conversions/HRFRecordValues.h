#pragma once

#include "conversions/HRFKeyPath.h"
#include "store/HRFValues.h"

#include <QVariant>

#include <array>

/// The values of a file's record at one moment. It may go to any thread, whatever becomes of the
/// record.
class HRFRecordValues
{
public:
    /// Takes the present values, on the record's thread; texts are shared, not copied.
    HRFRecordValues(const HRFMetaFile &file);

    /// No value for a path that leads nowhere.
    QVariant valueForKeyPath(const QString &keyPath) const;

private:
    std::array<HRFValues, HRFKeyPath::partCount> m_parts;
};
