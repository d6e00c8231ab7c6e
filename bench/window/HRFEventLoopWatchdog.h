#pragma once

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

class QSocketNotifier;

/// Measures how long the event loop does not answer. From the moment it is made, another thread
/// asks again and again through a file descriptor, as a display server does, so that it waits for
/// whatever a key or a click would wait for. For the main thread.
class HRFEventLoopWatchdog : public QObject
{
    Q_OBJECT
public:
    HRFEventLoopWatchdog();
    ~HRFEventLoopWatchdog() override;

    /// Serves events until a condition holds.
    /// @return the longest time without an answer since the last call, in seconds
    double longestBlockUntil(const std::function<bool()> &condition);

private:
    void askAgainAndAgain();
    void answer();

    const int m_questions; ///< an eventfd that counts what was asked
    std::atomic<double> m_askedAt = 0; ///< 0 when answered; written by both threads in turn
    std::atomic<bool> m_ends = false;
    double m_longest = 0;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::thread m_thread;
};
