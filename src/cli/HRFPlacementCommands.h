#pragma once

#include "cli/HRFCommandOptions.h"

// The commands that give files other names and places. They answer exit statuses.
int HRFRenameFiles(const HRFCommandOptions &options);
int HRFMoveFiles(const HRFCommandOptions &options);
