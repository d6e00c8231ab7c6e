#include "app/HRFApplicationDelegate.h"
#include "app/HRFControlWalk.h"
#include "app/HRFListCommands.h"
#include "app/HRFListView.h"
#include "app/HRFListWindow.h"
#include "app/HRFPreferencesWindow.h"
#include "document/HRFMetaFileManager.h"
#include "kit/HRFUserDefaults.h"
#include "store/HRFAttributeManager.h"
#include "store/HRFDataFolder.h"
#include "support/HRFScriptedInteraction.h"
#include "support/HRFTestApplication.h"
#include "tags/ID3MetaData.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <gmock/gmock.h>

// After the preferences, whose Display is not that of X11.
#include "app/HRFDesktopApplication.h"

using namespace Qt::StringLiterals;

namespace {

class HRFPreferencesTest : public HRFTestWithApplication<HRFDesktopApplication>
{
protected:
    HRFPreferencesTest() : dataFolder(*HRFDataFolder::take(path(u"data"_s)))
    {
        defaults().setFilePath(path(u"settings.ini"_s));
        HRFAttributeManager::releaseSharedManager(); // the next one is in this folder
    }
    void TearDown() override
    {
        HRFTestWithApplication::TearDown();
        defaults().setFilePath({});
        HRFMetaFileManager::fileOperationQueue().waitUntilAllOperationsAreFinished();
    }

    static HRFUserDefaults &defaults() { return HRFUserDefaults::standard(); }
    /// What the settings would be to the next run.
    QVariant onDisk(const QString &key) const
    {
        return HRFUserDefaults(path(u"settings.ini"_s)).valueForKey(key);
    }
    /// The widgets of the panes that a user can change something with.
    static QList<QWidget *> inputs(const HRFPreferencesWindow &window)
    {
        QList<QWidget *> found;
        for (const HRFPreferenceRow &row : HRFPreferenceRows())
            found += window.findChildren<QWidget *>(QString::fromLatin1(row.key));
        return found;
    }
    /// What is shown in the widget of a setting.
    static QString shown(const QWidget *input)
    {
        if (const auto *button = qobject_cast<const QAbstractButton *>(input))
            return button->isChecked() ? u"on"_s : u"off"_s;
        if (const auto *menu = qobject_cast<const QComboBox *>(input))
            return menu->currentText();
        return qobject_cast<const QLineEdit *>(input)->text();
    }
    static QStringList shown(const HRFPreferencesWindow &window)
    {
        QStringList texts;
        for (const QWidget *input : inputs(window))
            texts += shown(input);
        return texts;
    }
    void change(QWidget *input) const
    {
        if (auto *button = qobject_cast<QAbstractButton *>(input))
            button->click();
        else if (qobject_cast<QComboBox *>(input))
            QTest::keyClick(input, Qt::Key_Down);
        else
            QTest::keyClicks(input, path(u""_s) + u'\r');
    }

