#include "store/HRFAttributeDescription.h"

#include "kit/HRFAssert.h"
#include "store/HRFObjectModel.h"
#include "store/HRFValueTransformer.h"
#include "tags/HRFMapManager.h"
#include "tags/HRFTagKey.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

const QString &transformerKey()
{
    static const QString key = u"displayValueTransformerName"_s;
    return key;
}

bool isTag(const QString &name)
{
    const std::optional<HRFTagKey> key = HRFTagKeyForName(name.toStdString());
    return key && HRFRowForKey(*key).isTag;
}

} // namespace

bool HRFAttributeDescription::isNumeric() const
{
    return !isString() && !isBoolean() && !isDate();
}

bool HRFAttributeDescription::isFilename() const
{
    return name == "fileName"_L1;
}

bool HRFAttributeDescription::isFilePath() const
{
    return name == "filePath"_L1;
}

bool HRFAttributeDescription::isFileExtension() const
{
    return name == "fileExtension"_L1;
}

bool HRFAttributeDescription::isEditable() const
{
    return isFilename() || isFileExtension() || isTag(name);
}

bool HRFAttributeDescription::hasCustomTransformer() const
{
    return userInfo.contains(transformerKey());
}

QString HRFAttributeDescription::displayValueTransformerName() const
{
    if (hasCustomTransformer())
        return userInfo.value(transformerKey());
    static const QString stringTransformer = HRFValueTransformer::metadataString;
    static const QString boolTransformer = HRFValueTransformer::localizedBool;
    if (isString())
        return stringTransformer;
    return isBoolean() && !isEditable() ? boolTransformer : QString();
}

QString HRFAttributeDescription::path() const
{
    HRFRequire(entity, "entity");
    const HRFRelationshipDescription *parent = entity->relationshipNamed(u"parentMetaFile"_s);
    return parent ? parent->inverseName + u'.' + name : name;
}

QString HRFAttributeDescription::localizedName() const
{
    HRFRequire(entity, "entity");
    return entity->localizedNameForPropertyKey(name);
}

QString HRFAttributeDescription::localizedDescription() const
{
    const QString text = HRFMapManager::frameDescriptions().value(name);
    return QCoreApplication::translate("HRFFrameDescriptions", text.toUtf8().constData());
}
