#pragma once

#include "document/HRFRecordColumn.h"
#include "document/HRFSortDescriptor.h"

#include <QCollator>

#include <vector>

class HRFMetaFile;
class HRFObjectModel;

/// The order that sort descriptors put records in: by their columns one after the other, texts as
/// people expect names (HRFCollation), numbers and dates by their value. What has no value counts
/// as greater than all that has. Records that are equal in all columns stay in the order of their
/// birth.
class HRFRecordOrder
{
public:
    using Records = std::vector<HRFMetaFile *>;

    /// Descriptors with key paths that the model does not have are dropped.
    HRFRecordOrder(const HRFSortDescriptors &descriptors, const HRFObjectModel &model);

    const HRFSortDescriptors &descriptors() const { return m_descriptors; }

    void sort(Records &records) const;
    /// Puts further records into those that are sorted already, and takes little time for few.
    void merge(Records &sorted, Records newcomers) const;

private:
    std::vector<double> keysOf(const Records &records, const HRFRecordColumn &column) const;
    void rankTexts(const Records &records, const HRFRecordColumn &column,
                   std::vector<double> &keys) const;
    bool isBefore(const HRFMetaFile &left, const HRFMetaFile &right) const;
    int compare(const HRFRecordColumn &column, const HRFMetaFile &left,
                const HRFMetaFile &right) const;

    HRFSortDescriptors m_descriptors;
    std::vector<HRFRecordColumn> m_columns; ///< one per descriptor
    QCollator m_collator;
};
