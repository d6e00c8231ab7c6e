#pragma once

#include "conversions/HRFConversionHost.h"
#include "conversions/HRFConversionOutcome.h"
#include "conversions/HRFPatternMatcher.h"

class HRFProgress;
struct HRFAttributeDescription;

/// The conversions that set tags of the selected files. What they set is one undo action. For the
/// main thread alone.
class HRFTagOperationCC
{
public:
    /// The list must live longer.
    explicit HRFTagOperationCC(HRFConversionHost &host) : m_host(host) { }

    /// Fills tags from an attribute by matching a pattern against it. Files that do not match are
    /// selected.
    HRFConversionOutcome tagFilesByMatchingPattern(const HRFPattern &pattern,
                                                   const HRFAttributeDescription &source,
                                                   HRFRegexMode mode, HRFProgress &progress);
    /// Sets one attribute to what a pattern renders to. Stops at the first text that is no value of
    /// the attribute.
    HRFConversionOutcome composeTagWithPattern(const HRFPattern &pattern,
                                               const HRFAttributeDescription &attribute,
                                               HRFProgress &progress);

private:
    HRFConversionHost &m_host;
};
