#include "sides/HRFBenchSide.h"
#include "tags/HRFTagEngine.h"

#include <stdexcept>

namespace fs = std::filesystem;

namespace {

HRFFileReference reference(const fs::path &file)
{
    return HRFFileReference::fromNativePath(QByteArray::fromStdString(file.native()));
}

template <class Value> Value orThrow(HRFResult<Value> result)
{
    if (!result)
        throw std::runtime_error(result.error().fullText().toStdString());
    return *std::move(result);
}

std::size_t readWithEngine(const fs::path &file)
{
    const auto engine = orThrow(HRFTagEngine::initWithURL(reference(file), true));
    std::size_t valueCount = 0;
    for (std::size_t i = 0; i < HRFPropertyRows.size(); ++i)
        valueCount += engine->valueForKey(HRFTagKey(i)).isValid() ? 1 : 0;
    return valueCount;
}

void writeTitleWithEngine(const fs::path &file, const std::string &title)
{
    const auto engine = orThrow(HRFTagEngine::initWithURL(reference(file)));
    engine->setTitle(QString::fromStdString(title));
    if (const auto saved = engine->updateFileWithError(); !saved)
        throw std::runtime_error(saved.error().fullText().toStdString());
}

} // namespace

const HRFBenchSide HRFEngineSide{readWithEngine, writeTitleWithEngine};
