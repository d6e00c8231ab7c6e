#pragma once

#include <algorithm>
#include <filesystem>
#include <vector>

/// All regular files below the folder, sorted.
inline std::vector<std::filesystem::path> HRFFilesBelow(const std::filesystem::path &folder)
{
    std::vector<std::filesystem::path> files;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}
