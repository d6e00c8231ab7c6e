#pragma once

#include "cli/HRFCommandOptions.h"
#include "cli/HRFConsole.h"
#include "kit/HRFError.h"
#include "kit/HRFFileReference.h"

#include <functional>

/// Runs a command over its files: one after the other, with progress, failures reported by file,
/// the user's answers to them, and an end between two files when interrupted.
class HRFFileRun
{
public:
    using Work = std::function<HRFResult<void>(const HRFFileReference &)>;

    explicit HRFFileRun(const HRFCommandOptions &options);

    HRFConsole &console() { return m_console; }

    /// @return an exit status (HRFExitStatus)
    int forEachFile(const Work &work);

private:
    enum class Outcome { Done, Failed, Cancelled };

    Outcome runOne(const HRFFileReference &file, const Work &work);
    bool isFixable(const HRFError &error) const;
    HRFErrorAnswer answerTo(const HRFError &error);

    const HRFCommandOptions &m_options;
    HRFConsole m_console;
    HRFErrorAnswer m_onError;
};
