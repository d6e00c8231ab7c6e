#include "kit/HRFBackground.h"

#include "kit/HRFMainThread.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace HRFBackground {

namespace {

struct Counter
{
    std::mutex mutex; ///< guards the number
    std::condition_variable isIdle;
    int running = 0;
};

Counter &counter()
{
    static auto *const theCounter = new Counter; // threads may count until the very end
    return *theCounter;
}

bool isIdle()
{
    const std::lock_guard lock(counter().mutex);
    return counter().running == 0;
}

} // namespace

/// A thread for each block: there are few blocks, and in a pool of some threads those that wait for
/// each other could keep each other from running.
void run(std::function<void()> block)
{
    {
        const std::lock_guard lock(counter().mutex);
        ++counter().running;
    }
    std::thread([block = std::move(block)]() mutable {
        HRFMainThread::runLoggingFailures(block);
        block = nullptr; // what it holds is gone before it counts as done
        {
            const std::lock_guard lock(counter().mutex);
            --counter().running;
        }
        counter().isIdle.notify_all();
        HRFMainThread::wakeUp();
    }).detach();
}

void waitUntilIdle()
{
    if (HRFMainThread::isCurrent())
        return HRFMainThread::serveUntil(&isIdle);
    std::unique_lock lock(counter().mutex);
    counter().isIdle.wait(lock, [] { return counter().running == 0; });
}

} // namespace HRFBackground

void HRFBackgroundGroup::waitUntilIdle()
{
    HRFMainThread::serveUntil([this] { return m_running == 0; });
}

void HRFBackgroundGroup::run(std::function<void()> block)
{
    ++m_running;
    HRFBackground::run([this, block = std::move(block)]() mutable {
        HRFMainThread::runLoggingFailures(block);
        block = nullptr;
        --m_running; // the group may be gone from here on
        HRFMainThread::wakeUp();
    });
}
