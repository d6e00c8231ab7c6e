#pragma once

#include <optional>
#include <vector>

class HRFMetaFile;

/// Neighbouring rows.
struct HRFRowRange
{
    int first = 0;
    int last = 0;

    bool operator==(const HRFRowRange &) const = default;
};

/// The ranges of a list that have to go for another list to be left, in ascending order; nothing
/// when that takes more than @p limit ranges, or is no matter of leaving out at all.
std::optional<std::vector<HRFRowRange>> HRFRowsLeftOut(const std::vector<HRFMetaFile *> &from,
                                                       const std::vector<HRFMetaFile *> &left,
                                                       std::size_t limit);
/// Row numbers in ascending order as ranges.
std::vector<HRFRowRange> HRFRangesOfRows(const std::vector<int> &rows);
