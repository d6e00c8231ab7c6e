#pragma once

#include "conversions/HRFKeyPath.h"
#include "conversions/HRFPatternMatcher.h"
#include "conversions/HRFRecordValues.h"

#include <vector>

// What the tag conversions make of a file, without changing it; with a snapshot
// of its values, from any thread.

/// A value to be set, and where; no value takes the present one away.
struct HRFNewValue
{
    const HRFKeyPath *keyPath;
    QVariant value;
};

/// The values that a pattern reads out of an attribute; empty when it does not match. What the user
/// cannot edit is matched, but not set. Fails when matching takes too long.
[[nodiscard]] HRFResult<std::vector<HRFNewValue>>
HRFValuesByMatching(const HRFRecordValues &values, const HRFPatternMatcher &matcher,
                    const HRFAttributeDescription &sourceAttribute);

/// The value that a pattern makes for an attribute; no value when it renders to nothing.
[[nodiscard]] HRFResult<QVariant> HRFComposedValue(const HRFRecordValues &values,
                                                   const HRFPattern &pattern,
                                                   const HRFAttributeDescription &attribute);
