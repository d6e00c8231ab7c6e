#include "conversions/HRFRecordValues.h"

#include "store/HRFMetaFile.h"
#include "store/HRFSystemFile.h"

using namespace Qt::StringLiterals;

HRFRecordValues::HRFRecordValues(const HRFMetaFile &file)
{
    for (std::size_t part = 0; part < m_parts.size(); ++part)
        m_parts[part] = file.related(file.entity().relationships[part].index)->values();
    // The one value that a record works out from the others.
    static const HRFKeyPath folder = *HRFKeyPath::find(u"fileInfo.filePath"_s);
    m_parts[folder.part].setText(folder.attribute->index, file.fileInfo().filePath());
}

QVariant HRFRecordValues::valueForKeyPath(const QString &keyPath) const
{
    const HRFKeyPath *path = HRFKeyPath::find(keyPath);
    return path ? m_parts[path->part].value(path->attribute->index) : QVariant();
}
