#include "compare/HRFMeasurements.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>
#include <vector>

int main(int argc, char **argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "Usage: bench_compare CORPUS SCRATCH_FOLDER [MEASUREMENT...]\n");
        return 2;
    }
    const QCoreApplication application(argc, argv);
    try {
        const auto program = std::filesystem::read_symlink("/proc/self/exe");
        const std::vector<std::string_view> names(argv + 3, argv + argc);
        HRFMeasure({argv[1], argv[2], program.parent_path()}, names);
        return 0;
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "bench_compare: %s\n", failure.what());
        return 1;
    }
}
