#include "compare/HRFMeasurements.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "Usage: bench_compare CORPUS SCRATCH_FOLDER\n");
        return 2;
    }
    const QCoreApplication application(argc, argv);
    try {
        const auto program = std::filesystem::read_symlink("/proc/self/exe");
        HRFMeasureAll({argv[1], argv[2], program.parent_path()});
        return 0;
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "bench_compare: %s\n", failure.what());
        return 1;
    }
}
