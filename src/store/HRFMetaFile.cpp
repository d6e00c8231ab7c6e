#include "store/HRFMetaFile.h"

#include "kit/HRFFileReferenceTable.h"
#include "store/HRFArtworkProperties.h"
#include "store/HRFAudioProperties.h"
#include "store/HRFFileSnapshot.h"
#include "store/HRFMainContext.h"
#include "store/HRFMetaTags.h"
#include "store/HRFSystemFile.h"
#include "tags/HRFTagEngine.h"

using namespace Qt::StringLiterals;

namespace {

void setValues(HRFManagedObject &object, const HRFValues &values)
{
    for (const HRFAttributeDescription &attribute : object.entity().attributes)
        object.setValue(attribute.index, values.value(attribute.index));
}

} // namespace

QString HRFMetaFile::entityName()
{
    return u"MetaFile"_s;
}

HRFMetaTags &HRFMetaFile::tags() const
{
    return static_cast<HRFMetaTags &>(*related(u"tags"_s));
}

HRFAudioProperties &HRFMetaFile::properties() const
{
    return static_cast<HRFAudioProperties &>(*related(u"properties"_s));
}

HRFSystemFile &HRFMetaFile::fileInfo() const
{
    return static_cast<HRFSystemFile &>(*related(u"fileInfo"_s));
}

HRFArtworkProperties &HRFMetaFile::artworkProperties() const
{
    return static_cast<HRFArtworkProperties &>(*related(u"artworkProperties"_s));
}

qlonglong HRFMetaFile::sortIndex() const
{
    return valueForKey(u"sortIndex"_s).toLongLong();
}

void HRFMetaFile::setSortIndex(qlonglong index)
{
    setValueForKey(index, u"sortIndex"_s);
}

QString HRFMetaFile::artworkMD5() const
{
    return valueForKey(u"artworkMD5"_s).toString();
}

void HRFMetaFile::setArtworkMD5(const QString &digest)
{
    setValueForKey(digest, u"artworkMD5"_s);
}

std::optional<qlonglong> HRFMetaFile::tagSize() const
{
    return HRFTagValue::as<qlonglong>(valueForKey(u"tagSize"_s));
}

void HRFMetaFile::setTagSize(const QVariant &size)
{
    setValueForKey(size, u"tagSize"_s);
}

QString HRFMetaFile::fileURL() const
{
    return valueForKey(u"fileURL"_s).toString();
}

void HRFMetaFile::setFileURL(const QString &url)
{
    HRFManagedObject::setValueForKey(url, u"fileURL"_s);
    if (const auto file = HRFFileReferenceTable::fileForURL(url))
        fileInfo().setFileName(file->displayName());
}

std::optional<HRFFileReference> HRFMetaFile::url() const
{
    if (!dynamic_cast<HRFMainContext *>(&context()))
        return {};
    return HRFFileReferenceTable::fileForURL(fileURL());
}

std::optional<QString> HRFMetaFile::folder() const
{
    if (!dynamic_cast<HRFMainContext *>(&context()))
        return {};
    return HRFFileReferenceTable::lastKnownFolderForURL(fileURL());
}

void HRFMetaFile::setValueForKey(const QVariant &value, const QString &name)
{
    if (name == u"fileURL"_s)
        setFileURL(value.toString());
    else
        HRFManagedObject::setValueForKey(value, name);
}

void HRFMetaFile::awakeFromInsert()
{
    for (const HRFRelationshipDescription &relationship : entity().relationships)
        relate(relationship.name, *context().newObjectForEntityName(relationship.destinationName));
}

void HRFMetaFile::importValuesFromEngine(const HRFTagEngine *engine)
{
    if (engine)
        importValues(HRFFileSnapshot::of(*engine));
}

void HRFMetaFile::importValues(const HRFFileSnapshot &snapshot)
{
    setTagSize(snapshot.tagSize);
    setValues(tags(), snapshot.tags);
    setValues(properties(), snapshot.properties);
    if (snapshot.facts)
        fileInfo().updateAttributes(*snapshot.facts);
    artworkProperties().update(snapshot.artwork);
}
