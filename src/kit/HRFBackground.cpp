#include "kit/HRFBackground.h"

#include "kit/HRFMainThread.h"

#include <QThreadPool>

#include <atomic>

namespace HRFBackground {

namespace {

std::atomic<int> running = 0;

/// Of its own: in the global pool, which has a thread per core, blocks that wait for each other
/// would keep each other from running.
QThreadPool &pool()
{
    static QThreadPool *const thePool = [] {
        constexpr int manyThreads = 64;
        auto *made = new QThreadPool; // never destroyed: it may be used until the very end
        made->setMaxThreadCount(manyThreads);
        return made;
    }();
    return *thePool;
}

} // namespace

void run(std::function<void()> block)
{
    ++running;
    pool().start([block = std::move(block)]() mutable {
        HRFMainThread::runLoggingFailures(block);
        block = nullptr; // what it holds is gone before it counts as done
        --running;
        HRFMainThread::wakeUp();
    });
}

void waitUntilIdle()
{
    if (HRFMainThread::isCurrent())
        HRFMainThread::serveUntil([] { return running == 0; });
    else
        pool().waitForDone();
}

} // namespace HRFBackground

HRFBackgroundGroup::~HRFBackgroundGroup()
{
    HRFMainThread::serveUntil([this] { return isIdle(); });
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
