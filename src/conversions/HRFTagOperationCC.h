#pragma once

#include "conversions/HRFConversionHost.h"
#include "conversions/HRFPatternMatcher.h"

#include <optional>

class HRFProgress;
struct HRFAttributeDescription;

/// What has become of a batch: it may have changed some files and failed for others.
struct HRFConversionOutcome
{
    bool hasChangedFiles = false;
    std::optional<HRFError> error{};
};

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
