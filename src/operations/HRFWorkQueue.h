#pragma once

#include "operations/HRFOperation.h"
#include "operations/HRFProgress.h"

#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

class HRFOperationSchedule;

/// Runs operations on threads of its own, one at a time unless told otherwise.
///
/// Those that are ready, and not behind a barrier, run by priority, then in the order in which they
/// came. What an operation throws is logged and ends that operation. All members may be called from
/// any thread but the queue's own, which must not wait for it, nor destroy it.
class HRFWorkQueue
{
public:
    HRFWorkQueue();
    HRFWorkQueue(const HRFWorkQueue &) = delete;
    HRFWorkQueue &operator=(const HRFWorkQueue &) = delete;
    /// Cancels all operations and waits for the one that runs.
    virtual ~HRFWorkQueue();

    /// How many operations may run at a time: 1 at first. It can only grow.
    void setMaxConcurrentOperationCount(std::size_t count);

    void addOperation(const std::shared_ptr<HRFOperation> &operation);
    void addOperations(const std::vector<std::shared_ptr<HRFOperation>> &operations,
                       bool waitUntilFinished);
    /// Runs a block when all that came before is finished, and before anything that comes later.
    void addBarrierBlock(std::function<void()> block);

    /// Barriers stay.
    void cancelAllOperations();
    /// Those that are not finished, in the order in which they came.
    std::vector<std::shared_ptr<HRFOperation>> operations() const;
    /// How many operations and barriers are not finished.
    std::size_t operationCount() const;
    /// On the main thread, blocks for it are served meanwhile.
    void waitUntilAllOperationsAreFinished();

    /// Counts the operations that have finished; who submits a batch sets it to 0 and the total, by
    /// a barrier.
    const std::shared_ptr<HRFProgress> &progress() const;

protected:
    /// Called for each operation before it is queued.
    virtual void preProcessOperation(const std::shared_ptr<HRFOperation> &operation)
    {
        static_cast<void>(operation);
    }

private:
    /// Answers whether there was room for one more.
    bool makeThread();

    const std::shared_ptr<HRFOperationSchedule> m_schedule;
    std::mutex m_mutex; ///< guards the members below
    std::size_t m_width = 1;
    std::vector<std::jthread> m_threads; ///< at most m_width
};
