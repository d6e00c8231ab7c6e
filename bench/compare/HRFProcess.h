#pragma once

#include <string>
#include <vector>

/// Runs a program to its end, its output going nowhere. Throws when it fails.
void HRFRunProcess(std::vector<std::string> command);
