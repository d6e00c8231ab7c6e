#include "store/HRFObjectModel.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <mutex>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostProperties = 64;

struct TypeName
{
    QLatin1StringView name;
    HRFAttributeType type;
};

constexpr TypeName typeNames[] = {
    {"integer16"_L1, HRFAttributeType::Integer16}, {"integer32"_L1, HRFAttributeType::Integer32},
    {"integer64"_L1, HRFAttributeType::Integer64}, {"decimal"_L1, HRFAttributeType::Decimal},
    {"double"_L1, HRFAttributeType::Double},       {"float"_L1, HRFAttributeType::Float},
    {"string"_L1, HRFAttributeType::String},       {"boolean"_L1, HRFAttributeType::Boolean},
    {"date"_L1, HRFAttributeType::Date},
};

std::optional<HRFAttributeType> typeNamed(const QString &name)
{
    for (const TypeName &row : typeNames)
        if (row.name == name)
            return row.type;
    return {};
}

QHash<QString, QString> textsOf(const QJsonObject &object)
{
    QHash<QString, QString> texts;
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        texts.insert(entry.key(), entry->toString());
    return texts;
}

HRFError modelError(const QString &reason)
{
    return {.domain = QString::fromLatin1(HRFLirraErrorDomain), .description = reason};
}

/// What is wrong with the entity; empty when nothing is.
QString readEntity(const QJsonObject &json, HRFEntityDescription &entity)
{
    entity.name = json["name"_L1].toString();
    for (const QJsonValue value : json["attributes"_L1].toArray()) {
        const auto type = typeNamed(value["type"_L1].toString());
        if (!type)
            return u"The attribute “%1” has no known type."_s.arg(value["name"_L1].toString());
        entity.attributes.push_back({.name = value["name"_L1].toString(),
                                     .type = *type,
                                     .userInfo = textsOf(value["userInfo"_L1].toObject()),
                                     .entity = &entity,
                                     .index = entity.propertyCount()});
    }
    for (const QJsonValue value : json["relationships"_L1].toArray())
        entity.relationships.push_back({.name = value["name"_L1].toString(),
                                        .destinationName = value["destination"_L1].toString(),
                                        .inverseName = value["inverse"_L1].toString(),
                                        .cascades = value["cascades"_L1].toBool(),
                                        .index = entity.propertyCount()});
    return entity.propertyCount() <= mostProperties
        ? QString()
        : u"The entity “%1” has more than 64 properties."_s.arg(entity.name);
}

} // namespace

const HRFAttributeDescription *
HRFEntityDescription::attributeNamed(const QString &attributeName) const
{
    const int property = propertyIndex(attributeName);
    return property >= 0 && !isRelationship(property) ? &attributes[std::size_t(property)]
                                                      : nullptr;
}

const HRFRelationshipDescription *
HRFEntityDescription::relationshipNamed(const QString &relationshipName) const
{
    const int property = propertyIndex(relationshipName);
    return property >= 0 && isRelationship(property)
        ? &relationships[std::size_t(property) - attributes.size()]
        : nullptr;
}

int HRFEntityDescription::propertyIndex(const QString &propertyName) const
{
    return m_indexByName.value(propertyName, -1);
}

const QString &HRFEntityDescription::propertyName(int property) const
{
    return isRelationship(property) ? relationships[std::size_t(property) - attributes.size()].name
                                    : attributes[std::size_t(property)].name;
}

QString HRFEntityDescription::localizedNameForPropertyKey(const QString &attributeName) const
{
    const QHash<QString, QString> &names = model->localizationDictionary();
    const QString general = u"Property/%1"_s.arg(attributeName);
    const QString text =
        names.value(u"%1/Entity/%2"_s.arg(general, name), names.value(general, attributeName));
    return QCoreApplication::translate("HRFAttributeNames", text.toUtf8().constData());
}

HRFResult<std::shared_ptr<const HRFObjectModel>> HRFObjectModel::fromFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(modelError(file.errorString()));
    return fromJSON(file.readAll());
}

std::shared_ptr<const HRFObjectModel> HRFObjectModel::named(const QString &name)
{
    static std::mutex lock; // guards the models
    static QHash<QString, std::shared_ptr<const HRFObjectModel>> models;
    const std::lock_guard guard(lock);
    std::shared_ptr<const HRFObjectModel> &model = models[name];
    if (!model)
        if (const auto loaded = fromFile(u":/lirra/%1.json"_s.arg(name)))
            model = *loaded;
    return model;
}

HRFResult<std::shared_ptr<const HRFObjectModel>> HRFObjectModel::fromJSON(const QByteArray &json)
{
    QJsonParseError problem;
    const QJsonObject root = QJsonDocument::fromJson(json, &problem).object();
    if (problem.error != QJsonParseError::NoError)
        return std::unexpected(modelError(problem.errorString()));
    std::shared_ptr<HRFObjectModel> model(new HRFObjectModel);
    model->m_localization = textsOf(root["localization"_L1].toObject());
    for (const QJsonValue value : root["entities"_L1].toArray()) {
        auto entity = std::make_unique<HRFEntityDescription>();
        if (const QString reason = readEntity(value.toObject(), *entity); !reason.isEmpty())
            return std::unexpected(modelError(reason));
        entity->model = model.get();
        entity->index = int(model->m_entities.size());
        for (int property = 0; property < entity->propertyCount(); ++property)
            entity->m_indexByName.insert(entity->propertyName(property), property);
        model->m_entities.push_back(std::move(entity));
    }
    for (const auto &entity : model->m_entities)
        for (HRFRelationshipDescription &relationship : entity->relationships) {
            relationship.destination = model->entityNamed(relationship.destinationName);
            if (!relationship.destination
                || !relationship.destination->relationshipNamed(relationship.inverseName))
                return std::unexpected(
                    modelError(u"The relationship “%1” leads nowhere."_s.arg(relationship.name)));
        }
    return model;
}

const HRFEntityDescription *HRFObjectModel::entityNamed(const QString &name) const
{
    for (const auto &entity : m_entities)
        if (entity->name == name)
            return entity.get();
    return nullptr;
}
