#pragma once

#include <QString>
#include <QVariant>

#include <vector>

/// One column that records are sorted by.
struct HRFSortDescriptor
{
    /// The way from a MetaFile record to the value: "tags.title".
    QString keyPath{};
    bool ascending = true;

    bool operator==(const HRFSortDescriptor &) const = default;
};

using HRFSortDescriptors = std::vector<HRFSortDescriptor>;

/// Sort descriptors as a setting: CBOR in Base64, since a settings file holds texts.
QString HRFArchivedSortDescriptors(const HRFSortDescriptors &descriptors);
/// Reads them back; empty for anything else.
HRFSortDescriptors HRFUnarchivedSortDescriptors(const QVariant &archive);
