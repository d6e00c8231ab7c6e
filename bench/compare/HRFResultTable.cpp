#include "compare/HRFResultTable.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

using Part = double HRFCost::*;

std::vector<double> parts(const std::vector<HRFCost> &costs, Part part)
{
    std::vector<double> values;
    values.reserve(costs.size());
    for (const HRFCost &cost : costs)
        values.push_back(cost.*part);
    return values;
}

std::vector<double> milliseconds(const std::vector<HRFCost> &costs, Part part)
{
    constexpr double millisecondsPerSecond = 1000;
    std::vector<double> values = parts(costs, part);
    for (double &value : values)
        value *= millisecondsPerSecond;
    return values;
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return (values[(values.size() - 1) / 2] + values[values.size() / 2]) / 2;
}

double ratioOfMedians(const HRFComparison &comparison, Part part)
{
    return median(parts(comparison.lirra, part)) / median(parts(comparison.plain, part));
}

std::vector<double> ratios(const HRFComparison &comparison)
{
    std::vector<double> values;
    values.reserve(comparison.lirra.size());
    for (std::size_t round = 0; round < comparison.lirra.size(); ++round)
        values.push_back(comparison.lirra[round].elapsed / comparison.plain[round].elapsed);
    return values;
}

struct Row
{
    const char *label;
    std::string lirra;
    std::string plain;
    std::string result;
    std::string spread;
    std::string processor;
    std::string target;
    bool isOver = false;
};

template <class... Values> std::string text(const char *pattern, Values... values)
{
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, pattern, values...);
    return buffer;
}

std::string spread(const char *pattern, const std::vector<double> &values)
{
    const auto [least, greatest] = std::ranges::minmax(values);
    return text(pattern, least, greatest);
}

void print(const Row &row)
{
    std::printf("%-38s %9s %9s %9s %13s %6s %9s%s\n", row.label, row.lirra.c_str(),
                row.plain.c_str(), row.result.c_str(), row.spread.c_str(), row.processor.c_str(),
                row.target.c_str(), row.isOver ? "  over target" : "");
    std::fflush(stdout);
}

} // namespace

void HRFResultTable::printHead()
{
    print({"", "Lirra", "TagLib", "result", "spread", "CPU", "target"});
}

void HRFResultTable::printRatio(const char *label, const HRFComparison &comparison, double target)
{
    const double ratio = ratioOfMedians(comparison, &HRFCost::elapsed);
    print({.label = label,
           .lirra = text("%.2f s", median(parts(comparison.lirra, &HRFCost::elapsed))),
           .plain = text("%.2f s", median(parts(comparison.plain, &HRFCost::elapsed))),
           .result = text("%.2f", ratio),
           .spread = spread("%.2f - %.2f", ratios(comparison)),
           .processor = text("%.2f", ratioOfMedians(comparison, &HRFCost::processor)),
           .target = text("<= %.2f", target),
           .isOver = ratio > target});
}

void HRFResultTable::printMilliseconds(const char *label, const std::vector<HRFCost> &costs,
                                       double target)
{
    const std::vector<double> times = milliseconds(costs, &HRFCost::elapsed);
    print({.label = label,
           .lirra = {},
           .plain = {},
           .result = text("%.1f ms", median(times)),
           .spread = spread("%.1f - %.1f", times),
           .processor = text("%.0f ms", median(milliseconds(costs, &HRFCost::processor))),
           .target = text("<= %.0f ms", target),
           .isOver = median(times) > target});
}

void HRFResultTable::printKilobytes(const char *label, double kilobytes, double target)
{
    print({.label = label,
           .lirra = {},
           .plain = {},
           .result = text("%.2f KB", kilobytes),
           .spread = {},
           .processor = {},
           .target = text("<= %.0f KB", target),
           .isOver = kilobytes > target});
}
