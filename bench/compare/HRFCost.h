#pragma once

enum class HRFCostOf {
    ThisProcess,
    ChildProcesses, ///< those that have ended
};

/// What some work takes, in seconds.
struct HRFCost
{
    double elapsed = 0;
    double processor = 0; ///< hardly changes when other programs want the processor too

    /// What was spent since some moment in the past.
    static HRFCost spentBy(HRFCostOf processes);

    HRFCost &operator+=(const HRFCost &other)
    {
        elapsed += other.elapsed;
        processor += other.processor;
        return *this;
    }
    friend HRFCost operator-(const HRFCost &left, const HRFCost &right)
    {
        return {left.elapsed - right.elapsed, left.processor - right.processor};
    }
};
