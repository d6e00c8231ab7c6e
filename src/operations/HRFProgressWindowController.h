#pragma once

#include "kit/HRFUserInteraction.h"
#include "operations/HRFProgress.h"

#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

/// Shows a progress to the user while work goes on. For the main thread alone.
class HRFProgressWindowController
{
public:
    explicit HRFProgressWindowController(std::shared_ptr<HRFProgress> progress);

    const std::shared_ptr<HRFProgress> &progress() const { return m_progress; }
    QString title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }
    /// Whether the shown title says that the work goes on.
    bool titleShowsProcessing() const { return m_titleShowsProcessing; }
    void setTitleShowsProcessing(bool shows) { m_titleShowsProcessing = shows; }
    QString displayTitle() const;
    /// "Cancel" at first, and again after dismiss().
    QString cancelOperationTitle() const { return m_cancelOperationTitle; }
    void setCancelOperationTitle(const QString &title) { m_cancelOperationTitle = title; }
    /// What is done when the user wants to cancel, instead of cancelling the progress.
    void setCancellationHandler(std::function<void()> handler)
    {
        m_cancellationHandler = std::move(handler);
    }
    /// Nobody can tell how much is left to do.
    bool isIndeterminate() const { return m_progress->totalUnitCount() <= 0; }
    bool isShown() const { return m_display != nullptr; }

    void showWindow();
    /// Shows the progress on top of the window, at once for no delay.
    void showAsSheet(std::chrono::milliseconds afterDelay = {});
    /// Takes the progress from the screen, or sees to it that it does not appear.
    void dismiss();

private:
    const std::shared_ptr<HRFProgress> m_progress;
    QString m_title;
    bool m_titleShowsProcessing = false;
    QString m_cancelOperationTitle;
    std::function<void()> m_cancellationHandler;
    QTimer m_delay;
    std::unique_ptr<HRFProgressDisplay> m_display;
};
