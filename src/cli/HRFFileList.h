#pragma once

#include "kit/HRFFileReference.h"

#include <QString>

#include <string>
#include <vector>

/// The files that a command works on, and what was wrong with the paths given.
struct HRFFileList
{
    std::vector<HRFFileReference> files;
    std::vector<QString> problems;
};

/// Takes files as given and walks folders recursively for files whose extension an engine claims,
/// hidden ones too, each folder's entries in natural order. Links to folders are not followed below
/// a given folder, so that a walk always ends. A file that is reached twice, by whatever
/// path, is taken once.
HRFFileList HRFCollectFiles(const std::vector<std::string> &paths);
