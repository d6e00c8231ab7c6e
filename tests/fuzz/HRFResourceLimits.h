#pragma once

#include <QElapsedTimer>
#include <QString>

#include <sys/resource.h>

/// Notices when what happens since its construction takes too much time or memory, for one small
/// file under sanitizers.
class HRFResourceLimits
{
public:
    HRFResourceLimits() { m_timer.start(); }

    /// What was too much; empty when nothing was.
    QString exceeded() const
    {
        constexpr qint64 longestTime = 20'000;
        constexpr long largestMemory = 512;
        if (m_timer.elapsed() > longestTime)
            return QStringLiteral("It took %1 ms").arg(m_timer.elapsed());
        const long memory = peakMemory() - m_memoryBefore;
        return memory > largestMemory ? QStringLiteral("It took %1 MiB").arg(memory) : QString();
    }

private:
    /// In MiB.
    static long peakMemory()
    {
        rusage usage{};
        ::getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss / 1024;
    }

    const long m_memoryBefore = peakMemory();
    QElapsedTimer m_timer;
};
