#pragma once

#include "conversions/HRFPatternItem.h"

#include <cstddef>

/// A capturing group that an item has put into a regular expression.
struct HRFMetaCaptureGroup
{
    HRFPatternItem patternItem;
    /// The place of the item among the pattern's items, from 0.
    std::size_t index = 0;
};
