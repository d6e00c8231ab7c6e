#pragma once

#include "kit/HRFError.h"
#include "kit/HRFFileReference.h"

/// Whether nobody may change, rename or remove a file: the immutable flag. A link has none.
bool isLocked(const HRFFileReference &file);
/// Sets or clears the flag. Flags that protect a file otherwise are cleared; those that tell how it
/// is stored stay. An error of HRFPOSIXErrorDomain.
[[nodiscard]] HRFResult<void> setLocked(const HRFFileReference &file, bool isLocked);

/// What this process may do, by the rights of the item itself.
bool isAccessibleForReading(const HRFFileReference &file);
bool isAccessibleForWriting(const HRFFileReference &file);
