#include "store/HRFMetaFile.h"
#include "store/HRFValueTransformer.h"

using namespace Qt::StringLiterals;

QVariant HRFMetaFile::valueForAttribute(const HRFAttributeDescription &attribute) const
{
    const HRFEntityDescription &owner = *attribute.entity;
    if (owner.name == entity().name)
        return valueForKey(attribute.name);
    const QString &relationship = owner.relationshipNamed(u"parentMetaFile"_s)->inverseName;
    return related(relationship)->valueForKey(attribute.name);
}

QString HRFMetaFile::stringValueForAttribute(const HRFAttributeDescription &attribute) const
{
    const QVariant value = valueForAttribute(attribute);
    const QString transformer = attribute.displayValueTransformerName();
    if (value.typeId() == QMetaType::Bool && transformer.isEmpty())
        return value.toBool() ? u"1"_s : u"0"_s;
    return transformer.isEmpty() ? value.toString() : HRFTransformedValue(transformer, value);
}
