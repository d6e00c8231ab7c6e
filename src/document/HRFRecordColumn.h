#pragma once

#include "store/HRFAttributeDescription.h"

#include <QVariant>

#include <optional>

class HRFManagedObject;
class HRFMetaFile;
class HRFObjectModel;

/// The values of one attribute over the records of a list. Finds its way once, so that reading a
/// value is quick enough for loops over all records.
class HRFRecordColumn
{
public:
    explicit HRFRecordColumn(const HRFAttributeDescription &attribute);
    /// Nothing when there is no attribute at the end of the path.
    static std::optional<HRFRecordColumn> atKeyPath(const HRFObjectModel &model,
                                                    const QString &keyPath);

    const HRFAttributeDescription &attribute() const { return *m_attribute; }
    QVariant value(const HRFMetaFile &file) const;
    /// The value as the user reads it.
    QString text(const HRFMetaFile &file) const;
    /// The same without a copy, for loops: to copy a text that is in no cache takes longer than to
    /// look through it. nullptr where there is no value, or the text is made from it.
    const QString *storedText(const HRFMetaFile &file) const;

private:
    const HRFManagedObject &recordOf(const HRFMetaFile &file) const;

    const HRFAttributeDescription *m_attribute;
    int m_relationship; ///< from the MetaFile record to that with the attribute; -1 for itself
    bool m_isStored; ///< the record of the attribute makes no other value of what it holds
    QString m_transformer; ///< empty when the text is the value
};
