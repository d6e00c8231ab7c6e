#pragma once

#include "kit/HRFFileReference.h"

#include <QString>

#include <vector>

/// What the desktop around the program does for it. Without a session bus, or without anybody who
/// answers on it, there is less to see.
namespace HRFDesktop {

/// Shows files in the file manager, or at least opens their folder.
void revealFiles(const std::vector<HRFFileReference> &files);

void notify(const QString &title, const QString &text);

} // namespace HRFDesktop
