#include "cli/HRFInterruption.h"

#include <atomic>
#include <csignal>

namespace HRFInterruption {

namespace {

std::atomic<bool> requested = false;
static_assert(std::atomic<bool>::is_always_lock_free, "set in a signal handler");

} // namespace

void handleSignals()
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, [](int) { requested = true; });
    std::signal(SIGPIPE, SIG_IGN);
}

bool isRequested()
{
    return requested;
}

} // namespace HRFInterruption
