#include "app/HRFRowChange.h"

std::optional<std::vector<HRFRowRange>> HRFRowsLeftOut(const std::vector<HRFMetaFile *> &from,
                                                       const std::vector<HRFMetaFile *> &left,
                                                       std::size_t limit)
{
    std::vector<HRFRowRange> ranges;
    std::size_t next = 0;
    for (std::size_t row = 0; row < from.size(); ++row) {
        if (next < left.size() && from[row] == left[next]) {
            ++next;
            continue;
        }
        if (!ranges.empty() && ranges.back().last + 1 == int(row))
            ++ranges.back().last;
        else
            ranges.push_back({int(row), int(row)});
        if (ranges.size() > limit)
            return {};
    }
    return next == left.size() ? std::optional(ranges) : std::nullopt;
}

std::vector<HRFRowRange> HRFRangesOfRows(const std::vector<int> &rows)
{
    std::vector<HRFRowRange> ranges;
    for (const int row : rows) {
        if (!ranges.empty() && ranges.back().last + 1 == row)
            ++ranges.back().last;
        else
            ranges.push_back({row, row});
    }
    return ranges;
}
