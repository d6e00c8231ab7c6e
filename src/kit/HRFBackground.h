#pragma once

#include <atomic>
#include <functional>

/// Work off the main thread that mostly waits: for a queue, for an answer of the user.
namespace HRFBackground {

/// Runs a block on some other thread; a failure that it throws is logged.
void run(std::function<void()> block);

/// Waits until every block is done. On the main thread blocks for it are served meanwhile.
void waitUntilIdle();

} // namespace HRFBackground

/// Background work of one owner, on whose end it is waited for. It must not wait for the main
/// thread then: while an owner goes, no blocks are served, as they would come across what is left
/// of it.
class HRFBackgroundGroup
{
public:
    HRFBackgroundGroup() = default;
    HRFBackgroundGroup(const HRFBackgroundGroup &) = delete;
    HRFBackgroundGroup &operator=(const HRFBackgroundGroup &) = delete;
    ~HRFBackgroundGroup();

    void run(std::function<void()> block);
    /// On the main thread, which serves blocks meanwhile.
    void waitUntilIdle();

private:
    std::atomic<int> m_running = 0;
};
