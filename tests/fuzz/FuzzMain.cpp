#include "fuzz/HRFFuzzTarget.h"

#include <cstdio>
#include <cstdlib>

namespace {

const HRFEngineClass *chosenClass = nullptr;

} // namespace

/// The environment variable LIRRA_FUZZ_FAMILY chooses the engine class.
extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    const QByteArray family = qgetenv("LIRRA_FUZZ_FAMILY");
    chosenClass = HRFFuzzEngineClass(family);
    if (!chosenClass) {
        std::fprintf(stderr, "LIRRA_FUZZ_FAMILY: unknown family \"%s\"\n", family.constData());
        std::exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray contents(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString broken = HRFFuzzOneInput(*chosenClass, contents);
    if (broken.isEmpty())
        return 0;
    std::fprintf(stderr, "BROKEN PROMISE: %s\n", qUtf8Printable(broken));
    std::abort();
}
