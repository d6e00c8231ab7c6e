#pragma once

#include "kit/HRFFileReference.h"

/// The folder that an item is in, by its path alone; "." where the path is a mere name.
HRFFileReference parentURL(const HRFFileReference &file);

/// The nearest folder that exists, from the given location upwards; where none does, the last
/// location that was looked at.
HRFFileReference firstExistingAncestorURL(const HRFFileReference &file);

/// Whether a folder may be cleaned up: it is neither the user's home or one of the folders in it,
/// nor the root of a volume, nor outside both, nor a synchronised folder's root.
bool isSafeURL(const HRFFileReference &folder);
