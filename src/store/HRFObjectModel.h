#pragma once

#include "kit/HRFError.h"
#include "store/HRFAttributeDescription.h"

#include <QHash>
#include <QString>

#include <memory>
#include <vector>

class HRFObjectModel;

/// A to-one relationship between two entities.
struct HRFRelationshipDescription
{
    QString name{};
    QString destinationName{};
    const HRFEntityDescription *destination = nullptr;
    /// Name of the relationship back.
    QString inverseName{};
    /// Deleting an object deletes what it is related to here.
    bool cascades = false;
    /// Its place among the properties of the entity.
    int index = 0;
};

/// One kind of object: its attributes, then its relationships. Together they are its properties,
/// numbered from 0; there are at most 64.
struct HRFEntityDescription
{
    QString name{};
    std::vector<HRFAttributeDescription> attributes{};
    std::vector<HRFRelationshipDescription> relationships{};
    const HRFObjectModel *model = nullptr;
    /// Its place in the model.
    int index = 0;

    /// nullptr when there is none with the name.
    const HRFAttributeDescription *attributeNamed(const QString &attributeName) const;
    const HRFRelationshipDescription *relationshipNamed(const QString &relationshipName) const;
    int propertyCount() const { return int(attributes.size() + relationships.size()); }
    /// The number of the property with the name; -1 when there is none.
    int propertyIndex(const QString &propertyName) const;
    const QString &propertyName(int index) const;
    bool isRelationship(int property) const { return property >= int(attributes.size()); }
    /// What the user calls an attribute: the model's localization dictionary under
    /// "Property/NAME/Entity/ENTITY", then under "Property/NAME", then the name itself.
    QString localizedNameForPropertyKey(const QString &attributeName) const;

private:
    friend class HRFObjectModel;
    QHash<QString, int> m_indexByName{};
};

/// The entities of a store, read from a JSON resource. Does not change once it is loaded.
class HRFObjectModel
{
public:
    HRFObjectModel(const HRFObjectModel &) = delete;
    HRFObjectModel &operator=(const HRFObjectModel &) = delete;

    /// @param path the JSON file: {"entities": [{"name", "attributes": [{"name", "type",
    /// "userInfo"}], "relationships": [{"name", "destination", "inverse", "cascades"}]}],
    /// "localization": {key: text}}
    [[nodiscard]] static HRFResult<std::shared_ptr<const HRFObjectModel>>
    fromFile(const QString &path);
    /// The model in the application's resource with the name, read once; nullptr when there is
    /// none.
    static std::shared_ptr<const HRFObjectModel> named(const QString &name);
    [[nodiscard]] static HRFResult<std::shared_ptr<const HRFObjectModel>>
    fromJSON(const QByteArray &json);

    const std::vector<std::unique_ptr<HRFEntityDescription>> &entities() const
    {
        return m_entities;
    }
    /// nullptr when there is none with the name.
    const HRFEntityDescription *entityNamed(const QString &name) const;
    const QHash<QString, QString> &localizationDictionary() const { return m_localization; }

private:
    HRFObjectModel() = default;

    std::vector<std::unique_ptr<HRFEntityDescription>> m_entities;
    QHash<QString, QString> m_localization;
};
