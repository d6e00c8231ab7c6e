#pragma once

#include "kit/HRFError.h"

/// The path of folders below a base folder that a rendered path stands for: without empty
/// components, "." and ".."; empty for the base folder itself. A slash in front is not the root of
/// the file system.
///
/// Fails for a path that leads out of the base folder, and for one with a name that no file system
/// takes. Only looks at the text: links are not followed.
HRFResult<QString> HRFContainedSubPath(const QString &path);

/// Fails for a name that no file system takes: longer than 255 bytes, with a NUL or a slash, or "."
/// and "..".
HRFResult<void> HRFCheckFileName(const QString &name);
