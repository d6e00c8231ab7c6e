#include "cli/HRFCommandLine.h"

#include <cstdio>
#include <exception>

int main(int argc, char **argv)
{
    try {
        return HRFRunCommandLine(argc, argv);
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "lirra-cli: %s\n", failure.what());
        return HRFExitStatus::someFailed;
    }
}
