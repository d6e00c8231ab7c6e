#include "operations/HRFWorkQueue.h"

#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "operations/HRFTestOperations.h"

#include <gtest/gtest.h>

#include <atomic>
#include <random>

using Priority = HRFOperation::Priority;

namespace {

class HRFWorkQueueTest : public testing::Test
{
protected:
    /// An operation that notes its letter when it runs.
    std::shared_ptr<HRFOperation> letter(char name, Priority priority = Priority::Normal)
    {
        auto operation = std::make_shared<HRFBlockOperation>([this, name] { note(name); });
        operation->setQueuePriority(priority);
        return operation;
    }
    void note(char name)
    {
        const std::lock_guard lock(mutex);
        order += name;
    }
    /// What holds the queue from now on.
    static std::shared_ptr<HRFGate> hold(HRFWorkQueue &held)
    {
        auto gate = std::make_shared<HRFGate>();
        held.addOperation(gate);
        gate->waitUntilStarted();
        return gate;
    }

    std::mutex mutex; ///< guards order
    std::string order;
    HRFWorkQueue queue;
};

TEST_F(HRFWorkQueueTest, RunsByBarrierThenPriorityThenOrder)
{
    const auto gate = hold(queue);
    queue.addOperation(letter('b'));
    queue.addOperations({letter('c'), letter('a', Priority::High)}, false);
    queue.addBarrierBlock([this] { note('|'); });
    queue.addOperation(letter('e'));
    queue.addOperation(letter('d', Priority::High));
    const auto cancelled = letter('x', Priority::High);
    queue.addOperation(cancelled);
    queue.addBarrierBlock([this] {
        note('|');
        queue.progress()->setCompletedUnitCount(0);
        queue.progress()->setTotalUnitCount(4);
    });
    const auto early = letter('y');
    early->cancel();
    queue.addOperations({letter('f'), early, letter('g')}, false);

    EXPECT_EQ(queue.operations().size(), 9U); // the gate, and neither barriers nor the cancelled y
    EXPECT_TRUE(gate->isExecuting());
    cancelled->cancel();
    EXPECT_TRUE(cancelled->isFinished());
    EXPECT_EQ(queue.operationCount(), 10U);
    gate->open();
    queue.waitUntilAllOperationsAreFinished();
    EXPECT_EQ(order, "abc|de|fg");
    EXPECT_TRUE(gate->isFinished());
    EXPECT_EQ(queue.progress()->completedUnitCount(), 2);
    EXPECT_THROW(queue.addOperation(cancelled), HRFAssertionFailure);
}

TEST_F(HRFWorkQueueTest, DependenciesHoldAcrossQueuesAndNotForTheCancelled)
{
    HRFWorkQueue other;
    const auto gate = hold(other);
    const auto waiting = letter('b', Priority::High);
    waiting->addDependency(gate);
    const auto cancelled = letter('x');
    cancelled->addDependency(gate);
    const auto behindCancelled = letter('a');
    behindCancelled->addDependency(cancelled);
    queue.addOperations({waiting, behindCancelled, cancelled}, false);
    EXPECT_THROW(waiting->addDependency(cancelled), HRFAssertionFailure);
    cancelled->cancel();
    behindCancelled->waitUntilFinished();
    EXPECT_FALSE(waiting->isFinished());
    gate->open();
    waiting->waitUntilFinished();
    EXPECT_EQ(order, "ab");
    EXPECT_EQ(queue.operationCount(), 0U);

    const auto late = letter('c');
    late->addDependency(gate); // finished long since
    {
        const auto dropped = letter('x');
        late->addDependency(dropped);
    }
    queue.addOperations({late}, true);
    EXPECT_EQ(order, "abc");
}

TEST_F(HRFWorkQueueTest, ABarrierWaitsForWhatIsNotReady)
{
    HRFWorkQueue other;
    for (const bool isCancelled : {true, false}) {
        const auto gate = hold(other);
        const auto waiting = letter('a');
        waiting->addDependency(gate);
        queue.addOperation(waiting);
        queue.addBarrierBlock([&] { note(waiting->isFinished() ? '|' : '!'); });
        if (isCancelled) {
            waiting->cancel();
            queue.waitUntilAllOperationsAreFinished();
        }
        gate->open();
        queue.waitUntilAllOperationsAreFinished();
    }
    EXPECT_EQ(order, "|a|");
}

TEST_F(HRFWorkQueueTest, WaitingServesTheMainThreadWhateverOperationsThrow)
{
    const auto askMainThread = [this] {
        HRFMainThread::run([this] { note('a'); }, HRFMainThread::Wait::Yes);
    };
    const auto failing = std::make_shared<HRFBlockOperation>([] { HRFRequire(false, "this"); });
    queue.addOperations({failing, std::make_shared<HRFBlockOperation>(askMainThread)}, true);
    EXPECT_TRUE(failing->isFinished());
    queue.addBarrierBlock(askMainThread);
    queue.waitUntilAllOperationsAreFinished();
    EXPECT_EQ(order, "aa");
}

TEST_F(HRFWorkQueueTest, AQueueThatGoesCancelsAllButTheRunning)
{
    auto local = std::make_unique<HRFWorkQueue>();
    const auto gate = hold(*local);
    const auto waiting = letter('x');
    local->addOperation(waiting);
    const std::jthread opening([&] {
        waiting->waitUntilFinished();
        gate->open();
    });
    local.reset();
    EXPECT_TRUE(gate->isFinished());
    EXPECT_TRUE(gate->isCancelled());
    EXPECT_TRUE(waiting->isCancelled());
    EXPECT_EQ(order, "");
}

/// Runs once all of its dependencies are finished; notes when that is not so.
class Checked : public HRFOperation
{
public:
    explicit Checked(std::atomic<int> &faults) : m_faults(faults) { }

