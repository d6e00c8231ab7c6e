#pragma once

#include "compare/HRFComparison.h"

#include <vector>

/// Prints results as rows of one table, each beside its target.
namespace HRFResultTable {

void printHead();
/// The ratio of the medians, and the least and the greatest ratio of a round; the CPU column is the
/// ratio of processor times.
void printRatio(const char *label, const HRFComparison &comparison, double target);
/// The median, and the least and the greatest time; the CPU column is the processor time.
void printMilliseconds(const char *label, const std::vector<HRFCost> &costs, double target);
/// A size that is measured once.
void printKilobytes(const char *label, double kilobytes, double target);

} // namespace HRFResultTable
