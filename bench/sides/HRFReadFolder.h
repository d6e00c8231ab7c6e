#pragma once

#include "sides/HRFBenchSide.h"
#include "sides/HRFFilesBelow.h"

#include <cstdio>
#include <exception>

/// The main function of a program that reads all files below a folder with one side.
inline int HRFReadFolder(int argc, char **argv, const HRFBenchSide &side)
{
    if (argc != 2) {
        std::fprintf(stderr, "Usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    try {
        std::size_t count = 0;
        for (const std::filesystem::path &file : HRFFilesBelow(argv[1]))
            count += side.read(file);
        std::printf("%zu values\n", count);
        return 0;
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "%s: %s\n", argv[0], failure.what());
        return 1;
    }
}