    void dependOn(const std::shared_ptr<Checked> &other)
    {
        addDependency(other);
        m_others.push_back(other);
    }

    std::atomic<int> runs = 0;

protected:
    void main() override
    {
        ++runs;
        for (const auto &other : m_others)
            m_faults += other->isFinished() ? 0 : 1;
    }

private:
    std::atomic<int> &m_faults;
    std::vector<std::shared_ptr<Checked>> m_others;
};

/// Wide queues, dependencies among them, and cancelling from another thread: every operation
/// finishes, none runs twice or too early.
TEST_F(HRFWorkQueueTest, NothingIsLostOrEarlyUnderLoad)
{
    constexpr int count = 20000;
    constexpr unsigned int seed = 4;
    std::mt19937 random(seed);
    std::atomic<int> faults = 0;
    std::vector<std::shared_ptr<Checked>> operations;
    HRFWorkQueue queues[2];
    for (HRFWorkQueue &wide : queues)
        wide.setMaxConcurrentOperationCount(3);
    for (int i = 0; i < count; ++i) {
        const auto operation = std::make_shared<Checked>(faults);
        for (int n = 0; i > 0 && n < i % 3; ++n)
            operation->dependOn(operations[random() % operations.size()]);
        operation->setQueuePriority(i % 5 == 0 ? Priority::High : Priority::Normal);
        operations.push_back(operation);
    }
    {
        const std::jthread cancelling([&operations] {
            for (std::size_t i = 0; i < operations.size(); i += 7)
                operations[i]->cancel();
        });
        for (std::size_t i = 0; i < operations.size(); ++i) {
            queues[i % 2].addOperation(operations[i]);
            if (i % 1000 == 0)
                queues[0].addBarrierBlock([] { });
        }
    }
    for (HRFWorkQueue &wide : queues)
        wide.waitUntilAllOperationsAreFinished();
    EXPECT_EQ(faults, 0);
    for (const auto &operation : operations) {
        EXPECT_TRUE(operation->isFinished());
        EXPECT_LE(operation->runs, 1);
        EXPECT_TRUE(operation->runs == 1 || operation->isCancelled());
    }
}

} // namespace
