#pragma once

#include "kit/HRFError.h"
#include "kit/HRFFileReference.h"

#include <functional>
#include <vector>

/// An audio file by the path on which it was found first, and by its reference URL.
struct HRFFoundFile
{
    HRFFileReference file;
    QString fileURL;
};

/// A path that could not be taken, and why.
struct HRFFileProblem
{
    HRFFileReference file;
    /// HRFPOSIXErrorDomain when the path cannot be examined or the folder cannot be listed;
    /// HRFTagEngineErrorDomain "noEngine" when nothing on a given path is an audio file.
    HRFError error;
};

struct HRFFoundFiles
{
    std::vector<HRFFoundFile> files; ///< in the order found, every file once
    std::vector<HRFFileProblem> problems;
};

/// Finds audio files, that is files whose extension an engine claims; what they contain does not
/// matter here.
namespace HRFFileWalker {

/// Takes files as given, and walks folders recursively, hidden ones too, each folder's entries in
/// natural order; folders that a killed move has left are passed over. Links to folders are not
/// followed below a given folder, so that a walk always ends. A file that is reached twice, be it
/// by another link, is taken once.
///
/// May be called from any thread.
/// @param isCancelled asked again and again; once true, what was found until then is returned
/// @param didFindFirst called as soon as there is something to return
HRFFoundFiles find(
    const std::vector<HRFFileReference> &paths, const std::function<bool()> &isCancelled,
    const std::function<void()> &didFindFirst = [] { });

} // namespace HRFFileWalker
