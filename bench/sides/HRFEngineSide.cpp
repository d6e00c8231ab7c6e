#include "sides/HRFBenchSide.h"
#include "sides/HRFOrThrow.h"
#include "tags/HRFTagEngine.h"

namespace fs = std::filesystem;

namespace {

HRFFileReference reference(const fs::path &file)
{
    return HRFFileReference::fromNativePath(QByteArray::fromStdString(file.native()));
}

std::size_t readWithEngine(const fs::path &file)
{
    const auto engine = HRFOrThrow(HRFTagEngine::initWithURL(reference(file), true));
    std::size_t valueCount = 0;
    for (std::size_t i = 0; i < HRFPropertyRows.size(); ++i)
        valueCount += engine->valueForKey(HRFTagKey(i)).isValid() ? 1 : 0;
    return valueCount;
}

void writeTitleWithEngine(const fs::path &file, const std::string &title)
{
    const auto engine = HRFOrThrow(HRFTagEngine::initWithURL(reference(file)));
    engine->setTitle(QString::fromStdString(title));
    HRFOrThrow(engine->updateFileWithError());
}

} // namespace

const HRFBenchSide HRFEngineSide{readWithEngine, writeTitleWithEngine};
