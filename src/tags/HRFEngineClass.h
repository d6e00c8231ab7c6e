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
    /// Makes an engine of this class on an open file; fails when the file is not of its format.
    HRFResult<std::unique_ptr<HRFTagEngine>> (*initWithStream)(std::shared_ptr<HRFTagStream> stream,
                                                               bool readProperties);

    /// Whether the file opens. Its contents are tested when an engine is made.
    bool canInitWithURL(const HRFFileReference &url) const;
};
