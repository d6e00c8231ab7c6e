#pragma once

#include "kit/HRFFileReference.h"
#include "store/HRFFileSnapshot.h"
#include "store/HRFManagedObject.h"

class HRFMetaFile;

/// The file-system facts of a file.
///
/// Names are kept with ":" where the user sees "/".
class HRFSystemFile : public HRFManagedObject
{
public:
    static QString entityName();
    using HRFManagedObject::HRFManagedObject;

    HRFMetaFile *parentMetaFile() const;

    QString fileName() const;
    /// Stores the name, and its extension as fileExtension.
    void setFileName(const QString &name);
    QString fileExtension() const;
    /// Gives the name another extension.
    void setFileExtension(const QString &extension);
    /// The folder of the file at its present path; where that is not known, the stored one.
    QString filePath() const;
    /// The name as the user sees it.
    QString displayFileName() const;

    QVariant valueForKey(const QString &name) const override;
    /// Names the undo action when the file name or its extension is set.
    void setValueForKey(const QVariant &value, const QString &name) override;
    QStringList keysForValuesAffecting(const QString &name) const override;

    /// Reads folder, size and dates anew. A file that cannot be examined leaves them as they are.
    void updateAttributesForItemAtURL(const HRFFileReference &file);
    void updateAttributes(const HRFFileFacts &facts);

    /// The name as it is stored: ":" for every "/". Every name is accepted.
    static QString validatedFileName(const QString &proposedName);
};
