#pragma once

#include "store/HRFPersistentStoreManager.h"

#include <QStringList>

#include <vector>

/// The catalogue of the attributes of a file that are shown: the columns of a list, the fields of
/// the editor, the tokens of patterns.
///
/// It is made and released on the main thread and does not change in between; what it tells may be
/// read from any thread.
class HRFAttributeManager : public HRFPersistentStoreManager
{
    Q_OBJECT
public:
    using Attributes = std::vector<const HRFAttributeDescription *>;

    /// Made on the first call.
    static HRFAttributeManager &sharedManager();
    /// Closes its store, as must be done before the data folder goes; the next call makes another.
    /// The descriptions stay: models live as long as the process.
    static void releaseSharedManager();

    QString modelName() const override;
    QString databaseName() const override;

    /// The parts of a file's record, in the order in which they are shown.
    const QStringList &orderedEntityNames() const { return m_orderedEntityNames; }
    /// The names of the attributes in the order in which they are shown.
    const QHash<QString, QStringList> &defaultAttributeNamesByEntityName() const
    {
        return m_defaultAttributeNamesByEntityName;
    }
    const QHash<QString, Attributes> &attributesByEntityName() const
    {
        return m_attributesByEntityName;
    }
    const QHash<QString, const HRFAttributeDescription *> &attributesByName() const
    {
        return m_attributesByName;
    }
    /// nullptr when there is none with the name.
    const HRFAttributeDescription *attributeNamed(const QString &name) const
    {
        return m_attributesByName.value(name);
    }

    Attributes tagAttributes() const;
    Attributes audioPropertiesAttributes() const;
    Attributes fileInfoAttributes() const;
    Attributes artworkInfoAttributes() const;

    static const HRFAttributeDescription &artist();
    static const HRFAttributeDescription &album();

    const QHash<QString, QString> &localizationDictionary() const;

    /// The attributes by the position of their names; those whose names are missing come last, in
    /// the order in which they were.
    static Attributes sorted(Attributes attributes, const QStringList &names);

private:
    HRFAttributeManager();

    const QStringList m_orderedEntityNames;
    const QHash<QString, QStringList> m_defaultAttributeNamesByEntityName;
    QHash<QString, Attributes> m_attributesByEntityName;
    QHash<QString, const HRFAttributeDescription *> m_attributesByName;
    /// Is there even when the store has been reset.
    std::shared_ptr<const HRFObjectModel> m_catalogueModel;
};
