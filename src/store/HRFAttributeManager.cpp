#include "store/HRFAttributeManager.h"

#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<HRFAttributeManager> &sharedInstance()
{
    static std::unique_ptr<HRFAttributeManager> manager;
    return manager;
}

QHash<QString, QStringList> loadArrangedProperties()
{
    QFile file(u":/lirra/ArrangedProperties.json"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The resource ArrangedProperties.json is missing.");
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    QHash<QString, QStringList> names;
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        names.insert(entry.key(), entry->toVariant().toStringList());
    return names;
}

} // namespace

HRFAttributeManager &HRFAttributeManager::sharedManager()
{
    std::unique_ptr<HRFAttributeManager> &manager = sharedInstance();
    if (!manager) {
        HRFRequire(HRFMainThread::isCurrent(), "isMainThread");
        manager.reset(new HRFAttributeManager);
    }
    return *manager;
}

void HRFAttributeManager::releaseSharedManager()
{
    HRFRequire(HRFMainThread::isCurrent(), "isMainThread");
    sharedInstance().reset();
}

HRFAttributeManager::HRFAttributeManager()
    : m_orderedEntityNames{u"MetaTags"_s, u"AudioProperties"_s, u"SystemFile"_s,
                           u"ArtworkProperties"_s}
    , m_defaultAttributeNamesByEntityName(loadArrangedProperties())
{
    openStore();
    m_catalogueModel = managedObjectModel();
    for (const QString &entityName : m_orderedEntityNames) {
        Attributes attributes;
        for (const HRFAttributeDescription &attribute :
             m_catalogueModel->entityNamed(entityName)->attributes) {
            attributes.push_back(&attribute);
            m_attributesByName.insert(attribute.name, &attribute);
        }
        m_attributesByEntityName.insert(
            entityName,
            sorted(std::move(attributes), m_defaultAttributeNamesByEntityName.value(entityName)));
    }
}

HRFAttributeManager::Attributes HRFAttributeManager::sorted(Attributes attributes,
                                                            const QStringList &names)
{
    // Missing names have the place -1, which is the largest as an unsigned number.
    std::ranges::stable_sort(attributes, {}, [&](const HRFAttributeDescription *attribute) {
        return std::size_t(names.indexOf(attribute->name));
    });
    return attributes;
}

QString HRFAttributeManager::modelName() const
{
    return u"Lirra"_s;
}

QString HRFAttributeManager::databaseName() const
{
    return u"lirrabank.sqlite"_s;
}

HRFAttributeManager::Attributes HRFAttributeManager::tagAttributes() const
{
    return m_attributesByEntityName.value(u"MetaTags"_s);
}

HRFAttributeManager::Attributes HRFAttributeManager::audioPropertiesAttributes() const
{
    return m_attributesByEntityName.value(u"AudioProperties"_s);
}

HRFAttributeManager::Attributes HRFAttributeManager::fileInfoAttributes() const
{
    return m_attributesByEntityName.value(u"SystemFile"_s);
}

HRFAttributeManager::Attributes HRFAttributeManager::artworkInfoAttributes() const
{
    return m_attributesByEntityName.value(u"ArtworkProperties"_s);
}

const HRFAttributeDescription &HRFAttributeManager::artist()
{
    return *sharedManager().attributeNamed(u"artist"_s);
}

const HRFAttributeDescription &HRFAttributeManager::album()
{
    return *sharedManager().attributeNamed(u"album"_s);
}

const QHash<QString, QString> &HRFAttributeManager::localizationDictionary() const
{
    return m_catalogueModel->localizationDictionary();
}
