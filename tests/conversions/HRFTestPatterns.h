#pragma once

#include "conversions/HRFKeyPath.h"
#include "conversions/HRFPatternString.h"
#include "store/HRFMainContext.h"
#include "store/HRFMetaFile.h"
#include "store/HRFObjectStore.h"
#include "support/HRFTestApplication.h"
#include "support/HRFTestFile.h"

/// The attribute at a key path, which must be there.
inline const HRFAttributeDescription &HRFTestAttribute(const QString &keyPath)
{
    return *HRFKeyPath::find(keyPath)->attribute;
}

/// The pattern that a text describes, with the tags of most use and the matching-only items.
inline HRFPatternElements HRFTestElements(const QString &pattern)
{
    std::vector<HRFPatternItem> items = HRFPatternItem::matchingOnlyItems();
    for (const char *keyPath :
         {"tags.title", "tags.artist", "tags.album", "tags.trackNumber", "tags.trackTotal",
          "tags.discNumber", "tags.year", "tags.comment", "tags.releaseTime", "tags.isPodcast",
          "properties.duration", "fileInfo.fileName", "fileInfo.filePath", "fileInfo.fileSize"})
        items.push_back(
            HRFPatternItem::itemWithAttribute(HRFTestAttribute(QString::fromLatin1(keyPath))));
    return HRFItemsForPatternString(pattern, items);
}

using HRFTestValues = std::vector<std::pair<const char *, QVariant>>;

/// A list with records of its own.
class HRFRecordTest : public HRFApplicationTest
{
protected:
    HRFMetaFile &record(const HRFTestValues &values)
    {
        auto &file = *context.newObject<HRFMetaFile>();
        for (const auto &[keyPath, value] : values)
            HRFKeyPath::find(QString::fromLatin1(keyPath))->setValue(value, file);
        return file;
    }

    HRFMainContext context{HRFObjectModel::named(QStringLiteral("Lirra")),
                           *HRFObjectStore::open(path(QStringLiteral("list.sqlite")),
                                                 HRFObjectModel::named(QStringLiteral("Lirra")),
                                                 HRFObjectStore::Migrates::Yes,
                                                 HRFObjectStore::Durability::Session)};
};
