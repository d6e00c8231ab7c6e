#include "conversions/HRFFileOperationCC.h"

#include "conversions/HRFAfterMove.h"
#include "conversions/HRFConversionError.h"
#include "conversions/HRFFileOperationHost.h"
#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "operations/HRFErrorSolver.h"
#include "operations/HRFMoveOperation.h"
#include "store/HRFMetaFile.h"
#include "store/HRFSystemFile.h"

#include <QCoreApplication>

#include <algorithm>

using Wait = HRFMainThread::Wait;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFFileOperationCC", text);
}

HRFError selectedFailures(const QString &description)
{
    return HRFConversionError(
        HRFConversionErrorCode::someFilesFailed, description,
        tr("Failures have been selected. Try editing the Pattern, then proceed again."));
}

bool isEmptyRendering(const HRFError &refusal)
{
    return refusal.domain == QLatin1StringView(HRFLirraErrorDomain)
        && refusal.code == HRFConversionErrorCode::someFilesFailed;
}

std::vector<HRFObjectID> refusedFiles(HRFFileOperationCC::PlannedFiles files)
{
    std::vector<HRFObjectID> refused;
    for (const HRFPlannedFile &file : files)
        if (file.refusal)
            refused.push_back(file.objectID);
    return refused;
}

} // namespace

HRFConversionOutcome HRFFileOperationCC::renameFilesWithPattern(const HRFPattern &pattern,
                                                                HRFProgress &progress)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    progress.setCancellable(true);
    const auto keepBoth = [](const HRFFileReference &, bool) {
        return HRFFileExistsRecovery::KeepBoth;
    };
    HRFFilePlan plan =
        HRFPlanRenames(m_host.selectedFiles(), pattern,
                       {.title = progress.localizedDescription(), .existingItem = keepBoth});
    if (plan.isCancelled) {
        progress.cancel();
        plan.files.pop_back(); // that a question was cancelled at it is no failure
    }
    HRFConversionOutcome outcome{.hasChangedFiles = renamePlannedFiles(plan.files, progress)};
    const auto failed = std::ranges::find_if(
        plan.files, [](const HRFPlannedFile &planned) { return bool(planned.refusal); });
    if (failed != plan.files.end()) {
        selectFiles(refusedFiles(plan.files));
        const HRFError refusal = failed->refusal.value_or(HRFError());
        outcome.error = isEmptyRendering(refusal)
            ? selectedFailures(
                  tr("Some files failed renaming because their new filenames were null"))
            : refusal;
    }
    return outcome;
}

bool HRFFileOperationCC::renamePlannedFiles(PlannedFiles files, HRFProgress &progress)
{
    bool hasRenamed = false;
    for (const HRFPlannedFile &planned : files) {
        HRFMetaFile *file = planned.refusal ? nullptr : m_host.fileWithID(planned.objectID);
        if (!file)
            continue;
        file->fileInfo().setFileName(planned.destination.displayName());
        progress.addCompleted();
        hasRenamed = true;
    }
    if (hasRenamed)
        m_host.setUndoActionName(progress.localizedDescription());
    return hasRenamed;
}

bool HRFFileOperationCC::moveFilesToSubPathDefinedByPattern(
    const HRFPattern &pattern, const std::optional<HRFFileReference> &baseFolder,
    std::shared_ptr<HRFProgress> progress, const std::function<void()> &onCompletion)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    if (!progress)
        progress = std::make_shared<HRFProgress>();
    const std::vector<HRFMetaFile *> files = m_host.selectedFiles();
    progress->setTotalUnitCount(qlonglong(files.size()));
    const HRFFilePlan plan =
        HRFPlanMoves(files, pattern, baseFolder, {.title = progress->localizedDescription()});
    if (plan.isCancelled) {
        progress->cancel();
        return false;
    }
    const auto fileManager = std::make_shared<HRFFileManager>();
    fileManager->setCreateMissingDirectories(true);
    return !movePlannedFiles(plan.files, pattern.context(), fileManager, progress, onCompletion)
                .empty();
}

HRFFileOperationCC::Moves
HRFFileOperationCC::movePlannedFiles(PlannedFiles files, const HRFConversionContext &context,
                                     const std::shared_ptr<HRFFileManager> &fileManager,
                                     const std::shared_ptr<HRFProgress> &progress,
                                     const std::function<void()> &onCompletion)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    Moves operations;
    for (const HRFPlannedFile &planned : files) {
        const auto operation = operationFor(planned);
        if (!operation)
            continue;
        fileManager->protectItem(planned.source);
        operation->setFileManager(fileManager);
        operation->setCopyOperation(context.fileOperationCopy);
        operation->setProgress(progress);
        operation->setLast(&planned == &files.back());
        operation->setQueuePriority(HRFOperation::Priority::High);
        operations.push_back(operation);
    }
    const HRFAfterMove after(operations, context, progress);
    m_host.queueOperations(
        {operations.begin(), operations.end()},
        {.inQueue =
             [reference = m_weakSelf.reference(), failures = refusedFiles(files), progress, after] {
                 const auto tell = [&] {
                     if (auto *self = reference.get(); self && !failures.empty())
                         self->handleFailedMoveOperations(failures, progress);
                 };
                 HRFMainThread::run(tell, Wait::Yes);
                 after.postProcessSuccessfulOperations();
             },
         .refresh = [after](HRFPrivateContext &records) { after.updateRecords(records); },
         .whenDone =
             [after, onCompletion] {
                 after.revealItems();
                 if (onCompletion)
                     onCompletion();
             }});
    return operations;
}

std::shared_ptr<HRFMoveOperation> HRFFileOperationCC::operationFor(const HRFPlannedFile &planned)
{
    const HRFMetaFile *file = planned.refusal ? nullptr : m_host.fileWithID(planned.objectID);
    if (!file)
        return nullptr;
    auto operation = HRFFileOperation::operationWithFile<HRFMoveOperation>(*file);
    operation->setDstURL(planned.destination);
    return operation;
}

void HRFFileOperationCC::selectFiles(const std::vector<HRFObjectID> &files)
{
    std::vector<HRFMetaFile *> present;
    for (const HRFObjectID objectID : files)
        if (HRFMetaFile *file = m_host.fileWithID(objectID))
            present.push_back(file);
    m_host.setSelectedFiles(present);
}

void HRFFileOperationCC::handleFailedMoveOperations(const std::vector<HRFObjectID> &files,
                                                    const std::shared_ptr<HRFProgress> &progress)
{
    selectFiles(files);
    const auto solver = HRFErrorSolver::solverWithError(
        selectedFailures(tr("Some of the new filepaths were invalid.")));
    const auto editPattern = [reference = m_weakSelf.reference()] {
        if (const HRFFileOperationCC *self = reference.get())
            self->m_host.editPattern();
        return true;
    };
    solver->addRecoveryOptionWithLocalizedTitle(tr("Edit Pattern"), editPattern);
    solver->addCancelRecoveryOption();
    presentErrorSolver(*solver, progress);
}
