#include "store/HRFViewConfigManager.h"

#include "store/HRFAttributeManager.h"
#include "store/HRFDataFolder.h"
#include "support/HRFTestApplication.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class HRFViewConfigManagerTest : public HRFApplicationTest
{
protected:
    HRFViewConfigManagerTest() : m_dataFolder(HRFDataFolder::take(path(u"data"_s)).value()) { }
    ~HRFViewConfigManagerTest() override
    {
        HRFViewConfigManager::releaseSharedManager();
        HRFAttributeManager::releaseSharedManager();
    }
    /// What is there when the program is started again.
    static HRFViewConfigManager &reopened()
    {
        HRFViewConfigManager::releaseSharedManager();
        return HRFViewConfigManager::sharedManager();
    }

    std::unique_ptr<HRFDataFolder> m_dataFolder;
};

TEST_F(HRFViewConfigManagerTest, KeepsOnlyWhatCanBeShown)
{
    // Every default is an attribute, and stands in one place alone.
    EXPECT_EQ(reopened().groups(), HRFViewConfigManager::defaultGroups());
    // However the program ends, they are there the next time.
    EXPECT_FALSE(HRFViewConfigManager::sharedManager().managedObjectContext()->hasChanges());
    int changes = 0;
    QObject::connect(&HRFViewConfigManager::sharedManager(), &HRFViewConfigManager::groupsDidChange,
                     [&] { ++changes; });
    HRFViewConfigManager::sharedManager().setGroups(
        {{u"ä ö"_s, {u"title"_s, u"nothing"_s, u"bpm"_s}}, {u""_s, {u"bpm"_s, u"format"_s}}});
    HRFViewConfigManager::sharedManager().setCollapsed(1, true);
    EXPECT_EQ(changes, 1);
    const HRFViewConfigManager::Groups expected{{u"ä ö"_s, {u"title"_s, u"bpm"_s}, false},
                                                {u""_s, {u"format"_s}, true}};
    EXPECT_EQ(reopened().groups(), expected);
    HRFViewConfigManager::sharedManager().setGroups({});
    EXPECT_TRUE(reopened().groups().empty());
}

TEST_F(HRFViewConfigManagerTest, BeginsAgainWithAStoreThatCannotBeRead)
{
    reopened().setGroups({});
    HRFViewConfigManager::releaseSharedManager();
    QFile store(path(u"data/lirra_viewconf.sqlite"_s));
    ASSERT_TRUE(store.open(QIODevice::WriteOnly));
    store.write("no store");
    store.close();
    EXPECT_EQ(reopened().groups(), HRFViewConfigManager::defaultGroups());
}

} // namespace
