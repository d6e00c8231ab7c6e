#pragma once

#include "cli/HRFCommandOptions.h"

/// The commands of lirra-cli. Each works on every file it can, reports the others on standard error
/// and answers an exit status.
int HRFShowFiles(const HRFCommandOptions &options);
int HRFSetTags(const HRFCommandOptions &options);
int HRFStripTags(const HRFCommandOptions &options);
