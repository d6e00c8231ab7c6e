#include "conversions/HRFKeyPath.h"

#include "kit/HRFAssert.h"
#include "store/HRFMetaFile.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace {

QHash<QString, HRFKeyPath> allPaths()
{
    const HRFEntityDescription &file =
        *HRFObjectModel::named(u"Lirra"_s)->entityNamed(HRFMetaFile::entityName());
    HRFRequire(file.relationships.size() == HRFKeyPath::partCount, "relationships.size");
    QHash<QString, HRFKeyPath> paths;
    for (std::size_t part = 0; part < HRFKeyPath::partCount; ++part)
        for (const auto &attribute : file.relationships[part].destination->attributes)
            paths.insert(attribute.path(), {part, &attribute});
    return paths;
}

} // namespace

const HRFKeyPath *HRFKeyPath::find(const QString &path)
{
    static const QHash<QString, HRFKeyPath> paths = allPaths();
    const auto found = paths.constFind(path);
    return found == paths.cend() ? nullptr : &*found;
}

QVariant HRFKeyPath::value(const HRFMetaFile &file) const
{
    return file.related(file.entity().relationships[part].index)->valueForKey(attribute->name);
}

void HRFKeyPath::setValue(const QVariant &value, HRFMetaFile &file) const
{
    file.related(file.entity().relationships[part].index)->setValueForKey(value, attribute->name);
}
