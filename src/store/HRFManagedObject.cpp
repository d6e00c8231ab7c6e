#include "store/HRFManagedObject.h"

#include "kit/HRFAssert.h"
#include "store/HRFObjectContext.h"
#include "tags/HRFTagValue.h"

HRFManagedObject::HRFManagedObject(HRFObjectContext &context, const HRFEntityDescription &entity,
                                   HRFObjectID objectID, HRFValues values)
    : m_context(&context), m_entity(&entity), m_objectID(objectID), m_values(std::move(values))
{
}

QVariant HRFManagedObject::valueForKey(const QString &name) const
{
    const HRFAttributeDescription *attribute = m_entity->attributeNamed(name);
    HRFRequire(attribute, "hasAttribute");
    return m_values.value(attribute->index);
}

void HRFManagedObject::setValueForKey(const QVariant &value, const QString &name)
{
    const HRFAttributeDescription *attribute = m_entity->attributeNamed(name);
    HRFRequire(attribute, "hasAttribute");
    setValue(attribute->index, value);
}

void HRFManagedObject::setValue(int property, const QVariant &value)
{
    const QVariant newValue = HRFTagValue::isNothing(value) ? QVariant() : value;
    if (m_values.value(property) == newValue)
        return;
    m_context->setValue(*this, property, newValue);
}

HRFManagedObject *HRFManagedObject::related(int relationship) const
{
    const QVariant objectID = m_values.value(relationship);
    return objectID.isValid() ? m_context->object(objectID.toLongLong()) : nullptr;
}

HRFManagedObject *HRFManagedObject::related(const QString &relationshipName) const
{
    const HRFRelationshipDescription *relationship = m_entity->relationshipNamed(relationshipName);
    HRFRequire(relationship, "hasRelationship");
    return related(relationship->index);
}

void HRFManagedObject::relate(const QString &relationshipName, HRFManagedObject &other)
{
    const HRFRelationshipDescription *relationship = m_entity->relationshipNamed(relationshipName);
    HRFRequire(relationship && relationship->destination == other.m_entity, "hasRelationship");
    const int inverse = other.m_entity->relationshipNamed(relationship->inverseName)->index;
    setValue(relationship->index, other.m_objectID);
    other.setValue(inverse, m_objectID);
}

QStringList HRFManagedObject::keysForValuesAffecting(const QString &) const
{
    return {};
}
