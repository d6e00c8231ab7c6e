#include "document/HRFRecordColumn.h"

#include "store/HRFMetaFile.h"
#include "store/HRFObjectModel.h"
#include "store/HRFValueTransformer.h"

using namespace Qt::StringLiterals;

namespace {

int relationshipTo(const HRFEntityDescription &entity)
{
    const HRFRelationshipDescription *back = entity.relationshipNamed(u"parentMetaFile"_s);
    return back ? back->destination->relationshipNamed(back->inverseName)->index : -1;
}

QString transformerOf(const HRFAttributeDescription &attribute)
{
    const QString name = attribute.displayValueTransformerName();
    return name == HRFValueTransformer::metadataString ? QString() : name;
}

} // namespace

HRFRecordColumn::HRFRecordColumn(const HRFAttributeDescription &attribute)
    : m_attribute(&attribute)
    , m_relationship(relationshipTo(*attribute.entity))
    , m_isStored(!attribute.isFilePath())
    , m_transformer(transformerOf(attribute))
{
}

std::optional<HRFRecordColumn> HRFRecordColumn::atKeyPath(const HRFObjectModel &model,
                                                          const QString &keyPath)
{
    const HRFEntityDescription *entity = model.entityNamed(HRFMetaFile::entityName());
    const qsizetype dot = keyPath.indexOf(u'.');
    if (dot >= 0) {
        const HRFRelationshipDescription *part = entity->relationshipNamed(keyPath.left(dot));
        entity = part ? part->destination : nullptr;
    }
    const HRFAttributeDescription *attribute =
        entity ? entity->attributeNamed(keyPath.mid(dot + 1)) : nullptr;
    return attribute ? std::optional(HRFRecordColumn(*attribute)) : std::nullopt;
}

const HRFManagedObject &HRFRecordColumn::recordOf(const HRFMetaFile &file) const
{
    const HRFManagedObject *record = m_relationship < 0 ? &file : file.related(m_relationship);
    return *record;
}

QVariant HRFRecordColumn::value(const HRFMetaFile &file) const
{
    const HRFManagedObject &record = recordOf(file);
    return m_isStored ? record.value(m_attribute->index) : record.valueForKey(m_attribute->name);
}

QString HRFRecordColumn::text(const HRFMetaFile &file) const
{
    const QVariant present = value(file);
    return m_transformer.isEmpty() ? present.toString()
                                   : HRFTransformedValue(m_transformer, present);
}

const QString *HRFRecordColumn::storedText(const HRFMetaFile &file) const
{
    const bool isName = m_attribute->isFilename();
    if (!m_isStored || !(m_transformer.isEmpty() || isName))
        return nullptr;
    const HRFValues &values = recordOf(file).values();
    const int property = m_attribute->index;
    if (!(values.texts() & HRFPropertyBit(property)))
        return nullptr;
    const QString &text = values.text(property);
    return isName && text.contains(u':') ? nullptr : &text; // where the user sees "/"
}
