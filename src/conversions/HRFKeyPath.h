#pragma once

#include <QVariant>

#include <cstddef>

class HRFMetaFile;
struct HRFAttributeDescription;

/// The way from a file's record to an attribute of one of its parts: "tags.title".
struct HRFKeyPath
{
    /// Place of the part among the relationships of the record.
    std::size_t part;
    const HRFAttributeDescription *attribute;

    static constexpr std::size_t partCount = 4;

    /// nullptr when the path leads nowhere. From any thread.
    static const HRFKeyPath *find(const QString &path);

    /// The value there, on the record's thread.
    QVariant value(const HRFMetaFile &file) const;
    void setValue(const QVariant &value, HRFMetaFile &file) const;
};
