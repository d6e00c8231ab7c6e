#include "app/HRFDesktopProgram.h"

#include <cstdio>
#include <exception>

int main(int argc, char **argv)
{
    try {
        return HRFRunDesktopProgram(argc, argv);
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "lirra: %s\n", failure.what());
        return 1;
    }
}
