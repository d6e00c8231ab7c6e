#include "kit/HRFInterruption.h"

#include <QtGlobal>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>

namespace HRFInterruption {

namespace {

std::atomic<bool> requested = false;
constexpr std::array signals{SIGINT, SIGTERM, SIGHUP};
static_assert(std::atomic<bool>::is_always_lock_free, "set in a signal handler");

} // namespace

int descriptor()
{
    static const int theDescriptor = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    return theDescriptor;
}

void handleSignals(Again again)
{
    static bool isOnlyOnce = false;
    isOnlyOnce = again == Again::EndsAtOnce;
    static int wakeUpDescriptor = -1; // the handler must not initialise anything
    wakeUpDescriptor = descriptor();
    // Without SA_RESTART: a question that waits for an answer ends, too.
    struct sigaction action = {};
    action.sa_handler = [](int number) {
        requested = true;
        const quint64 one = 1;
        const int reason = errno;
        static_cast<void>(::write(wakeUpDescriptor, &one, sizeof one) == sizeof one);
        if (isOnlyOnce) // the end of a session sends several different ones at once
            ::signal(number, SIG_DFL);
        errno = reason;
    };
    for (const int signal : signals)
        ::sigaction(signal, &action, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
}

bool isRequested()
{
    return requested;
}

} // namespace HRFInterruption
