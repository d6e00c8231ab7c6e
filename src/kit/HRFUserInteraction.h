#pragma once

#include "kit/HRFError.h"
#include "kit/HRFFileReference.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

class HRFProgress;
class QObject;

/// The list that a question, an error or a progress belongs to: its window shows it. nullptr where
/// it belongs to none. Only to be compared, as the list may be gone.
using HRFInteractionOwner = const QObject *;

/// What a button of a question means, so that a program without a user can choose.
enum class HRFAnswerRole {
    Other,
    Accept, ///< do what was asked for
    Fix, ///< remove the cause and try again
    Continue, ///< leave this file as it is, go on with the others
    Cancel, ///< give up
};

struct HRFAlertButton
{
    QString title{};
    HRFAnswerRole role = HRFAnswerRole::Other;
    bool isDestructive = false;
    /// What the button says while the Alt key is held; empty where it says the same.
    QString alternateTitle{};
};

/// A question with buttons.
struct HRFAlert
{
    QString title{};
    QString message{};
    QString informativeText{};
    /// The file whose icon is shown; null for none.
    HRFFileReference icon{};
    std::vector<HRFAlertButton> buttons{};
    /// The button that Return presses.
    std::size_t defaultButton = 0;
    /// Title of the check box; empty where there is none.
    QString suppressionTitle{};
    bool isCritical = false;
    /// Nothing has failed; the answer says how to go on.
    bool isQuestion = false;
    HRFInteractionOwner owner{};
};

struct HRFAlertAnswer
{
    /// Index of the chosen button.
    std::size_t button = 0;
    /// The check box was on.
    bool isSuppressed = false;
    /// The button was pressed under its alternate title.
    bool isAlternate = false;
};

/// How a progress is shown: see HRFProgressWindowController.
struct HRFProgressAppearance
{
    /// What is being done, at present; no function for the progress's description.
    std::function<QString()> title{};
    QString cancelTitle{};
    /// What the cancel button does.
    std::function<void()> cancel{};
};

/// A progress on display, for as long as this lives.
class HRFProgressDisplay
{
public:
    HRFProgressDisplay() = default;
    HRFProgressDisplay(const HRFProgressDisplay &) = delete;
    HRFProgressDisplay &operator=(const HRFProgressDisplay &) = delete;
    virtual ~HRFProgressDisplay() = default;
};

/// The one way to the user: windows, a terminal, or a script in tests. All members are called on
/// the main thread.
class HRFUserInteraction
{
public:
    HRFUserInteraction() = default;
    HRFUserInteraction(const HRFUserInteraction &) = delete;
    HRFUserInteraction &operator=(const HRFUserInteraction &) = delete;
    virtual ~HRFUserInteraction() = default;

    /// That of this program; there must be one (assertion "HRFUserInteraction::current").
    static HRFUserInteraction &current();
    /// The interaction must outlive its use; nullptr takes it away.
    static void setCurrent(HRFUserInteraction *interaction);

    /// Presents an error when the main thread comes round to it, for those whom somebody waits for.
    /// From any thread.
    static void presentErrorLater(const HRFError &error, HRFInteractionOwner owner = {});
    /// Runs a block; a failure that it throws is presented later.
    static void presentFailures(const std::function<void()> &block);

    /// Asks a question and waits for the answer.
    virtual HRFAlertAnswer runAlert(const HRFAlert &alert) = 0;
    /// Shows an error with its recovery options, or with "OK" where it has none. Carries out the
    /// chosen option; answers whether the failed work may be tried again.
    virtual bool presentError(const HRFError &error, HRFInteractionOwner owner = {}) = 0;
    /// Shows files in the file manager.
    virtual void revealFiles(const std::vector<HRFFileReference> &files) = 0;
    /// Tells about something that has ended.
    virtual void notify(const QString &title, const QString &text, bool showsRegardless) = 0;
    /// Shows a progress, where its owner is shown, until the result is destroyed.
    virtual std::unique_ptr<HRFProgressDisplay>
    showProgress(const std::shared_ptr<HRFProgress> &progress,
                 const HRFProgressAppearance &appearance) = 0;
};
