#include "kit/HRFFileReferenceTable.h"
#include "operations/HRFMetaFile+Operations.h"
#include "operations/HRFStripTagsOperation.h"
#include "store/HRFArtworkProperties.h"
#include "store/HRFAudioProperties.h"
#include "store/HRFFileSnapshot.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"
#include "store/HRFSystemFile.h"
#include "tags/HRFTagEngine.h"

#include <QLoggingCategory>

using namespace Qt::StringLiterals;

namespace {

void readAnew(HRFMetaFile &file, const HRFFileReference &url, const QSet<QString> &newerTags)
{
    const auto engine = HRFTagEngine::initWithURL(url, true);
    if (!engine)
        return qWarning("%s", qUtf8Printable(engine.error().fullText()));
    HRFFileSnapshot snapshot = HRFFileSnapshot::of(**engine);
    for (const QString &name : newerTags) {
        const HRFMetaTags &tags = file.tags();
        if (const HRFAttributeDescription *tag = tags.entity().attributeNamed(name))
            snapshot.tags.setValue(tag->index, tags.value(tag->index));
    }
    file.importValues(snapshot);
}

void takeValues(HRFManagedObject &object, const QHash<QString, QVariant> &values)
{
    for (const auto &[name, value] : values.asKeyValueRange())
        object.setValueForKey(value, name);
}

void takeResults(HRFMetaFile &file, const HRFTagWriteOperation &operation)
{
    takeValues(file, operation.properties());
    takeValues(file.properties(), operation.audioProperties());
    const QHash<QString, QVariant> changedValues = operation.changedValues();
    const auto artwork = changedValues.constFind(u"artwork"_s);
    if (artwork != changedValues.constEnd())
        file.artworkProperties().updateWithBitmapData(artwork->toByteArray());
}

} // namespace

bool HRFReadsFileAnew(const HRFFileOperation &operation)
{
    return dynamic_cast<const HRFStripTagsOperation *>(&operation) != nullptr;
}

void HRFUpdateWithOperation(HRFMetaFile &file, const HRFFileOperation &operation,
                            const QSet<QString> &newerTags)
{
    // Later operations may have moved the file.
    const HRFFileReference url =
        HRFFileReferenceTable::fileForURL(file.fileURL()).value_or(operation.fileURL());
    if (HRFReadsFileAnew(operation))
        return readAnew(file, url, newerTags);
    if (const auto *write = dynamic_cast<const HRFTagWriteOperation *>(&operation))
        takeResults(file, *write);
    file.fileInfo().updateAttributesForItemAtURL(url);
}
