#include "app/HRFSidebar.h"
#include "app/HRFTestWithDialogs.h"
#include "support/HRFHeldQueue.h"

#include <optional>

using namespace Qt::StringLiterals;
using HRFTestDialogs::dialog;
using HRFTestDialogs::press;
using testing::ElementsAre;

namespace {

class HRFQuittingTest : public HRFTestWithDialogs
{
protected:
    HRFQuittingTest()
    {
        makeFile(u"a.mp3"_s, {{HRFTagKey::title, u"Old"_s}, {HRFTagKey::album, u"Old"_s}});
        dropFolder(1);
    }
    /// Types a title, and quits before it is written.
    void quitWithWork()
    {
        held.emplace();
        type(cell(0, u"title"_s), u"New"_s);
        window->commands().action(u"quit"_s)->trigger();
        EXPECT_FALSE(isTerminated);
    }
    /// Presses the button of the progress once that is there.
    static void cancelWork()
    {
        waitUntil([] { return dialog(u"progressSheet"_s); });
        press(*dialog(u"progressSheet"_s), u"Cancel"_s);
    }
    void finish()
    {
        held->release();
        waitUntil([&] { return isTerminated; });
        EXPECT_FALSE(window->isVisible());
    }
    QString title() const { return onDisk(music(u"a.mp3"_s), HRFTagKey::title); }

    std::optional<HRFHeldQueue> held;
};

TEST_F(HRFQuittingTest, finishesWhatIsNotToBeCancelled)
{
    quitWithWork();
    acts = {pressing(u"No"_s), [](QDialog &alert) { QTest::keyClick(&alert, Qt::Key_Return); }};
    cancelWork();
    cancelWork();
    EXPECT_THAT(messages,
                testing::Each(u"Are you sure you want to cancel the remaining operations?"_s));
    EXPECT_TRUE(dialog(u"progressSheet"_s));
    finish();
    EXPECT_FALSE(dialog(u"progressSheet"_s));
    EXPECT_EQ(title(), u"New"_s);
}

TEST_F(HRFQuittingTest, leavesFilesAloneWhenItIsCancelled)
{
    quitWithWork();
    acts = {pressing(u"Yes"_s)};
    cancelWork();
    EXPECT_FALSE(isTerminated); // something is still running
    finish();
    EXPECT_FALSE(dialog(u"progressSheet"_s));
    EXPECT_EQ(title(), u"Old"_s);
}

TEST_F(HRFQuittingTest, endsWhileItAsksWhetherToCancel)
{
    quitWithWork();
    acts = {[&](QDialog &) { finish(); }};
    cancelWork();
    EXPECT_FALSE(dialog(u"progressSheet"_s));
    EXPECT_EQ(title(), u"New"_s);
}

TEST_F(HRFQuittingTest, takesWhatHasBeenTyped)
{
    click(cell(0, u"title"_s));
    window->commands().action(u"editCell"_s)->trigger();
    QTest::keyClicks(window->findChild<QWidget *>(u"cellEditor"_s), u"New"_s);
    application->quit();
    waitUntil([&] { return isTerminated; });
    EXPECT_EQ(title(), u"New"_s);
}

TEST_F(HRFQuittingTest, keepsWhatHasBeenTypedIntoAListThatIsClosed)
{
    application->newList();
    window->showWindows();
    click(cell(0, u"title"_s));
    window->commands().action(u"editCell"_s)->trigger();
    QTest::keyClicks(window->findChild<QWidget *>(u"cellEditor"_s), u"New"_s);
    window->closeList();
    waitUntil([&] { return title() == u"New"_s; });
    waitForWork();
}

TEST_F(HRFQuittingTest, takesNoEndForAnAnswer)
{
    HRFListWindow &other = application->newList();
    QAction *strip = window->commands().action(u"strip"_s);
    acts = {[&](QDialog &alert) {
                other.showWindows();
                other.commands().action(u"quit"_s)->trigger();
                QCoreApplication::processEvents();
                EXPECT_FALSE(isTerminated); // it is the user's turn
                EXPECT_EQ(QApplication::activeWindow(), &alert);
                press(alert, u"Cancel"_s);
            },
            [&](QDialog &) { application->terminate(); }};
    strip->trigger();
    EXPECT_FALSE(isTerminated);
    strip->trigger();
    EXPECT_TRUE(isTerminated);
    waitForWork();
    EXPECT_EQ(title(), u"Old"_s);
}

TEST_F(HRFQuittingTest, waitsForTheAnswerToAnError)
{
    ASSERT_TRUE(QFile::remove(music(u"a.mp3"_s).displayPath()));
    acts = {[&](QDialog &alert) {
        application->terminate();
        EXPECT_FALSE(isProgressShownSoon());
        EXPECT_FALSE(isTerminated);
        press(alert, u"OK"_s);
        EXPECT_FALSE(alert.isVisible());
        alert.reject(); // in case of a fault
    }};
    type(cell(0, u"title"_s), u"New"_s);
    waitUntil([&] { return isTerminated; });
}

} // namespace
