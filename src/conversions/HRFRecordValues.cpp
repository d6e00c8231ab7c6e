#include "conversions/HRFRecordValues.h"

#include "store/HRFMetaFile.h"
#include "store/HRFSystemFile.h"

using namespace Qt::StringLiterals;

HRFRecordValues HRFRecordValues::snapshotOf(const HRFMetaFile &file)
{
    HRFRecordValues snapshot(file);
    snapshot.m_record = nullptr;
    for (std::size_t part = 0; part < snapshot.m_parts.size(); ++part)
        snapshot.m_parts[part] = file.related(file.entity().relationships[part].index)->values();
    // The one value that a record works out from others.
    static const HRFKeyPath folder = *HRFKeyPath::find(u"fileInfo.filePath"_s);
    snapshot.m_parts[folder.part].setText(folder.attribute->index, file.fileInfo().filePath());
    return snapshot;
}

QVariant HRFRecordValues::valueForKeyPath(const QString &keyPath) const
{
    const HRFKeyPath *path = HRFKeyPath::find(keyPath);
    if (!path)
        return {};
    return m_record ? path->value(*m_record) : m_parts[path->part].value(path->attribute->index);
}
