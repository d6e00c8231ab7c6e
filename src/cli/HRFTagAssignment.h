#pragma once

#include "cli/HRFCommandOptions.h"
#include "kit/HRFError.h"

#include <expected>
#include <vector>

/// Reads the tags to set from the options: KEY=VALUE texts and the artwork file.
///
/// @return the changes, or one sentence that says what is wrong with the command line
std::expected<std::vector<HRFTagChange>, QString>
HRFTagChangesFromOptions(const HRFCommandOptions &options);
