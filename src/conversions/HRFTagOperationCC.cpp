#include "conversions/HRFTagOperationCC.h"

#include "conversions/HRFConversionError.h"
#include "conversions/HRFMetaFile+TagConversion.h"
#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "operations/HRFProgress.h"
#include "store/HRFMetaFile.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFTagOperationCC", text);
}

HRFError someFilesFailed(const HRFProgress &progress)
{
    return HRFConversionError(
        HRFConversionErrorCode::someFilesFailed,
        u"%1: %2"_s.arg(progress.localizedDescription(), tr("Failed")),
        tr("Failures have been selected. Try editing the Pattern to better match the source, then "
           "proceed again."));
}

} // namespace

HRFConversionOutcome
HRFTagOperationCC::tagFilesByMatchingPattern(const HRFPattern &pattern,
                                             const HRFAttributeDescription &source,
                                             HRFRegexMode mode, HRFProgress &progress)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    const auto matcher = HRFPatternMatcher::matcherForPatternItems(pattern.items(), mode);
    if (!matcher)
        return {.error = matcher.error()};
    progress.setCancellable(false);
    HRFConversionOutcome outcome;
    std::vector<HRFMetaFile *> failures;
    for (HRFMetaFile *file : m_host.selectedFiles()) {
        const auto values = HRFValuesByMatching(*file, *matcher, source);
        if (!values || values->empty())
            failures.push_back(file);
        if (!values) { // what takes too long for one file does so for others
            outcome.error = values.error();
            break;
        }
        for (const HRFNewValue &value : *values)
            value.keyPath->setValue(value.value, *file);
        if (!values->empty()) {
            progress.addCompleted();
            outcome.hasChangedFiles = true;
        }
    }
    if (!failures.empty()) {
        m_host.setSelectedFiles(failures);
        if (!outcome.error)
            outcome.error = someFilesFailed(progress);
    }
    if (outcome.hasChangedFiles)
        m_host.setUndoActionName(progress.localizedDescription());
    return outcome;
}

HRFConversionOutcome HRFTagOperationCC::composeTagWithPattern(
    const HRFPattern &pattern, const HRFAttributeDescription &attribute, HRFProgress &progress)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    const HRFKeyPath *keyPath = HRFKeyPath::find(attribute.path());
    HRFRequire(keyPath, "tagAttribute");
    progress.setCancellable(true);
    HRFConversionOutcome outcome;
    for (HRFMetaFile *file : m_host.selectedFiles()) {
        if (progress.isCancelled())
            break;
        const auto value = HRFComposedValue(*file, pattern, attribute);
        if (!value) {
            outcome.error = value.error();
            break;
        }
        keyPath->setValue(*value, *file);
        progress.addCompleted();
        outcome.hasChangedFiles = true;
    }
    if (outcome.hasChangedFiles)
        m_host.setUndoActionName(tr("Compose %1").arg(attribute.displayName()));
    return outcome;
}
