#pragma once

#include "kit/HRFError.h"
#include "kit/HRFUserInteraction.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// An error with ways out of it for the user to choose from.
class HRFErrorSolver : public std::enable_shared_from_this<HRFErrorSolver>
{
public:
    static std::shared_ptr<HRFErrorSolver> solverWithError(const HRFError &error);
    /// The solver that an error comes from (see error()); nullptr for other errors.
    static std::shared_ptr<HRFErrorSolver> solverOfError(const HRFError &error);

    /// @param block carries the option out; answers whether the failed work may be tried again
    void addRecoveryOptionWithLocalizedTitle(const QString &title, std::function<bool()> block,
                                             HRFAnswerRole role = HRFAnswerRole::Other);
    /// Adds "Cancel", which does nothing.
    void addCancelRecoveryOption();
    QStringList recoveryOptions() const;

    /// Called once with the result of the option that is carried out.
    void setCompletionHandler(std::function<void(bool)> handler);

    /// The error to present: it offers the options, and keeps the solver alive that carries them
    /// out.
    HRFError error();
    /// Carries out an option, which must exist (assertion "optionIndex").
    bool attemptRecoveryFromError(const HRFError &error, int optionIndex);

    /// The buttons of the options.
    std::vector<HRFAlertButton> buttons() const;

private:
    struct Option
    {
        QString title;
        HRFAnswerRole role;
        std::function<bool()> block;
    };

    explicit HRFErrorSolver(const HRFError &error);

    const HRFError m_inError;
    std::vector<Option> m_options;
    std::function<void(bool)> m_completionHandler;
};

/// Asks the user, on the main thread, and carries out the chosen option; answers its result.
/// @param progress that of the work that failed
bool presentErrorSolver(HRFErrorSolver &solver, const std::shared_ptr<HRFProgress> &progress = {});
/// The same for one of several files. An answer that is remembered is taken without asking
/// (assertion "Recovery option index is out of bounds"); one that is to hold for all files is put
/// there.
///
/// @param showsSuppressionButton whether to offer "Apply to All"
bool presentErrorSolver(HRFErrorSolver &solver, std::optional<int> &appliedToAllResponse,
                        bool showsSuppressionButton,
                        const std::shared_ptr<HRFProgress> &progress = {});
