#include "support/HRFScriptedInteraction.h"

#include "kit/HRFMainThread.h"

#include <gtest/gtest.h>

namespace {

class CountedDisplay : public HRFProgressDisplay
{
public:
    explicit CountedDisplay(int &count) : m_count(count) { ++m_count; }
    ~CountedDisplay() override { --m_count; }

private:
    int &m_count;
};

bool isMeant(const HRFAlertButton &button, const HRFScriptedInteraction::Answer &answer)
{
    if (const auto *role = std::get_if<HRFAnswerRole>(&answer.button))
        return button.role == *role;
    return std::get<QString>(answer.button)
        == (answer.isAlternate ? button.alternateTitle : button.title);
}

void expectMainThread()
{
    EXPECT_TRUE(HRFMainThread::isCurrent());
}

} // namespace

HRFScriptedInteraction::HRFScriptedInteraction()
{
    HRFUserInteraction::setCurrent(this);
}

HRFScriptedInteraction::~HRFScriptedInteraction()
{
    EXPECT_TRUE(answers.empty()) << answers.size() << " answers were not asked for";
    EXPECT_EQ(visibleProgressCount, 0);
    HRFUserInteraction::setCurrent(nullptr);
}

HRFAlertAnswer HRFScriptedInteraction::answerTo(const QString &message,
                                                const std::vector<HRFAlertButton> &buttons)
{
    if (onQuestion)
        onQuestion(message);
    const std::size_t last = buttons.size() - 1;
    if (answers.empty()) {
        ADD_FAILURE() << "Unexpected question: " << message.toStdString();
        return {.button = last};
    }
    const Answer answer = answers.front();
    answers.pop_front();
    for (std::size_t i = 0; i < buttons.size(); ++i)
        if (isMeant(buttons[i], answer))
            return {i, answer.isSuppressed, answer.isAlternate};
    ADD_FAILURE() << "No such button under: " << message.toStdString();
    return {.button = last};
}

HRFAlertAnswer HRFScriptedInteraction::runAlert(const HRFAlert &alert)
{
    expectMainThread();
    alerts.push_back(alert);
    const HRFAlertAnswer answer = answerTo(alert.message, alert.buttons);
    EXPECT_FALSE(answer.isSuppressed && alert.suppressionTitle.isEmpty())
        << "No check box: " << alert.message.toStdString();
    return answer;
}

bool HRFScriptedInteraction::presentError(const HRFError &error, HRFInteractionOwner /*owner*/)
{
    expectMainThread();
    presentedErrors.push_back(error);
    if (error.recoveryOptions.isEmpty())
        return false;
    std::vector<HRFAlertButton> buttons;
    for (const QString &title : error.recoveryOptions)
        buttons.push_back({.title = title});
    const HRFAlertAnswer answer = answerTo(error.description, buttons);
    return error.recoveryAttempter(error, int(answer.button));
}

void HRFScriptedInteraction::revealFiles(const std::vector<HRFFileReference> &files)
{
    expectMainThread();
    revealedFiles.insert(revealedFiles.end(), files.begin(), files.end());
}

void HRFScriptedInteraction::notify(const QString &title, const QString &text, bool showsRegardless)
{
    expectMainThread();
    notifications.push_back({title, text, showsRegardless});
}

std::unique_ptr<HRFProgressDisplay>
HRFScriptedInteraction::showProgress(const std::shared_ptr<HRFProgress> &progress,
                                     const HRFProgressAppearance &appearance)
{
    expectMainThread();
    shownProgresses.push_back({progress, appearance});
    return std::make_unique<CountedDisplay>(visibleProgressCount);
}
