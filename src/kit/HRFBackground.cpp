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

void count(int step)
{
    {
        const std::lock_guard lock(counter().mutex);
        counter().running += step;
    }
    counter().isIdle.notify_all();
    HRFMainThread::wakeUp();
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
    auto work = [block = std::move(block)]() mutable {
        HRFMainThread::runLoggingFailures(block);
        block = nullptr; // what it holds is gone before it counts as done
        count(-1);
    };
    count(1);
    try {
        std::thread(std::move(work)).detach();
    } catch (...) { // the system has no more threads
        count(-1);
        throw;
    }
}

void waitUntilIdle()
{
    if (HRFMainThread::isCurrent())
        return HRFMainThread::serveUntil(&isIdle);
    std::unique_lock lock(counter().mutex);
    counter().isIdle.wait(lock, [] { return counter().running == 0; });
}

} // namespace HRFBackground

HRFBackgroundGroup::~HRFBackgroundGroup()
{
    HRFMainThread::waitUntil([this] { return m_running == 0; });
}

void HRFBackgroundGroup::waitUntilIdle()
{
    HRFMainThread::serveUntil([this] { return m_running == 0; });
}

void HRFBackgroundGroup::run(std::function<void()> block)
{
    auto work = [this, block = std::move(block)]() mutable {
        HRFMainThread::runLoggingFailures(block);
        block = nullptr;
        --m_running; // the group may be gone from here on
        HRFMainThread::wakeUp();
    };
    ++m_running;
    try {
        HRFBackground::run(std::move(work));
    } catch (...) {
        --m_running;
        throw;
    }
}
