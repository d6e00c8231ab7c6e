#include "window/HRFEventLoopWatchdog.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto pauseBetweenQuestions = 1ms;

double now()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

int openEventCounter()
{
    const int descriptor = ::eventfd(0, EFD_CLOEXEC);
    if (descriptor < 0)
        throw std::runtime_error("No eventfd.");
    return descriptor;
}

} // namespace

HRFEventLoopWatchdog::HRFEventLoopWatchdog()
    : m_questions(openEventCounter())
    , m_notifier(std::make_unique<QSocketNotifier>(m_questions, QSocketNotifier::Read))
    , m_thread([this] { askAgainAndAgain(); })
{
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &HRFEventLoopWatchdog::answer);
}

HRFEventLoopWatchdog::~HRFEventLoopWatchdog()
{
    m_ends = true;
    m_thread.join();
    m_notifier.reset();
    ::close(m_questions);
}

void HRFEventLoopWatchdog::askAgainAndAgain()
{
    while (!m_ends) {
        if (m_askedAt == 0) {
            m_askedAt = now();
            ::eventfd_write(m_questions, 1);
        }
        std::this_thread::sleep_for(pauseBetweenQuestions);
    }
}

void HRFEventLoopWatchdog::answer()
{
    eventfd_t count = 0;
    ::eventfd_read(m_questions, &count);
    m_longest = std::max(m_longest, now() - m_askedAt);
    m_askedAt = 0;
}

double HRFEventLoopWatchdog::longestBlockUntil(const std::function<bool()> &condition)
{
    // What holds already is no answer: a question asked before the call has to be answered too.
    do
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    while (m_askedAt != 0 || !condition());
    return std::exchange(m_longest, 0);
}
