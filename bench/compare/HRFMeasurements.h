#pragma once

#include <filesystem>

/// Where the measurements find what they need.
struct HRFMeasuringPlace
{
    std::filesystem::path corpus;
    std::filesystem::path scratch; ///< a folder to copy files to
    std::filesystem::path programs; ///< the folder of the programs that run as processes
};

/// Measures everything and prints the results as they come in.
void HRFMeasureAll(const HRFMeasuringPlace &place);
