#pragma once

#include "kit/HRFFileReference.h"

/// The folder that an item is in, by its path alone; "." where the path is a mere name.
HRFFileReference parentURL(const HRFFileReference &file);

/// The path with a number behind the base name: "a 2.mp3". Without an extension the name ends in a
/// dot.
HRFFileReference numberedURL(const HRFFileReference &file, int number);
/// As far as numbers go that make names unique; they begin with 2.
inline constexpr int HRFLastNumberOfName = 999;

/// Whether two paths are the same but for the case of letters.
bool differInCaseAtMost(const HRFFileReference &one, const HRFFileReference &other);

/// The nearest folder that exists, from the given location upwards; where none does, the last
/// location that was looked at.
HRFFileReference firstExistingAncestorURL(const HRFFileReference &file);

/// Whether a folder may be cleaned up: it is neither the user's home or one of the folders in it,
/// nor the root of a volume, nor outside both, nor a synchronised folder's root.
bool isSafeURL(const HRFFileReference &folder);
