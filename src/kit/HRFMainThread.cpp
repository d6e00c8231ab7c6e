#include "kit/HRFMainThread.h"

#include "kit/HRFAssert.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QSocketNotifier>

#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <semaphore>
#include <sys/eventfd.h>
#include <thread>

namespace HRFMainThread {

namespace {

// Static objects are made by the thread that runs main().
const std::thread::id mainThread = std::this_thread::get_id();

struct Inbox
{
    std::mutex mutex; ///< guards the members below
    std::condition_variable changed;
    std::deque<std::function<void()>> blocks;
    bool wasWokenUp = false;
};

Inbox &inbox()
{
    static auto *const theInbox = new Inbox; // threads may look in until the very end
    return *theInbox;
}

/// Can be read when blocks wait. Qt's own events would do, but what they guard with Qt's locks is
/// hidden from the thread sanitizer.
int signalDescriptor()
{
    static const int descriptor = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    return descriptor;
}

void runBlocks()
{
    Inbox &box = inbox();
    std::unique_lock lock(box.mutex);
    while (!box.blocks.empty()) {
        const std::function<void()> block = std::move(box.blocks.front());
        box.blocks.pop_front();
        if (!box.blocks.empty()) // for an event loop that the block may run, to ask a question
            ::eventfd_write(signalDescriptor(), 1);
        lock.unlock();
        block();
        lock.lock();
    }
}

/// Runs blocks when the event loop comes round.
void listenForBlocks()
{
    auto *notifier = new QSocketNotifier(signalDescriptor(), QSocketNotifier::Read,
                                         QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [] {
        eventfd_t count = 0;
        ::eventfd_read(signalDescriptor(), &count);
        runBlocks();
    });
}
Q_COREAPP_STARTUP_FUNCTION(listenForBlocks)

void post(std::function<void()> block)
{
    Inbox &box = inbox();
    {
        const std::lock_guard lock(box.mutex);
        box.blocks.push_back(std::move(block));
    }
    box.changed.notify_all();
    ::eventfd_write(signalDescriptor(), 1);
}

} // namespace

bool isCurrent()
{
    return std::this_thread::get_id() == mainThread;
}

void runLoggingFailures(const std::function<void()> &block)
{
    try {
        block();
    } catch (const std::exception &failure) {
        qCritical("%s", failure.what());
    }
}

void run(std::function<void()> block, Wait wait)
{
    if (wait == Wait::No)
        return post([block = std::move(block)] { runLoggingFailures(block); });
    if (isCurrent())
        return block();
    std::exception_ptr failure;
    std::binary_semaphore done(0);
    post([&] {
        try {
            block();
        } catch (...) {
            failure = std::current_exception();
        }
        done.release();
    });
    done.acquire();
    if (failure)
        std::rethrow_exception(failure);
}

void serveUntil(const std::function<bool()> &condition)
{
    HRFRequire(isCurrent(), "HRFMainThread::isCurrent()");
    Inbox &box = inbox();
    while (true) {
        runBlocks();
        {
            const std::lock_guard lock(box.mutex);
            box.wasWokenUp = false;
        }
        if (condition())
            return;
        std::unique_lock lock(box.mutex);
        box.changed.wait(lock, [&] { return box.wasWokenUp || !box.blocks.empty(); });
    }
}

void waitUntil(const std::function<bool()> &condition)
{
    HRFRequire(isCurrent(), "HRFMainThread::isCurrent()");
    std::unique_lock lock(inbox().mutex);
    inbox().changed.wait(lock, condition);
}

void wakeUp()
{
    Inbox &box = inbox();
    {
        const std::lock_guard lock(box.mutex);
        box.wasWokenUp = true;
    }
    box.changed.notify_all();
}

} // namespace HRFMainThread
