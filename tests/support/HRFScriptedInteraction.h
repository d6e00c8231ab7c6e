#pragma once

#include "kit/HRFUserInteraction.h"

#include <deque>
#include <functional>
#include <variant>

/// Answers as a test says, and keeps what was asked and told. It is the current interaction as long
/// as it lives. A question without an answer fails the test, and so does an answer that was not
/// asked for.
class HRFScriptedInteraction : public HRFUserInteraction
{
public:
    /// Chooses a button by its title or its role.
    struct Answer
    {
        std::variant<QString, HRFAnswerRole> button;
        bool isSuppressed = false;
        bool isAlternate = false;
    };
    struct Notification
    {
        QString title;
        QString text;
        bool showsRegardless = false;

        bool operator==(const Notification &) const = default;
    };
    struct ShownProgress
    {
        std::shared_ptr<HRFProgress> progress;
        HRFProgressAppearance appearance;
    };

    HRFScriptedInteraction();
    ~HRFScriptedInteraction() override;

    std::deque<Answer> answers;
    /// Called when a question is on the screen.
    std::function<void(const QString &message)> onQuestion;

    std::vector<HRFAlert> alerts;
    std::vector<HRFError> presentedErrors;
    std::vector<HRFFileReference> revealedFiles;
    std::vector<Notification> notifications;
    std::vector<ShownProgress> shownProgresses;
    int visibleProgressCount = 0;

    HRFAlertAnswer runAlert(const HRFAlert &alert) override;
    bool presentError(const HRFError &error, HRFInteractionOwner owner) override;
    void revealFiles(const std::vector<HRFFileReference> &files) override;
    void notify(const QString &title, const QString &text, bool showsRegardless) override;
    std::unique_ptr<HRFProgressDisplay>
    showProgress(const std::shared_ptr<HRFProgress> &progress,
                 const HRFProgressAppearance &appearance) override;

private:
    HRFAlertAnswer answerTo(const QString &message, const std::vector<HRFAlertButton> &buttons);
};
