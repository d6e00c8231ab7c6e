#include "store/HRFObjectContext.h"

#include "kit/HRFAssert.h"
#include "store/HRFArtworkProperties.h"
#include "store/HRFAudioProperties.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"
#include "store/HRFSystemFile.h"

#include <algorithm>

namespace {

using Factory = std::unique_ptr<HRFManagedObject> (*)(HRFObjectContext &,
                                                      const HRFEntityDescription &, HRFObjectID,
                                                      HRFValues);

template <class T>
std::unique_ptr<HRFManagedObject> make(HRFObjectContext &context,
                                       const HRFEntityDescription &entity, HRFObjectID objectID,
                                       HRFValues values)
{
    return std::make_unique<T>(context, entity, objectID, std::move(values));
}

/// The classes of the entities that have one of their own.
Factory factoryForEntity(const QString &name)
{
    static const QHash<QString, Factory> factories = {
        {HRFMetaFile::entityName(), &make<HRFMetaFile>},
        {HRFMetaTags::entityName(), &make<HRFMetaTags>},
        {HRFAudioProperties::entityName(), &make<HRFAudioProperties>},
        {HRFSystemFile::entityName(), &make<HRFSystemFile>},
        {HRFArtworkProperties::entityName(), &make<HRFArtworkProperties>},
    };
    return factories.value(name, &make<HRFManagedObject>);
}

} // namespace

bool HRFObjectChange::affects(const QString &key) const
{
    const auto hasChanged = [this](const QString &name) {
        const int property = object->entity().propertyIndex(name);
        return property >= 0 && (properties & HRFPropertyBit(property));
    };
    const QStringList sources = object->keysForValuesAffecting(key);
    return hasChanged(key) || std::ranges::any_of(sources, hasChanged);
}

QHash<QString, QVariant> HRFObjectChange::changedValues() const
{
    QHash<QString, QVariant> values;
    HRFForEachProperty(properties, [&](int property) {
        if (object->entity().isRelationship(property))
            return;
        const QVariant value = object->value(property);
        values.insert(object->entity().propertyName(property),
                      value.isValid() ? value : QVariant::fromValue(nullptr));
    });
    return values;
}

HRFObjectContext::HRFObjectContext(std::shared_ptr<const HRFObjectModel> model)
    : m_model(std::move(model))
{
}

std::unique_ptr<HRFManagedObject> HRFObjectContext::makeObject(const HRFEntityDescription &entity,
                                                               HRFObjectID objectID,
                                                               HRFValues values)
{
    return factoryForEntity(entity.name)(*this, entity, objectID, std::move(values));
}

const HRFEntityDescription &HRFObjectContext::entityNamed(const QString &name) const
{
    const HRFEntityDescription *entity = m_model->entityNamed(name);
    HRFRequire(entity, "entity");
    return *entity;
}

HRFManagedObject *HRFObjectContext::newObjectForEntityName(const QString &entityName)
{
    HRFManagedObject &object = insert(entityNamed(entityName));
    object.awakeFromInsert();
    return &object;
}

void HRFObjectContext::deleteObject(HRFManagedObject &object)
{
    std::vector<HRFManagedObject *> parts;
    for (const HRFRelationshipDescription &relationship : object.entity().relationships)
        if (HRFManagedObject *part =
                relationship.cascades ? object.related(relationship.index) : nullptr)
            parts.push_back(part);
    remove(object); // first, so that other threads never find it without its parts
    for (HRFManagedObject *part : parts)
        deleteObject(*part);
}

void HRFObjectContext::deleteObjectsForEntityName(const QString &entityName)
{
    for (HRFManagedObject *object : fetch(entityName))
        deleteObject(*object);
}
