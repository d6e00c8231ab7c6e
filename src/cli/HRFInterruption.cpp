#include "cli/HRFInterruption.h"

#include <atomic>
#include <csignal>
#include <initializer_list>

namespace HRFInterruption {

namespace {

std::atomic<bool> requested = false;
static_assert(std::atomic<bool>::is_always_lock_free, "set in a signal handler");

} // namespace

void handleSignals()
{
    // Without SA_RESTART: a question that waits for an answer ends, too.
    struct sigaction action = {};
    action.sa_handler = [](int) { requested = true; };
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        ::sigaction(signal, &action, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
}

bool isRequested()
{
    return requested;
}

} // namespace HRFInterruption
