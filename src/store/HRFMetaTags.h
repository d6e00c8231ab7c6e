#pragma once

#include "store/HRFManagedObject.h"
#include "tags/HRFTagKey.h"

#include <QHash>

class HRFMetaFile;

/// The tag values of a file; its attributes are called like the tags.
class HRFMetaTags : public HRFManagedObject
{
public:
    static QString entityName();
    using HRFManagedObject::HRFManagedObject;

    HRFMetaFile *parentMetaFile() const;

    QVariant valueForKey(const QString &name) const override;
    QStringList keysForValuesAffecting(const QString &name) const override;

    /// Sets several tags. The null marker is no value; "artwork" sets the artwork facts of the
    /// file.
    void setValuesForKeysWithDictionary(const QHash<QString, QVariant> &values);

    /// Neither the number nor the total has a value.
    bool trackNumberAndTotalAreNil() const;
    bool discNumberAndTotalAreNil() const;
    bool movementNumberAndTotalAreNil() const;
};
