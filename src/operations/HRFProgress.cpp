#include "operations/HRFProgress.h"

#include <algorithm>
#include <utility>

HRFProgress::HRFProgress(qlonglong totalUnitCount) : m_total(totalUnitCount) { }

qlonglong HRFProgress::totalUnitCount() const
{
    qlonglong count = m_total;
    for (const auto &child : children())
        count += child->totalUnitCount();
    return count;
}

qlonglong HRFProgress::completedUnitCount() const
{
    qlonglong count = m_completed;
    for (const auto &child : children())
        count += child->completedUnitCount();
    return count;
}

double HRFProgress::fractionCompleted() const
{
    const qlonglong total = totalUnitCount();
    return total > 0 ? std::clamp(double(completedUnitCount()) / double(total), 0.0, 1.0) : 0.0;
}

bool HRFProgress::isFinished() const
{
    const qlonglong total = totalUnitCount();
    return total > 0 && completedUnitCount() >= total;
}

QString HRFProgress::localizedDescription() const
{
    const std::lock_guard lock(m_mutex);
    return m_description;
}

void HRFProgress::setLocalizedDescription(const QString &text)
{
    const std::lock_guard lock(m_mutex);
    m_description = text;
}

QString HRFProgress::localizedAdditionalDescription() const
{
    const std::lock_guard lock(m_mutex);
    return m_additionalDescription;
}

void HRFProgress::setLocalizedAdditionalDescription(const QString &text)
{
    const std::lock_guard lock(m_mutex);
    m_additionalDescription = text;
}

void HRFProgress::cancel()
{
    std::function<void()> handler;
    {
        const std::lock_guard lock(m_mutex);
        if (m_isCancelled.exchange(true))
            return;
        handler = std::exchange(m_cancellationHandler, {});
    }
    if (handler)
        handler();
    for (const auto &child : children())
        child->cancel();
}

void HRFProgress::setCancellationHandler(std::function<void()> handler)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_isCancelled) {
            m_cancellationHandler = std::move(handler);
            return;
        }
    }
    if (handler)
        handler();
}

void HRFProgress::addChild(const std::shared_ptr<HRFProgress> &child)
{
    {
        const std::lock_guard lock(m_mutex);
        m_children.push_back(child);
    }
    if (isCancelled())
        child->cancel();
}

std::vector<std::shared_ptr<HRFProgress>> HRFProgress::children() const
{
    const std::lock_guard lock(m_mutex);
    return m_children;
}