    HRFScriptedInteraction user;
    std::unique_ptr<HRFDataFolder> dataFolder;
};

TEST_F(HRFPreferencesTest, hasARowForEveryShippedDefault)
{
    QStringList keys;
    for (const HRFPreferenceRow &row : HRFPreferenceRows()) {
        keys += QString::fromLatin1(row.key);
        EXPECT_TRUE(*row.explanation) << row.key;
    }
    EXPECT_EQ(keys.removeDuplicates(), 0);
    for (const QString &key : defaults().defaultKeys())
        EXPECT_TRUE(keys.contains(key)) << key.toStdString();
}

TEST_F(HRFPreferencesTest, storesEveryChangeAndRestoresDefaults)
{
    QStringList before;
    QStringList changed;
    {
        const HRFPreferencesWindow window;
        before = shown(window);
        for (QWidget *input : inputs(window))
            change(input);
        changed = shown(window);
    }
    for (qsizetype i = 0; i < before.size(); ++i)
        EXPECT_NE(before[i], changed[i]) << HRFPreferenceRows()[std::size_t(i)].key;
    defaults().setFilePath(path(u"other.ini"_s));
    const HRFPreferencesWindow window;
    EXPECT_EQ(shown(window), before);
    defaults().setFilePath(path(u"settings.ini"_s)); // as after the next start
    EXPECT_EQ(shown(window), changed);
    EXPECT_EQ(onDisk(u"lirra.tagging.ID3v2Version"_s), u"416"_s);
    EXPECT_EQ(onDisk(u"lirra.suppressed.removeEmptyDirectories"_s), true);
    const auto buttons = window.findChildren<QAbstractButton *>(u"restoreDefaults"_s);
    for (QAbstractButton *button : buttons)
        button->click();
    EXPECT_EQ(shown(window), before);
}

TEST_F(HRFPreferencesTest, tellsAssistiveProgramsWhatEachWidgetIs)
{
    const HRFPreferencesWindow window;
    EXPECT_GT(HRFCheckControls(window), int(HRFPreferenceRows().size()));
}

TEST_F(HRFPreferencesTest, takesNoFolderThatIsNotThere)
{
    const QString key = u"com.harrowfield.lirra.startupDirectoryURL"_s;
    const HRFPreferencesWindow window;
    auto *folder = window.findChild<QLineEdit *>(key);
    const QString usual = folder->accessibleDescription();
    QTest::keyClicks(folder, path(u"nowhere"_s) + u'\r');
    EXPECT_FALSE(onDisk(key).isValid());
    EXPECT_EQ(folder->text(), path(u"nowhere"_s));
    EXPECT_EQ(folder->accessibleDescription(), folder->toolTip());
    EXPECT_NE(folder->accessibleDescription(), usual);
    folder->selectAll();
    QTest::keyClicks(folder, path(u""_s) + u'\r');
    EXPECT_EQ(onDisk(key), path(u""_s));
    EXPECT_EQ(folder->accessibleDescription(), usual);
}

TEST_F(HRFPreferencesTest, appliesAnEncodingBehindTheWorkThatIsQueued)
{
    const HRFApplicationDelegate application;
    HRFWorkQueue &queue = HRFMetaFileManager::fileOperationQueue();
    std::mutex gate; // held until the encoding was changed
    std::unique_lock hold(gate);
    TagLib::String::Type seen = TagLib::String::UTF8;
    const auto before = ID3MetaData::defaultTextEncoding();
    queue.addBarrierBlock([&] {
        const std::lock_guard wait(gate);
        seen = ID3MetaData::defaultTextEncoding();
    });
    defaults().setValueForKey(u"41"_s, u"lirra.tagging.ID3v2Version"_s);
    hold.unlock();
    queue.waitUntilAllOperationsAreFinished();
    EXPECT_EQ(seen, before);
    EXPECT_EQ(ID3MetaData::defaultTextEncoding(), TagLib::String::Latin1);
    defaults().removeUserValues();
    queue.waitUntilAllOperationsAreFinished();
    EXPECT_EQ(ID3MetaData::defaultTextEncoding(), before);
}

TEST_F(HRFPreferencesTest, opensOneWindowAndReachesOpenLists)
{
    HRFApplicationDelegate application;
    const HRFListWindow &list = application.newList();
    for (int i = 0; i < 2; ++i)
        list.commands().action(u"preferences"_s)->trigger();
    QList<HRFPreferencesWindow *> windows;
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (auto *window = qobject_cast<HRFPreferencesWindow *>(widget))
            windows += window;
    ASSERT_EQ(windows.size(), 1);
    const int height = list.view().rowHeight();
    change(windows[0]->findChild<QWidget *>(u"lirra.display.rowHeight"_s));
    EXPECT_GT(list.view().rowHeight(), height);
    QCoreApplication::processEvents(); // validates commands
    list.commands().action(u"usualRows"_s)->trigger();
    EXPECT_EQ(shown(windows[0]->findChild<QWidget *>(u"lirra.display.rowHeight"_s)), u"Low"_s);
}

TEST_F(HRFPreferencesTest, dropsWhatIsStoredOnDemand)
{
    HRFApplicationDelegate application;
    const HRFListWindow &list = application.newList();
    const auto *menu = list.findChild<QMenu *>(u"debugMenu"_s);
    EXPECT_FALSE(menu->menuAction()->isVisible());
    defaults().setValueForKey(true, u"lirra.general.showsDebugMenu"_s);
    EXPECT_TRUE(menu->menuAction()->isVisible());
    menu->findChild<QAction *>(u"resetDefaults"_s)->trigger();
    EXPECT_FALSE(menu->menuAction()->isVisible());

    const QString store = HRFAttributeManager::sharedManager().storeURL();
    EXPECT_TRUE(QFile::exists(store));
    const QSignalSpy end(&application, &HRFApplicationDelegate::didTerminate);
    menu->findChild<QAction *>(u"resetAll"_s)->trigger();
    EXPECT_EQ(end.count(), 1);
    EXPECT_FALSE(QFile::exists(store));
    EXPECT_FALSE(onDisk(u"lirra.display.windowGeometry"_s).isValid());
}

} // namespace
