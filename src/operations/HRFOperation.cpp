#include "operations/HRFOperation.h"

#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "operations/HRFOperationSchedule.h"

#include <QLoggingCategory>

#include <atomic>
#include <utility>

namespace {

/// How many waits of the main thread for operations go on. While there is none, nobody wakes it up.
std::atomic<int> mainThreadWaits = 0;

} // namespace

HRFOperation::~HRFOperation()
{
    announceFinish();
}

bool HRFOperation::isExecuting() const
{
    const std::lock_guard lock(m_mutex);
    return m_state == State::Executing;
}

bool HRFOperation::isFinished() const
{
    const std::lock_guard lock(m_mutex);
    return m_state == State::Finished;
}

bool HRFOperation::isCancelled() const
{
    const std::lock_guard lock(m_mutex);
    return m_isCancelled;
}

void HRFOperation::cancel()
{
    if (cancelIfNotStarted())
        return;
    const std::lock_guard lock(m_mutex);
    m_isCancelled = m_isCancelled || m_state == State::Executing;
}

bool HRFOperation::cancelIfNotStarted(const std::function<void()> &beforeFinishing)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_state != State::Pending)
            return false;
        m_state = State::Ending;
        m_isCancelled = true;
    }
    if (beforeFinishing)
        beforeFinishing();
    finish();
    return true;
}

void HRFOperation::addDependency(const std::shared_ptr<HRFOperation> &operation)
{
    HRFRequire(operation && operation.get() != this, "operation");
    {
        const std::lock_guard lock(m_mutex);
        HRFRequire(m_number == 0, "!queue");
        ++m_unfinishedDependencies;
    }
    {
        const std::lock_guard lock(operation->m_mutex);
        if (operation->m_state != State::Finished) {
            operation->m_dependents.push_back(weak_from_this());
            return;
        }
    }
    dependencyDidFinish();
}

HRFOperation::Priority HRFOperation::queuePriority() const
{
    const std::lock_guard lock(m_mutex);
    return m_priority;
}

void HRFOperation::setQueuePriority(Priority priority)
{
    const std::lock_guard lock(m_mutex);
    HRFRequire(m_number == 0, "!queue");
    m_priority = priority;
}

void HRFOperation::waitUntilFinished()
{
    if (HRFMainThread::isCurrent())
        return waitOnMainThread([this] { return isFinished(); });
    std::unique_lock lock(m_mutex);
    m_didFinish.wait(lock, [this] { return m_state == State::Finished; });
}

void HRFOperation::waitOnMainThread(const std::function<bool()> &condition)
{
    ++mainThreadWaits;
    HRFMainThread::serveUntil(condition);
    --mainThreadWaits;
}

bool HRFOperation::start()
{
    const std::lock_guard lock(m_mutex);
    if (m_state != State::Pending)
        return false;
    m_state = State::Executing;
    return true;
}

void HRFOperation::run()
{
    try {
        main();
    } catch (const std::exception &failure) {
        qCritical("%s", failure.what());
        mainDidThrow(failure);
    }
    finish();
}

void HRFOperation::finish()
{
    const std::shared_ptr<HRFOperation> self = shared_from_this(); // the queue lets go of it
    std::shared_ptr<HRFOperationSchedule> schedule;
    {
        const std::lock_guard lock(m_mutex);
        schedule = m_schedule.lock();
        if (!schedule)
            m_state = State::Finished;
    }
    if (schedule)
        schedule->finish(*this);
    announceFinish();
}

void HRFOperation::announceFinish()
{
    std::vector<std::weak_ptr<HRFOperation>> dependents;
    {
        const std::lock_guard lock(m_mutex);
        dependents.swap(m_dependents);
    }
    m_didFinish.notify_all();
    for (const auto &dependent : dependents)
        if (const auto operation = dependent.lock())
            operation->dependencyDidFinish();
    if (mainThreadWaits > 0)
        HRFMainThread::wakeUp();
}

void HRFOperation::dependencyDidFinish()
{
    std::shared_ptr<HRFOperationSchedule> schedule;
    {
        const std::lock_guard lock(m_mutex);
        if (--m_unfinishedDependencies == 0)
            schedule = m_schedule.lock();
    }
    if (schedule)
        schedule->dependenciesDidFinish(m_number);
}
