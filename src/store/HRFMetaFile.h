#pragma once

#include "kit/HRFFileReference.h"
#include "store/HRFManagedObject.h"

#include <optional>

class HRFArtworkProperties;
class HRFAudioProperties;
class HRFMetaTags;
class HRFSystemFile;
class HRFTagEngine;
struct HRFFileSnapshot;

/// The record of an audio file in a list. It owns four others, which live and die with it.
class HRFMetaFile : public HRFManagedObject
{
public:
    static QString entityName();
    using HRFManagedObject::HRFManagedObject;

    HRFMetaTags &tags() const;
    HRFAudioProperties &properties() const;
    HRFSystemFile &fileInfo() const;
    HRFArtworkProperties &artworkProperties() const;

    /// Position of the file within the import that added it, from 0.
    qlonglong sortIndex() const;
    void setSortIndex(qlonglong index);
    /// Hexadecimal; empty without artwork.
    QString artworkMD5() const;
    void setArtworkMD5(const QString &digest);
    /// Bytes; nothing when it is not known.
    std::optional<qlonglong> tagSize() const;
    void setTagSize(const QVariant &size);
    /// The file's reference URL (HRFFileReferenceTable), or a path URL.
    QString fileURL() const;
    /// Stores the URL, and the name of the file that it leads to as fileInfo.fileName.
    void setFileURL(const QString &url);
    /// The file at its present path, which is looked up on the disk; nothing when it is not found,
    /// and in private contexts.
    std::optional<HRFFileReference> url() const;
    /// The folder of the last known path, for display; nothing in private contexts.
    std::optional<QString> folder() const;

    void setValueForKey(const QVariant &value, const QString &name) override;
    void awakeFromInsert() override;

    /// Copies all that an engine tells of its file; nothing for nullptr.
    void importValuesFromEngine(const HRFTagEngine *engine);
    /// The same from what an engine told earlier.
    void importValues(const HRFFileSnapshot &snapshot);

    /// The value of an attribute as the user reads it.
    QString stringValueForAttribute(const HRFAttributeDescription &attribute) const;
    /// The value at the key path of an attribute.
    QVariant valueForAttribute(const HRFAttributeDescription &attribute) const;
};
