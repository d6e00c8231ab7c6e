#include "app/HRFListColumn.h"

#include "store/HRFAttributeManager.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"
#include "store/HRFSystemFile.h"
#include "store/HRFValueTransformer.h"
#include "tags/HRFTagValue.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Kind = HRFListColumnKind;

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFListColumn", text);
}

Kind kindOf(const HRFAttributeDescription &attribute)
{
    if (attribute.name == "rating"_L1)
        return Kind::Rating;
    if (attribute.isBoolean() && attribute.isEditable())
        return Kind::CheckBox;
    if (attribute.isDate())
        return Kind::Date;
    return attribute.isNumeric() ? Kind::Number : Kind::Text;
}

std::vector<HRFListColumn> makeColumns()
{
    std::vector<HRFListColumn> columns{
        {.name = u"artwork"_s, .title = tr("Artwork"), .kind = Kind::Thumbnail, .values = {}}};
    const HRFAttributeManager &catalogue = HRFAttributeManager::sharedManager();
    for (const QString &entity : catalogue.orderedEntityNames()) {
        for (const auto *attribute : catalogue.attributesByEntityName().value(entity)) {
            columns.push_back({.name = attribute->name,
                               .title = attribute->displayName(),
                               .kind = kindOf(*attribute),
                               .values = HRFRecordColumn(*attribute)});
        }
    }
    return columns;
}

std::vector<HRFListColumnGroup> makeGroups()
{
    const HRFAttributeManager &catalogue = HRFAttributeManager::sharedManager();
    const std::pair<QString, HRFAttributeManager::Attributes> parts[] = {
        {tr("Tags"), catalogue.tagAttributes()},
        {tr("File"), catalogue.fileInfoAttributes()},
        {tr("Properties"), catalogue.audioPropertiesAttributes()},
        {tr("Artwork"), catalogue.artworkInfoAttributes()},
    };
    std::vector<HRFListColumnGroup> groups;
    for (const auto &[title, attributes] : parts) {
        HRFListColumnGroup group{title, {}};
        for (const HRFAttributeDescription *attribute : attributes)
            group.columns.push_back(HRFListColumns::indexOf(attribute->name));
        groups.push_back(std::move(group));
    }
    groups.back().columns.insert(groups.back().columns.begin(), 0);
    return groups;
}

} // namespace

const HRFAttributeDescription *HRFListColumn::attribute() const
{
    return values ? &values->attribute() : nullptr;
}

bool HRFListColumn::isEditable() const
{
    return values && values->attribute().isEditable();
}

bool HRFListColumn::isQuantity() const
{
    return kind == HRFListColumnKind::Number;
}

QVariant HRFListColumn::value(const HRFMetaFile &file) const
{
    return values ? values->value(file) : QVariant();
}

QString HRFListColumn::text(const HRFMetaFile &file) const
{
    if (!values)
        return {};
    if (kind == HRFListColumnKind::CheckBox)
        return HRFTransformedValue(HRFValueTransformer::localizedBool, values->value(file));
    return values->text(file);
}

QVariant HRFListColumn::editedValue(const HRFMetaFile &file) const
{
    return attribute()->isFilename() ? text(file) : value(file);
}

bool HRFListColumn::setValue(const HRFMetaFile &file, const QVariant &edited) const
{
    if (HRFTagValue::isNothing(edited) ? !value(file).isValid() : edited == editedValue(file))
        return false;
    if (attribute()->entity->name == HRFMetaTags::entityName())
        file.tags().setValueForKey(edited, name);
    else
        file.fileInfo().setValueForKey(edited, name);
    return true;
}

QString HRFListColumn::undoActionName() const
{
    if (attribute()->isFilename())
        return tr("Rename");
    return attribute()->isFileExtension() ? tr("Change Extension") : tr("Edit %1").arg(title);
}

namespace HRFListColumns {

const std::vector<HRFListColumn> &all()
{
    static const std::vector<HRFListColumn> columns = makeColumns();
    return columns;
}

int indexOf(const QString &name)
{
    const auto found = std::ranges::find(all(), name, &HRFListColumn::name);
    return found == all().end() ? -1 : int(found - all().begin());
}

const std::vector<HRFListColumnGroup> &groups()
{
    static const std::vector<HRFListColumnGroup> theGroups = makeGroups();
    return theGroups;
}

} // namespace HRFListColumns
