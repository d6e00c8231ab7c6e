#pragma once

#include <filesystem>
#include <span>
#include <string_view>

/// Where the measurements find what they need.
struct HRFMeasuringPlace
{
    std::filesystem::path corpus;
    std::filesystem::path scratch; ///< a folder to copy files to
    std::filesystem::path programs; ///< the folder of the programs that run as processes
};

/// Measures what is named, or everything, and prints the results as they come in.
void HRFMeasure(const HRFMeasuringPlace &place, std::span<const std::string_view> names);
