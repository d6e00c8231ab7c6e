#pragma once

#include <filesystem>
#include <string>

/// One side of the comparison: how it reads and writes one file. Both sides throw when a file
/// cannot be read or written, so that neither is fast because it does nothing.
struct HRFBenchSide
{
    /// Reads every property and the picture; answers how much it read.
    std::size_t (*read)(const std::filesystem::path &file);
    /// Opens the file and saves it with the title.
    void (*writeTitle)(const std::filesystem::path &file, const std::string &title);
};

extern const HRFBenchSide HRFEngineSide;
/// TagLib as a program would use it without anything in between.
extern const HRFBenchSide HRFPlainTagLibSide;
