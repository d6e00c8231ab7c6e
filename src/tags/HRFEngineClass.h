#pragma once

#include "kit/HRFError.h"
#include "kit/HRFFileReference.h"

#include <memory>
#include <span>

class HRFTagEngine;
class HRFTagStream;

/// One engine class, as a value: which files it claims and how to make an instance.
struct HRFEngineClass
{
    const char *name;
    std::span<const char *const> fileTypes; ///< lower-case path extensions
    const char *contents; ///< what such a file contains, in words for the user
    /// Makes an engine of this class on an open file; fails when the file is not of its format.
    HRFResult<std::unique_ptr<HRFTagEngine>> (*initWithStream)(std::shared_ptr<HRFTagStream> stream,
                                                               bool readProperties);

    /// Whether the file opens. Its contents are tested when an engine is made.
    bool canInitWithURL(const HRFFileReference &url) const;
};

/// Some of TagLib's files begin to read where the stream stands.
void HRFRewind(HRFTagStream &stream);

/// The initWithStream of an engine class whose constructor takes the same arguments. The class may
/// offer checkBeforeOpening(stream), which keeps from TagLib what it cannot cope with.
template <class Engine>
HRFResult<std::unique_ptr<HRFTagEngine>> HRFMakeEngine(std::shared_ptr<HRFTagStream> stream,
                                                       bool readProperties)
{
    if constexpr (requires { Engine::checkBeforeOpening(*stream); })
        if (auto checked = Engine::checkBeforeOpening(*stream); !checked)
            return std::unexpected(std::move(checked.error()));
    HRFRewind(*stream);
    auto engine = std::make_unique<Engine>(std::move(stream), readProperties);
    if (auto checked = engine->checkFile(); !checked)
        return std::unexpected(std::move(checked.error()));
    return engine;
}
