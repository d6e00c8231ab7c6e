#include "operations/HRFProgress+Notification.h"
#include "operations/HRFProgressWindowController.h"
#include "support/HRFScriptedInteraction.h"
#include "support/HRFTestApplication.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

TEST(HRFProgress, ChildrenAddUpAndAreCancelledWithTheirParent)
{
    HRFProgress parent;
    EXPECT_FALSE(parent.isFinished());
    const auto first = std::make_shared<HRFProgress>(3);
    const auto second = std::make_shared<HRFProgress>(5);
    parent.addChild(first);
    parent.addChild(second);
    first->addCompleted(3);
    second->addCompleted();
    EXPECT_EQ(parent.totalUnitCount(), 8);
    EXPECT_EQ(parent.completedUnitCount(), 4);
    EXPECT_EQ(parent.fractionCompleted(), 0.5);
    EXPECT_TRUE(first->isFinished());

    int cancellations = 0;
    const auto count = [&cancellations] { ++cancellations; };
    parent.setCancellationHandler(count);
    second->setCancellationHandler(count);
    parent.cancel();
    parent.cancel();
    EXPECT_EQ(cancellations, 2);
    EXPECT_TRUE(first->isCancelled());
    // What comes too late is cancelled at once.
    parent.setCancellationHandler(count);
    const auto third = std::make_shared<HRFProgress>(1);
    parent.addChild(third);
    EXPECT_EQ(cancellations, 3);
    EXPECT_TRUE(third->isCancelled());
}

TEST(HRFProgress, ANotificationTellsHowManyFilesAreDone)
{
    HRFScriptedInteraction user;
    HRFProgress progress(1200);
    progress.setLocalizedDescription(u"Strip Tags"_s);
    const std::pair<qlonglong, QString> cases[] = {{-1, u"0 of 1200 File(s) Processed."_s},
                                                   {7, u"7 of 1200 File(s) Processed."_s},
                                                   {1200, u"1200 File(s) Processed."_s}};
    for (const auto &[completed, text] : cases) {
        progress.setCompletedUnitCount(completed);
        sendAssociatedNotificationRegardless(progress, completed == 7);
        const HRFScriptedInteraction::Notification expected{u"Strip Tags"_s, text, completed == 7};
        EXPECT_EQ(user.notifications.back(), expected) << completed;
    }
}

class HRFProgressWindowControllerTest : public HRFApplicationTest
{
protected:
    HRFScriptedInteraction user;
    std::shared_ptr<HRFProgress> progress = std::make_shared<HRFProgress>(2);
    HRFProgressWindowController controller{progress};
};

TEST_F(HRFProgressWindowControllerTest, AWorkThatEndsBeforeTheDelayIsNotShown)
{
    HRFProgressWindowController shown(progress);
    controller.showAsSheet(1ms);
    controller.dismiss();
    shown.showAsSheet(2ms);
    waitUntil([&] { return shown.isShown(); });
    EXPECT_FALSE(controller.isShown());
    EXPECT_EQ(user.visibleProgressCount, 1);
    shown.dismiss();
    EXPECT_EQ(user.visibleProgressCount, 0);
    EXPECT_EQ(user.shownProgresses.size(), 1U);
}

TEST_F(HRFProgressWindowControllerTest, TitlesAreShownAsTheyStand)
{
    controller.setTitle(u"Strip Tags"_s);
    EXPECT_EQ(controller.displayTitle(), u"Strip Tags"_s);
    controller.setTitleShowsProcessing(true);
    controller.setCancelOperationTitle(u"Stop"_s);
    controller.showAsSheet();
    EXPECT_EQ(user.shownProgresses[0].appearance.title(), u"Strip Tags: Processing…"_s);
    progress->cancel();
    EXPECT_EQ(user.shownProgresses[0].appearance.title(), u"Strip Tags"_s);
    controller.dismiss();
    controller.showWindow();
    controller.dismiss();
    ASSERT_EQ(user.shownProgresses.size(), 2U);
    EXPECT_EQ(user.shownProgresses[0].progress, progress);
    EXPECT_EQ(user.shownProgresses[0].appearance.cancelTitle, u"Stop"_s);
    EXPECT_EQ(user.shownProgresses[1].appearance.cancelTitle, u"Cancel"_s);
}

} // namespace
