#pragma once

#include "kit/HRFUserInteraction.h"

class QWidget;

/// The user of the desktop application. Questions and progresses stand like sheets on the window of
/// the list that they belong to, or else on the active one. It is the current interaction as long
/// as it lives.
class HRFWidgetsInteraction : public HRFUserInteraction
{
public:
    HRFWidgetsInteraction();
    ~HRFWidgetsInteraction() override;

    /// Nobody is there any more who could answer: questions, also those on the screen, are taken
    /// for cancelled, and other files go on.
    void cancelQuestions();

    HRFAlertAnswer runAlert(const HRFAlert &alert) override;
    bool presentError(const HRFError &error, HRFInteractionOwner owner) override;
    void revealFiles(const std::vector<HRFFileReference> &files) override;
    void notify(const QString &title, const QString &text, bool showsRegardless) override;
    std::unique_ptr<HRFProgressDisplay>
    showProgress(const std::shared_ptr<HRFProgress> &progress,
                 const HRFProgressAppearance &appearance) override;

private:
    bool m_isAlone = false; ///< cancelQuestions was called
};
