#pragma once

#include "kit/HRFUserInteraction.h"

#include <QString>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

/// How far some work is, in units of its own; what shows it looks at it from time to time.
///
/// A progress with children counts their units with its own, and cancels them with itself. All
/// members may be called from any thread.
class HRFProgress
{
public:
    explicit HRFProgress(qlonglong totalUnitCount = 0);
    HRFProgress(const HRFProgress &) = delete;
    HRFProgress &operator=(const HRFProgress &) = delete;

    qlonglong totalUnitCount() const;
    void setTotalUnitCount(qlonglong count) { m_total = count; }
    qlonglong completedUnitCount() const;
    void setCompletedUnitCount(qlonglong count) { m_completed = count; }
    void addCompleted(qlonglong count = 1) { m_completed += count; }
    /// From 0 to 1; 0 as long as there is nothing to do.
    double fractionCompleted() const;
    /// There was something to do, and all of it is done.
    bool isFinished() const;

    QString localizedDescription() const;
    void setLocalizedDescription(const QString &text);
    QString localizedAdditionalDescription() const;
    void setLocalizedAdditionalDescription(const QString &text);

    /// Whether the user may cancel the work.
    bool isCancellable() const { return m_isCancellable; }
    void setCancellable(bool isCancellable) { m_isCancellable = isCancellable; }
    bool isCancelled() const { return m_isCancelled; }
    /// Runs the cancellation handler and cancels the children, the first time it is called.
    void cancel();
    /// A handler that comes after the cancellation is run at once.
    void setCancellationHandler(std::function<void()> handler);

    /// The list whose files are worked on; its window shows this, and what goes wrong.
    HRFInteractionOwner owner() const { return m_owner; }
    void setOwner(HRFInteractionOwner owner) { m_owner = owner; }

    void addChild(const std::shared_ptr<HRFProgress> &child);

private:
    std::vector<std::shared_ptr<HRFProgress>> children() const;

    std::atomic<qlonglong> m_total;
    std::atomic<qlonglong> m_completed = 0;
    std::atomic<bool> m_isCancellable = true;
    std::atomic<bool> m_isCancelled = false;
    std::atomic<HRFInteractionOwner> m_owner = nullptr;

    mutable std::mutex m_mutex; ///< guards the members below, and the change of m_isCancelled
    QString m_description;
    QString m_additionalDescription;
    std::function<void()> m_cancellationHandler;
    std::vector<std::shared_ptr<HRFProgress>> m_children;
};
