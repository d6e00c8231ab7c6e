#include "store/HRFAttributeManager.h"

#include "store/HRFDataFolder.h"
#include "store/HRFValueTransformer.h"
#include "support/HRFTestApplication.h"
#include "tags/HRFTagKey.h"

#include <QFile>
#include <QSet>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class HRFAttributeManagerTest : public HRFApplicationTest
{
protected:
    HRFAttributeManagerTest() : m_dataFolder(HRFDataFolder::take(path(u"data"_s)).value()) { }
    ~HRFAttributeManagerTest() override { HRFAttributeManager::releaseSharedManager(); }

    static const HRFAttributeDescription &attribute(std::string_view name)
    {
        const auto *found = HRFAttributeManager::sharedManager().attributeNamed(
            QString::fromLatin1(name.data(), qsizetype(name.size())));
        if (!found)
            throw std::out_of_range(std::string(name));
        return *found;
    }

    std::unique_ptr<HRFDataFolder> m_dataFolder;
};

} // namespace

TEST_F(HRFAttributeManagerTest, ListsEveryAttributeOnceInOrder)
{
    const HRFAttributeManager &manager = HRFAttributeManager::sharedManager();
    qsizetype count = 0;
    QSet<QString> shownNames;
    for (const QString &entityName : manager.orderedEntityNames()) {
        QStringList names;
        for (const auto *attribute : manager.attributesByEntityName().value(entityName)) {
            EXPECT_EQ(attribute->entity->name, entityName);
            EXPECT_EQ(manager.attributeNamed(attribute->name), attribute);
            EXPECT_NE(attribute->displayName(), attribute->name);
            names.append(attribute->name);
            shownNames.insert(attribute->displayName());
        }
        EXPECT_EQ(names, manager.defaultAttributeNamesByEntityName().value(entityName));
        count += names.size();
    }
    // No name twice, and none for an attribute that is not there.
    EXPECT_EQ(manager.attributesByName().size(), count);
    EXPECT_EQ(shownNames.size(), count);
    EXPECT_EQ(manager.localizationDictionary().size(), count);
    EXPECT_EQ(manager.tagAttributes().front()->name, u"title"_s);
    EXPECT_EQ(manager.audioPropertiesAttributes().front()->name, u"duration"_s);
    EXPECT_EQ(manager.fileInfoAttributes().front()->name, u"fileName"_s);
    EXPECT_EQ(manager.artworkInfoAttributes().front()->path(), u"artworkProperties.imageType"_s);
    EXPECT_EQ(HRFAttributeManager::artist().path(), u"tags.artist"_s);
    EXPECT_EQ(HRFAttributeManager::album().displayName(), u"Album"_s);
}

TEST_F(HRFAttributeManagerTest, KnowsEveryTagOfTheEngines)
{
    for (const auto &[name, type, isTag] : HRFPropertyRows) {
        if (!isTag || type == HRFPropertyType::Data)
            continue;
        const HRFAttributeDescription &tag = attribute(name);
        EXPECT_TRUE(tag.isEditable()) << name;
        EXPECT_EQ(tag.entity->name, u"MetaTags"_s) << name;
        EXPECT_EQ(tag.isString(), type == HRFPropertyType::Text) << name;
        EXPECT_EQ(tag.isNumeric(), type == HRFPropertyType::Number) << name;
        EXPECT_EQ(tag.isDate(), type == HRFPropertyType::Date) << name;
        EXPECT_EQ(tag.isBoolean(), type == HRFPropertyType::Boolean) << name;
        EXPECT_FALSE(tag.localizedDescription().isEmpty()) << name;
    }
}

TEST_F(HRFAttributeManagerTest, SortsAttributesThatAreNotListedLast)
{
    const auto *title = &attribute("title"), *album = &attribute("album"),
               *year = &attribute("year"), *genre = &attribute("genre");
    EXPECT_EQ(HRFAttributeManager::sorted({year, title, genre, album}, {u"album"_s, u"title"_s}),
              (HRFAttributeManager::Attributes{album, title, year, genre}));
}

TEST_F(HRFAttributeManagerTest, DescribesAttributes)
{
    struct Case
    {
        std::string_view name, path;
        bool isEditable, hasCustomTransformer;
        QLatin1StringView transformer;
    };
    const auto text = HRFValueTransformer::metadataString;
    const Case cases[] = {
        {"title", "tags.title", true, false, text},
        {"year", "tags.year", true, false, {}},
        {"isPodcast", "tags.isPodcast", true, false, {}},
        {"releaseTime", "tags.releaseTime", true, true, "HRFShortDateValue"_L1},
        {"bitRate", "properties.bitRate", false, true, "HRFBitRateValue"_L1},
        {"channels", "properties.channels", false, false, {}},
        {"isVBR", "properties.isVBR", false, false, HRFValueTransformer::localizedBool},
        {"tagVersion", "properties.tagVersion", false, false, text},
        {"fileName", "fileInfo.fileName", true, true, "HRFFileNameValue"_L1},
        {"fileExtension", "fileInfo.fileExtension", true, false, text},
        {"filePath", "fileInfo.filePath", false, false, text},
        {"fileSize", "fileInfo.fileSize", false, true, "HRFFileSizeValue"_L1}};
    for (const auto &[name, path, isEditable, isCustom, transformer] : cases) {
        const HRFAttributeDescription &description = attribute(name);
        EXPECT_EQ(description.path().toStdString(), path);
        EXPECT_EQ(description.isEditable(), isEditable) << name;
        EXPECT_EQ(description.hasCustomTransformer(), isCustom) << name;
        EXPECT_EQ(description.displayValueTransformerName(), transformer) << name;
        EXPECT_EQ(description.isFilename(), name == "fileName");
        EXPECT_EQ(description.isFileExtension(), name == "fileExtension");
        EXPECT_EQ(description.isFilePath(), name == "filePath");
    }
}

TEST_F(HRFAttributeManagerTest, NamesTransformersThatExist)
{
    for (const auto *each : HRFAttributeManager::sharedManager().attributesByName()) {
        const QString name = each->displayValueTransformerName();
        if (!name.isEmpty()) {
            EXPECT_NO_THROW(HRFTransformedValue(name, {})) << each->name.toStdString();
        }
    }
}

TEST_F(HRFAttributeManagerTest, CanBeMadeAnew)
{
    EXPECT_TRUE(HRFAttributeManager::sharedManager().storeWasReset());
    EXPECT_TRUE(QFile::exists(path(u"data/lirrabank.sqlite"_s)));
    HRFAttributeManager::releaseSharedManager();
    EXPECT_FALSE(HRFAttributeManager::sharedManager().storeWasReset());
}
