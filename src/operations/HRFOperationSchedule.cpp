#include "operations/HRFOperationSchedule.h"

#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "operations/HRFOperation.h"

void HRFOperationSchedule::add(const std::shared_ptr<HRFOperation> &operation)
{
    const std::lock_guard lock(m_mutex);
    insert(operation, false);
}

void HRFOperationSchedule::addBarrier(const std::shared_ptr<HRFOperation> &operation)
{
    const std::lock_guard lock(m_mutex);
    ++m_segment;
    insert(operation, true);
    ++m_segment;
}

void HRFOperationSchedule::insert(const std::shared_ptr<HRFOperation> &operation, bool isBarrier)
{
    // With both locks held, an operation is either finished already, or its end is told here.
    const std::lock_guard lock(operation->m_mutex);
    HRFRequire(operation->m_number == 0, "!queue");
    operation->m_number = ++m_lastNumber;
    if (operation->m_state == HRFOperation::State::Finished)
        return m_progress->addCompleted();
    operation->m_schedule = weak_from_this();
    ++m_unfinished[m_segment];
    const Entry &entry =
        m_entries.emplace(m_lastNumber, Entry{operation, m_segment, isBarrier}).first->second;
    if (operation->m_unfinishedDependencies > 0)
        return;
    m_ready.insert(rankOf(m_lastNumber, entry));
    m_hasWork.notify_one();
}

HRFOperationSchedule::Rank HRFOperationSchedule::rankOf(quint64 number, const Entry &entry)
{
    // The priority of an operation in a queue is final.
    return {entry.segment, -int(entry.operation->m_priority), number};
}

void HRFOperationSchedule::dependenciesDidFinish(quint64 number)
{
    const std::lock_guard lock(m_mutex);
    const auto place = m_entries.find(number);
    if (place == m_entries.end())
        return; // it was cancelled
    m_ready.insert(rankOf(number, place->second));
    m_hasWork.notify_one();
}

void HRFOperationSchedule::finish(HRFOperation &operation)
{
    const std::lock_guard lock(m_mutex);
    const auto place = m_entries.find(operation.m_number);
    const auto &[number, entry] = *place;
    m_ready.erase(rankOf(number, entry));
    if (!entry.isBarrier)
        m_progress->addCompleted();
    const auto segment = m_unfinished.find(entry.segment);
    if (--segment->second == 0) {
        m_unfinished.erase(segment);
        m_hasWork.notify_all();
    }
    m_entries.erase(place);
    {
        // Whoever sees the operation finished sees it gone from the queue, and the reverse.
        const std::lock_guard operationLock(operation.m_mutex);
        operation.m_state = HRFOperation::State::Finished;
    }
    if (m_entries.empty())
        m_isEmpty.notify_all();
}

std::shared_ptr<HRFOperation> HRFOperationSchedule::takeNext()
{
    while (!m_ready.empty()) {
        const auto &[segment, priority, number] = *m_ready.begin();
        if (segment != m_unfinished.begin()->first)
            break; // behind a barrier
        std::shared_ptr<HRFOperation> operation = m_entries.at(number).operation;
        m_ready.erase(m_ready.begin());
        if (operation->start())
            return operation;
    }
    return nullptr;
}

void HRFOperationSchedule::work()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        std::shared_ptr<HRFOperation> operation;
        m_hasWork.wait(lock, [&] {
            operation = takeNext();
            return operation || m_isClosed;
        });
        if (!operation)
            return;
        lock.unlock();
        operation->run();
        operation.reset();
        lock.lock();
    }
}

void HRFOperationSchedule::close()
{
    const std::lock_guard lock(m_mutex);
    m_isClosed = true;
    m_hasWork.notify_all();
}

std::vector<std::shared_ptr<HRFOperation>> HRFOperationSchedule::operations() const
{
    const std::lock_guard lock(m_mutex);
    std::vector<std::shared_ptr<HRFOperation>> operations;
    for (const auto &[number, entry] : m_entries)
        if (!entry.isBarrier)
            operations.push_back(entry.operation);
    return operations;
}

std::size_t HRFOperationSchedule::count() const
{
    const std::lock_guard lock(m_mutex);
    return m_entries.size();
}

void HRFOperationSchedule::waitUntilEmpty()
{
    if (HRFMainThread::isCurrent())
        return HRFOperation::waitOnMainThread([this] { return count() == 0; });
    std::unique_lock lock(m_mutex);
    m_isEmpty.wait(lock, [this] { return m_entries.empty(); });
}
