#pragma once

#include <functional>
#include <memory>
#include <utility>

/// Blocks of work for the main thread, from whatever thread.
///
/// The main thread runs them from its event loop, and also while it waits in serveUntil: a worker
/// that needs an answer of the main thread gets it even when the main thread waits for that very
/// worker.
namespace HRFMainThread {

enum class Wait { No, Yes };

/// Whether the calling thread is the main thread.
bool isCurrent();

/// Runs a block on the main thread. With Wait::Yes the call returns when the block is done (at once
/// on the main thread itself) and hands on what the block throws.
void run(std::function<void()> block, Wait wait);

/// Waits on the main thread until the condition holds, and serves submitted blocks meanwhile, but
/// no other events. Whoever makes the condition true must call wakeUp afterwards.
void serveUntil(const std::function<bool()> &condition);

/// The same without serving anything. The condition is looked at under a lock, and so must not
/// call anything here.
void waitUntil(const std::function<bool()> &condition);

/// Lets serveUntil and waitUntil look at their conditions again.
void wakeUp();

/// An object of the main thread that other threads may hold: it is destroyed on the main thread,
/// whoever lets go of it last.
template <class T, class... Arguments> std::shared_ptr<T> makeShared(Arguments &&...arguments)
{
    return std::shared_ptr<T>(new T(std::forward<Arguments>(arguments)...), [](T *object) {
        if (isCurrent())
            delete object;
        else
            run([object] { delete object; }, Wait::No);
    });
}

/// Logs what a block threw that nobody waits for.
void runLoggingFailures(const std::function<void()> &block);

} // namespace HRFMainThread
