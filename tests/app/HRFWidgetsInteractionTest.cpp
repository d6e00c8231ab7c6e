#include "app/HRFWidgetsInteraction.h"

#include "app/HRFControlWalk.h"
#include "app/HRFDesktopApplication.h"
#include "app/HRFInstance.h"
#include "app/HRFTestDialogs.h"
#include "operations/HRFProgress.h"
#include "support/HRFTestApplication.h"

#include <QCheckBox>
#include <QTimer>

#include <thread>

using namespace Qt::StringLiterals;
using HRFTestDialogs::dialog;
using HRFTestDialogs::press;

namespace {

class HRFWidgetsInteractionTest : public HRFTestWithApplication<HRFDesktopApplication>
{
protected:
    /// Asks a question, and does something with the dialog when it is there.
    HRFAlertAnswer ask(const HRFAlert &alert, const std::function<void(QDialog &)> &act)
    {
        QTimer::singleShot(0, [&] {
            QDialog *shown = dialog(u"alert"_s);
            ASSERT_TRUE(shown);
            act(*shown);
        });
        return user.runAlert(alert);
    }

    HRFWidgetsInteraction user;
};

const HRFAlert question{.message = u"Go on?"_s,
                        .buttons = {{.title = u"Fix"_s, .role = HRFAnswerRole::Fix},
                                    {.title = u"Go On"_s, .role = HRFAnswerRole::Continue},
                                    {.title = u"Cancel"_s, .role = HRFAnswerRole::Cancel}},
                        .defaultButton = 1,
                        .suppressionTitle = u"Apply to All"_s};

TEST_F(HRFWidgetsInteractionTest, answersWithTheButtonThatIsPressed)
{
    const HRFAlertAnswer fixed = ask(question, [](QDialog &shown) {
        EXPECT_GE(HRFCheckControls(shown), 4);
        shown.findChild<QCheckBox *>()->setChecked(true);
        press(shown, u"Fix"_s);
    });
    EXPECT_EQ(fixed.button, 0U);
    EXPECT_TRUE(fixed.isSuppressed);
    const HRFAlertAnswer byKey =
        ask(question, [](QDialog &shown) { QTest::keyClick(&shown, Qt::Key_Return); });
    EXPECT_EQ(byKey.button, 1U);
    EXPECT_FALSE(byKey.isSuppressed);
    const HRFAlertAnswer escaped =
        ask(question, [](QDialog &shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    EXPECT_EQ(escaped.button, 2U);
}

TEST_F(HRFWidgetsInteractionTest, fitsOnTheScreenWhateverItSays)
{
    const QString longName(250, u'W');
    for (const QString &further : {QString(), QStringList(200, longName).join(u'\n')}) {
        const HRFAlert alert{
            .message = longName, .informativeText = further, .buttons = {{.title = u"OK"_s}}};
        ask(alert, [](QDialog &shown) {
            EXPECT_LT(shown.width(), 600);
            EXPECT_LT(shown.height(), 600);
            press(shown, u"OK"_s);
        });
    }
}

TEST_F(HRFWidgetsInteractionTest, carriesOutTheChosenRecovery)
{
    int chosen = -1;
    const HRFError error{.description = u"It failed"_s,
                         .recoveryOptions = {u"Give Up"_s, u"Again"_s},
                         .recoveryAttempter = [&](const HRFError &, int option) {
                             chosen = option;
                             return option == 1;
                         }};
    QTimer::singleShot(0, [] { press(*dialog(u"alert"_s), u"Again"_s); });
    EXPECT_TRUE(user.presentError(error, {}));
    EXPECT_EQ(chosen, 1);
}

TEST_F(HRFWidgetsInteractionTest, cancelsWorkFromItsSheet)
{
    const auto progress = std::make_shared<HRFProgress>(20);
    progress->setCompletedUnitCount(5);
    auto display = user.showProgress(
        progress, {.cancelTitle = u"Cancel"_s, .cancel = [&] { progress->cancel(); }});
    QDialog *sheet = dialog(u"progressSheet"_s);
    EXPECT_EQ(HRFCheckControls(*sheet), 1);
    QTest::keyClick(sheet, Qt::Key_Escape);
    EXPECT_TRUE(progress->isCancelled());
    EXPECT_TRUE(sheet->isVisible()); // until the work has ended
    display.reset();
    EXPECT_FALSE(dialog(u"progressSheet"_s));
}

TEST_F(HRFWidgetsInteractionTest, handsFilesToTheRunningProgram)
{
    qputenv("XDG_RUNTIME_DIR", path(u""_s).toUtf8());
    const std::vector files{HRFFileReference::fromNativePath("/music/\xFF\n.mp3"),
                            HRFFileReference::fromNativePath("/music/b.mp3")};
    std::vector<HRFFileReference> arrived;
    bool wasTaken = false;
    // The second program may be there before the first one listens.
    std::jthread second([&] {
        while (!wasTaken)
            wasTaken = HRFInstance::handOver(files, u"/data"_s);
    });
    HRFInstance first(u"/data"_s);
    QObject::connect(&first, &HRFInstance::pathsDidArrive,
                     [&](const std::vector<HRFFileReference> &paths) { arrived = paths; });
    waitUntil([&] { return !arrived.empty(); });
    second.join();
    EXPECT_EQ(arrived, files);
    EXPECT_TRUE(wasTaken);
    first.close();
    EXPECT_FALSE(HRFInstance::handOver(files, u"/data"_s));
}

} // namespace
