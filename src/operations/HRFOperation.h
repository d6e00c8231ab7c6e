#pragma once

#include <QtGlobal>

#include <condition_variable>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

class HRFOperationSchedule;

/// One piece of work for a queue (HRFWorkQueue). It runs at most once: it is pending, executing,
/// then finished. An operation that is cancelled before it has started is finished at once.
///
/// Operations are made with std::make_shared. All members may be called from any thread.
class HRFOperation : public std::enable_shared_from_this<HRFOperation>
{
public:
    enum class Priority { Normal, High };

    HRFOperation() = default;
    HRFOperation(const HRFOperation &) = delete;
    HRFOperation &operator=(const HRFOperation &) = delete;
    /// Lets go of those that waited for it, if it never ran.
    virtual ~HRFOperation();

    bool isExecuting() const;
    bool isFinished() const;
    bool isCancelled() const;

    /// A running operation goes on until it looks at isCancelled().
    void cancel();
    /// Cancels the operation unless it has started; answers whether it did.
    ///
    /// @param beforeFinishing called, when it did, before anybody sees the operation finished
    bool cancelIfNotStarted(const std::function<void()> &beforeFinishing = {});

    /// Lets this operation start only when the other one is finished; the other one may belong to
    /// another queue. To be called before this one is in a queue (assertion "!queue").
    void addDependency(const std::shared_ptr<HRFOperation> &operation);

    Priority queuePriority() const;
    /// To be called before this operation is in a queue (assertion "!queue").
    void setQueuePriority(Priority priority);

    /// On the main thread, blocks for it are served meanwhile.
    void waitUntilFinished();

protected:
    /// The work.
    virtual void main() = 0;
    /// Called when main has thrown, which ends the operation.
    virtual void mainDidThrow(const std::exception &failure) { static_cast<void>(failure); }

private:
    friend class HRFOperationSchedule;
    /// Ending: cancelled before the start, and about to be finished.
    enum class State { Pending, Executing, Ending, Finished };

    // For the schedule:
    bool start();
    void run();
    static void waitOnMainThread(const std::function<bool()> &condition);

    void finish();
    void announceFinish();
    void dependencyDidFinish();

    mutable std::mutex m_mutex; ///< guards the members below; taken after that of the schedule
    std::condition_variable m_didFinish;
    State m_state = State::Pending;
    bool m_isCancelled = false;
    Priority m_priority = Priority::Normal;
    int m_unfinishedDependencies = 0;
    std::vector<std::weak_ptr<HRFOperation>> m_dependents;
    std::weak_ptr<HRFOperationSchedule> m_schedule; ///< of the queue that the operation is in
    quint64 m_number = 0; ///< in the schedule; 0 before it is in a queue, final afterwards
};
