#include "operations/HRFWorkQueue.h"

#include "kit/HRFAssert.h"
#include "operations/HRFOperationSchedule.h"

#include <utility>

namespace {

class BlockOperation : public HRFOperation
{
public:
    explicit BlockOperation(std::function<void()> block) : m_block(std::move(block)) { }

protected:
    void main() override { m_block(); }

private:
    const std::function<void()> m_block;
};

} // namespace

HRFWorkQueue::HRFWorkQueue() : m_schedule(std::make_shared<HRFOperationSchedule>()) { }

HRFWorkQueue::~HRFWorkQueue()
{
    cancelAllOperations();
    waitUntilAllOperationsAreFinished();
    m_schedule->close();
}

void HRFWorkQueue::setMaxConcurrentOperationCount(std::size_t count)
{
    {
        const std::lock_guard lock(m_mutex);
        HRFRequire(count >= m_width, "count >= maxConcurrentOperationCount");
        m_width = count;
    }
    while (makeThread()) { }
}

bool HRFWorkQueue::makeThread()
{
    const std::lock_guard lock(m_mutex);
    if (m_threads.size() >= m_width)
        return false;
    m_threads.emplace_back([schedule = m_schedule] { schedule->work(); });
    return true;
}

void HRFWorkQueue::addOperation(const std::shared_ptr<HRFOperation> &operation)
{
    addOperations({operation}, false);
}

void HRFWorkQueue::addOperations(const std::vector<std::shared_ptr<HRFOperation>> &operations,
                                 bool waitUntilFinished)
{
    makeThread();
    for (const auto &operation : operations)
        preProcessOperation(operation);
    for (const auto &operation : operations)
        m_schedule->add(operation);
    if (!waitUntilFinished)
        return;
    for (const auto &operation : operations)
        operation->waitUntilFinished();
}

void HRFWorkQueue::addBarrierBlock(std::function<void()> block)
{
    makeThread();
    m_schedule->addBarrier(std::make_shared<BlockOperation>(std::move(block)));
}

void HRFWorkQueue::cancelAllOperations()
{
    for (const auto &operation : operations())
        operation->cancel();
}

std::vector<std::shared_ptr<HRFOperation>> HRFWorkQueue::operations() const
{
    return m_schedule->operations();
}

std::size_t HRFWorkQueue::operationCount() const
{
    return m_schedule->count();
}

void HRFWorkQueue::waitUntilAllOperationsAreFinished()
{
    m_schedule->waitUntilEmpty();
}

const std::shared_ptr<HRFProgress> &HRFWorkQueue::progress() const
{
    return m_schedule->progress();
}
