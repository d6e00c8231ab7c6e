#pragma once

#include "kit/HRFError.h"

#include <optional>

/// What has become of a batch: it may have changed some files and failed for others.
struct HRFConversionOutcome
{
    bool hasChangedFiles = false;
    std::optional<HRFError> error{};
};
