#include "operations/HRFErrorSolver.h"

#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "operations/HRFProgress.h"

#include <QCoreApplication>

#include <utility>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFErrorSolver", text);
}

/// The recovery attempter of a solver's error. An error's attempter of this type tells its solver.
struct Attempter
{
    std::shared_ptr<HRFErrorSolver> solver;

    bool operator()(const HRFError &error, int optionIndex) const
    {
        return solver->attemptRecoveryFromError(error, optionIndex);
    }
};

HRFAlert alertFor(HRFErrorSolver &solver, bool showsSuppressionButton,
                  const std::shared_ptr<HRFProgress> &progress)
{
    const HRFError error = solver.error();
    HRFAlert alert;
    if (progress) {
        alert.title = progress->localizedDescription();
        alert.owner = progress->owner();
    }
    alert.message = error.description;
    alert.informativeText = error.recoverySuggestion;
    if (!error.path.isEmpty())
        alert.icon = HRFFileReference::fromPath(error.path);
    alert.buttons = solver.buttons();
    alert.isCritical = true;
    if (showsSuppressionButton)
        alert.suppressionTitle = tr("Apply to All");
    return alert;
}

} // namespace

HRFErrorSolver::HRFErrorSolver(const HRFError &error) : m_inError(error) { }

std::shared_ptr<HRFErrorSolver> HRFErrorSolver::solverWithError(const HRFError &error)
{
    return std::shared_ptr<HRFErrorSolver>(new HRFErrorSolver(error));
}

std::shared_ptr<HRFErrorSolver> HRFErrorSolver::solverOfError(const HRFError &error)
{
    const auto *attempter = error.recoveryAttempter.target<Attempter>();
    return attempter ? attempter->solver : nullptr;
}

void HRFErrorSolver::addRecoveryOptionWithLocalizedTitle(const QString &title,
                                                         std::function<bool()> block,
                                                         HRFAnswerRole role)
{
    HRFRequire(!title.isEmpty(), "title");
    HRFRequire(block != nullptr, "recoveryBlock");
    m_options.push_back({title, role, std::move(block)});
}

void HRFErrorSolver::addCancelRecoveryOption()
{
    addRecoveryOptionWithLocalizedTitle(tr("Cancel"), [] { return false; }, HRFAnswerRole::Cancel);
}

QStringList HRFErrorSolver::recoveryOptions() const
{
    QStringList titles;
    for (const Option &option : m_options)
        titles += option.title;
    return titles;
}

std::vector<HRFAlertButton> HRFErrorSolver::buttons() const
{
    std::vector<HRFAlertButton> buttons;
    for (const Option &option : m_options)
        buttons.push_back({.title = option.title, .role = option.role});
    return buttons;
}

void HRFErrorSolver::setCompletionHandler(std::function<void(bool)> handler)
{
    m_completionHandler = std::move(handler);
}

HRFError HRFErrorSolver::error()
{
    HRFError error = m_inError;
    error.underlying = std::make_shared<const HRFError>(m_inError);
    error.recoveryOptions = recoveryOptions();
    error.recoveryAttempter = Attempter{shared_from_this()};
    return error;
}

bool HRFErrorSolver::attemptRecoveryFromError(const HRFError & /*error*/, int optionIndex)
{
    HRFRequire(optionIndex >= 0 && std::size_t(optionIndex) < m_options.size(), "optionIndex");
    const bool hasRecovered = m_options[std::size_t(optionIndex)].block();
    if (const auto handler = std::exchange(m_completionHandler, {}))
        handler(hasRecovered);
    return hasRecovered;
}

bool presentErrorSolver(HRFErrorSolver &solver, const std::shared_ptr<HRFProgress> &progress)
{
    std::optional<int> nothingRemembered;
    return presentErrorSolver(solver, nothingRemembered, false, progress);
}

bool presentErrorSolver(HRFErrorSolver &solver, std::optional<int> &appliedToAllResponse,
                        bool showsSuppressionButton, const std::shared_ptr<HRFProgress> &progress)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    if (appliedToAllResponse) {
        HRFAssert(*appliedToAllResponse < solver.recoveryOptions().size(),
                  "Recovery option index is out of bounds");
        return solver.attemptRecoveryFromError(solver.error(), *appliedToAllResponse);
    }
    const HRFAlertAnswer answer =
        HRFUserInteraction::current().runAlert(alertFor(solver, showsSuppressionButton, progress));
    const int optionIndex = int(answer.button);
    if (answer.isSuppressed)
        appliedToAllResponse = optionIndex;
    return solver.attemptRecoveryFromError(solver.error(), optionIndex);
}
