#pragma once

#include "app/HRFTestDialogs.h"
#include "app/HRFTestWithWindow.h"
#include "app/HRFWidgetsInteraction.h"

#include <QCheckBox>
#include <QTimer>

#include <deque>
#include <functional>

/// The program's window with its own dialogs, and a user who answers each alert as the test says.
class HRFTestWithDialogs : public HRFTestWithWindow
{
protected:
    /// What to do with an alert that is on the screen.
    using Act = std::function<void(QDialog &alert)>;

    HRFTestWithDialogs()
    {
        m_watcher.didShow = [this](QDialog &alert) { answer(alert); };
        qApp->installEventFilter(&m_watcher);
        listen();
    }
    void TearDown() override
    {
        EXPECT_TRUE(acts.empty()) << "an alert was not shown";
        HRFTestWithWindow::TearDown();
        // The end of a program keeps dialogs from starting until the next one has started and
        // ended.
        QTimer::singleShot(0, [] { QCoreApplication::exit(); });
        QApplication::exec();
    }

    /// As the program does, of which all dialogs end when it does.
    void listen()
    {
        QObject::connect(
            application.get(), &HRFApplicationDelegate::didTerminate, &m_watcher,
            [this] {
                isTerminated = true;
                QCoreApplication::exit();
            },
            Qt::QueuedConnection);
    }
    static Act pressing(const QString &title)
    {
        return [title](QDialog &alert) { HRFTestDialogs::press(alert, title); };
    }
    /// Whether a progress gets in the way of an alert within a time in which it would have come.
    static bool isProgressShownSoon()
    {
        constexpr int patience = 700;
        return QTest::qWaitFor(
            [] { return HRFTestDialogs::dialog(QStringLiteral("progressSheet")); }, patience);
    }

    std::deque<Act> acts;
    std::vector<QString> messages; ///< of the alerts so far
    bool isTerminated = false;

private:
    class Watcher : public QObject
    {
    public:
        std::function<void(QDialog &)> didShow;

    protected:
        bool eventFilter(QObject *object, QEvent *event) override
        {
            auto *alert = qobject_cast<QDialog *>(object);
            if (alert && event->type() == QEvent::Show
                && alert->objectName() == QStringLiteral("alert"))
                QTimer::singleShot(0, alert, [this, alert] { didShow(*alert); });
            return false;
        }
    };

    void answer(QDialog &alert)
    {
        messages.push_back(alert.accessibleName());
        if (acts.empty()) {
            ADD_FAILURE() << "unexpected: " << messages.back().toStdString();
            return alert.reject();
        }
        const Act act = std::move(acts.front());
        acts.pop_front();
        act(alert);
    }

    HRFWidgetsInteraction m_interaction;
    Watcher m_watcher;
};
