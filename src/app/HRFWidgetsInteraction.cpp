#include "app/HRFWidgetsInteraction.h"

#include "app/HRFAlertDialog.h"
#include "app/HRFDesktop.h"
#include "app/HRFListWindow.h"
#include "app/HRFProgressSheet.h"
#include "app/HRFSheets.h"
#include "document/HRFPlaylist.h"
#include "operations/HRFErrorSolver.h"
#include "operations/HRFProgress.h"

#include <QApplication>
#include <QPointer>

#include <algorithm>

namespace {

/// The window of the list that the user works with, or has last worked with.
HRFListWindow *currentWindow(const std::vector<HRFListWindow *> &windows)
{
    for (QWidget *widget = QApplication::activeWindow(); widget; widget = widget->parentWidget())
        if (auto *window = qobject_cast<HRFListWindow *>(widget))
            return window;
    const auto found = std::ranges::find_if(windows, [](const HRFListWindow *window) {
        return &window->document() == HRFPlaylist::currentPlaylist();
    });
    return found == windows.end() ? nullptr : *found;
}

/// The window that a question or a progress belongs to; nullptr when there is none.
HRFListWindow *windowOf(HRFInteractionOwner owner)
{
    std::vector<HRFListWindow *> windows;
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (auto *window = qobject_cast<HRFListWindow *>(widget); window && window->isVisible())
            windows.push_back(window);
    const auto found = std::ranges::find_if(
        windows, [&](const HRFListWindow *window) { return &window->document() == owner; });
    return found == windows.end() ? currentWindow(windows) : *found;
}

std::vector<HRFAlertButton> buttonsOf(const HRFError &error)
{
    if (const auto solver = HRFErrorSolver::solverOfError(error))
        return solver->buttons();
    std::vector<HRFAlertButton> buttons;
    for (const QString &title : error.recoveryOptions)
        buttons.push_back({.title = title});
    return buttons;
}

/// What is known of the reasons.
QString reasonOf(const HRFError &error)
{
    QStringList texts{error.recoverySuggestion};
    for (auto cause = error.underlying; cause; cause = cause->underlying)
        if (cause->description != error.description)
            texts.append({cause->description, cause->recoverySuggestion});
    texts.removeAll(QString());
    texts.removeDuplicates();
    return texts.join(u'\n');
}

} // namespace

HRFWidgetsInteraction::HRFWidgetsInteraction()
{
    setCurrent(this);
}

HRFWidgetsInteraction::~HRFWidgetsInteraction()
{
    setCurrent(nullptr);
}

void HRFWidgetsInteraction::cancelQuestions()
{
    m_isAlone = true;
    for (QWidget *widget : QApplication::allWidgets())
        if (auto *alert = qobject_cast<HRFAlertDialog *>(widget); alert && alert->isVisible())
            alert->done(QDialog::Rejected);
}

HRFAlertAnswer HRFWidgetsInteraction::runAlert(const HRFAlert &alert)
{
    if (m_isAlone)
        return HRFAlertDialog::answerOfNobody(alert);
    HRFListWindow *window = windowOf(alert.owner);
    const QPointer dialog(
        new HRFAlertDialog(alert, window ? HRFSheets::placeForQuestion(*window) : nullptr));
    dialog->exec();
    if (!dialog) // its window was closed
        return HRFAlertDialog::answerOfNobody(alert);
    const HRFAlertAnswer answer = dialog->answer();
    delete dialog;
    return answer;
}

bool HRFWidgetsInteraction::presentError(const HRFError &error, HRFInteractionOwner owner)
{
    HRFAlert alert{.message = error.description,
                   .informativeText = reasonOf(error),
                   .buttons = buttonsOf(error),
                   .isCritical = true,
                   .owner = owner};
    if (!error.path.isEmpty())
        alert.icon = HRFFileReference::fromPath(error.path);
    if (alert.buttons.empty())
        alert.buttons = {{.title = QApplication::translate("HRFWidgetsInteraction", "OK"),
                          .role = HRFAnswerRole::Continue}};
    const HRFAlertAnswer answer = runAlert(alert);
    return error.recoveryAttempter && !error.recoveryOptions.isEmpty()
        && error.recoveryAttempter(error, int(answer.button));
}

void HRFWidgetsInteraction::revealFiles(const std::vector<HRFFileReference> &files)
{
    HRFDesktop::revealFiles(files);
}

void HRFWidgetsInteraction::notify(const QString &title, const QString &text, bool showsRegardless)
{
    if (showsRegardless || !QApplication::activeWindow())
        HRFDesktop::notify(title, text);
}

std::unique_ptr<HRFProgressDisplay>
HRFWidgetsInteraction::showProgress(const std::shared_ptr<HRFProgress> &progress,
                                    const HRFProgressAppearance &appearance)
{
    return std::make_unique<HRFProgressSheet>(progress, appearance, windowOf(progress->owner()));
}
