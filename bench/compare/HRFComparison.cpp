#include "compare/HRFComparison.h"

#include <utility>

namespace {

void playPart(const HRFContest &contest, std::size_t part, HRFCost &cost, bool isLirra)
{
    contest.prepare();
    const HRFCost before = HRFCost::spentBy(contest.costOf);
    (isLirra ? contest.lirra : contest.plain)(part);
    cost += HRFCost::spentBy(contest.costOf) - before;
}

std::pair<HRFCost, HRFCost> playRound(const HRFContest &contest, std::size_t round)
{
    HRFCost lirra;
    HRFCost plain;
    for (std::size_t part = 0; part < contest.partCount; ++part) {
        const bool isLirraFirst = (part + round) % 2 == 0;
        for (const bool isLirra : {isLirraFirst, !isLirraFirst})
            playPart(contest, part, isLirra ? lirra : plain, isLirra);
    }
    return {lirra, plain};
}

} // namespace

HRFComparison HRFCompare(const HRFContest &contest, int roundCount)
{
    playRound(contest, 0);
    HRFComparison comparison;
    for (int round = 1; round <= roundCount; ++round) {
        const auto [lirra, plain] = playRound(contest, std::size_t(round));
        comparison.lirra.push_back(lirra);
        comparison.plain.push_back(plain);
    }
    return comparison;
}
