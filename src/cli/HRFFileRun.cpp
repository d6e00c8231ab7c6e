#include "cli/HRFFileRun.h"

#include "cli/HRFCommandLine.h"
#include "cli/HRFFileList.h"
#include "cli/HRFInterruption.h"

#include <cerrno>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

/// Lets the owner write and everybody read the file.
bool fixPermissions(const HRFFileReference &file)
{
    constexpr mode_t mode = 0755;
    return ::chmod(file.nativePath().constData(), mode) == 0;
}

} // namespace

HRFFileRun::HRFFileRun(const HRFCommandOptions &options)
    : m_options(options), m_console(options.isQuiet), m_onError(options.onError)
{
    if (m_onError == HRFErrorAnswer::Ask && !m_console.isInteractive())
        m_onError = HRFErrorAnswer::Continue;
}

int HRFFileRun::forEachFile(const Work &work)
{
    const HRFFileList list = HRFCollectFiles(m_options.paths);
    for (const QString &problem : list.problems)
        m_console.report(problem);
    bool hasFailed = !list.problems.empty();
    std::size_t finished = 0;
    for (const HRFFileReference &file : list.files) {
        if (HRFInterruption::isRequested() || m_console.hasOutputFailed())
            break;
        m_console.showProgress(finished, list.files.size());
        const Outcome outcome = runOne(file, work);
        hasFailed = hasFailed || outcome != Outcome::Done;
        if (outcome == Outcome::Cancelled)
            break;
        ++finished;
    }
    m_console.finish();
    if (HRFInterruption::isRequested()) {
        m_console.report(
            u"Interrupted: %1 of %2 files are done"_s.arg(finished).arg(list.files.size()));
        return HRFExitStatus::interrupted;
    }
    return hasFailed || m_console.hasOutputFailed() ? HRFExitStatus::someFailed
                                                    : HRFExitStatus::done;
}

HRFFileRun::Outcome HRFFileRun::runOne(const HRFFileReference &file, const Work &work)
{
    bool wasFixed = false;
    while (true) {
        const HRFResult<void> result = work(file);
        if (result)
            return Outcome::Done;
        m_console.report(file.displayPath() + u": "_s + result.error().fullText());
        const HRFErrorAnswer answer = answerTo(result.error());
        if (answer == HRFErrorAnswer::Cancel)
            return Outcome::Cancelled;
        const bool canFix = answer == HRFErrorAnswer::Fix && isFixable(result.error());
        if (!canFix || std::exchange(wasFixed, true))
            return Outcome::Failed;
        if (!fixPermissions(file)) {
            m_console.report(u"%1: The permissions could not be changed: %2"_s.arg(
                file.displayPath(), HRFError::fromErrno(errno).description));
            return Outcome::Failed;
        }
    }
}

bool HRFFileRun::isFixable(const HRFError &error) const
{
    return error.isPermissionError() && !m_options.isDryRun;
}

HRFErrorAnswer HRFFileRun::answerTo(const HRFError &error)
{
    if (m_onError != HRFErrorAnswer::Ask)
        return m_onError;
    const bool canFix = isFixable(error);
    while (!HRFInterruption::isRequested()) {
        const QString answer = m_console.ask(canFix ? u"[f]ix permissions, [c]ontinue or [q]uit? "_s
                                                    : u"[c]ontinue or [q]uit? "_s);
        if (answer == u"f" && canFix)
            return HRFErrorAnswer::Fix;
        if (answer == u"c")
            return HRFErrorAnswer::Continue;
        if (answer == u"q" || answer.isEmpty())
            return HRFErrorAnswer::Cancel;
    }
    return HRFErrorAnswer::Cancel;
}
