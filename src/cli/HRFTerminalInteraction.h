#pragma once

#include "cli/HRFCommandOptions.h"
#include "kit/HRFUserInteraction.h"

class HRFConsole;
class HRFProgress;

/// The user of lirra-cli. Questions are answered as the command line says, or put on the terminal.
class HRFTerminalInteraction : public HRFUserInteraction
{
public:
    /// Who knows which file a question is about: names it on standard error, if it was not named
    /// yet.
    enum class Named { NoFile, Before, Now };
    using FailureNamer = std::function<Named()>;

    HRFTerminalInteraction(HRFConsole &console, HRFErrorAnswer onError, FailureNamer nameFailure);
    ~HRFTerminalInteraction() override;

    HRFAlertAnswer runAlert(const HRFAlert &alert) override;
    bool presentError(const HRFError &error, HRFInteractionOwner owner) override;
    void revealFiles(const std::vector<HRFFileReference> & /*files*/) override { }
    void notify(const QString & /*title*/, const QString & /*text*/,
                bool /*showsRegardless*/) override
    {
    }
    std::unique_ptr<HRFProgressDisplay>
    showProgress(const std::shared_ptr<HRFProgress> &progress,
                 const HRFProgressAppearance &appearance) override;

    /// Brings the shown progress up to date.
    void updateProgress();
    /// Cancels the work that is shown, after the running file.
    void cancelShownWork();

private:
    bool asks() const { return m_onError == HRFErrorAnswer::Ask; }
    void tell(const QString &text);
    HRFAlertAnswer runQuestion(const HRFAlert &alert, const QString &text);
    HRFAlertAnswer ask(const HRFAlert &alert);

    HRFConsole &m_console;
    const HRFErrorAnswer m_onError;
    const FailureNamer m_nameFailure;
    std::weak_ptr<HRFProgress> m_shownProgress;
};
