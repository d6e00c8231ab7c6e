#pragma once

#include "conversions/HRFKeyPath.h"
#include "store/HRFValues.h"

#include <QVariant>

#include <array>

/// The values of a file's record: those that it has whenever they are asked for, or those that it
/// had at one moment.
class HRFRecordValues
{
public:
    /// The present values, for the record's thread and as long as the record is there.
    HRFRecordValues(const HRFMetaFile &file) : m_record(&file) { }
    /// Values that may go to any thread, whatever becomes of the record. Texts are shared, not
    /// copied. On the record's thread.
    static HRFRecordValues snapshotOf(const HRFMetaFile &file);

    /// No value for a path that leads nowhere.
    QVariant valueForKeyPath(const QString &keyPath) const;

private:
    const HRFMetaFile *m_record; ///< nullptr for those of one moment, which are in m_parts
    std::array<HRFValues, HRFKeyPath::partCount> m_parts{};
};
