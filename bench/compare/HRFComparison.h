#pragma once

#include "compare/HRFCost.h"

#include <cstddef>
#include <functional>
#include <vector>

/// What two ways to do the same work cost, one entry per round.
struct HRFComparison
{
    std::vector<HRFCost> lirra;
    std::vector<HRFCost> plain;
};

/// The two ways, and how the work is divided.
struct HRFContest
{
    /// Does one of the parts.
    using Work = std::function<void(std::size_t part)>;

    Work lirra;
    Work plain;
    std::size_t partCount = 1;
    HRFCostOf costOf = HRFCostOf::ThisProcess;
    /// Runs before each part of each side, without being measured.
    std::function<void()> prepare = [] { };
};

/// Lets both sides do all the work in each of the rounds, after one round that does not count. The
/// sides take turns part by part and in who goes first, so that whatever else the machine does
/// falls on both.
HRFComparison HRFCompare(const HRFContest &contest, int roundCount);
