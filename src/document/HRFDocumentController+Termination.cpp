#include "document/HRFDocumentController.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFApplication.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserInteraction.h"
#include "operations/HRFProgressWindowController.h"

#include <utility>

bool HRFDocumentController::terminate(std::function<void()> terminate)
{
    const bool isUnderWay = bool(std::exchange(m_terminate, std::move(terminate)));
    return !isUnderWay && terminateWhenIdle();
}

/// Edits of this very event are work, too.
bool HRFDocumentController::terminateWhenIdle()
{
    for (const auto &document : m_documents)
        document->commitEditing();
    if (HRFMetaFileManager::fileOperationQueue().operationCount() == 0) {
        finishTermination();
        return true;
    }
    for (const auto &document : m_documents)
        document->setShouldClose(true);
    if (!m_pendingWork)
        showPendingWork();
    HRFMetaFileManager::fileOperationQueue().addBarrierBlock(
        [this] { HRFMainThread::run([this] { terminateWhenIdle(); }, HRFMainThread::Wait::No); });
    return false;
}

void HRFDocumentController::showPendingWork()
{
    const auto progress = std::make_shared<HRFProgress>();
    progress->setLocalizedDescription(tr("Writing Metadata…"));
    for (const auto &pending : HRFMetaFileManager::pendingProgresses())
        progress->addChild(pending);
    progress->setLocalizedAdditionalDescription(
        tr("%1 items total").arg(progress->totalUnitCount()));
    m_pendingWork = std::make_unique<HRFProgressWindowController>(progress);
    m_pendingWork->setCancellationHandler([this] { cancelPendingWork(); });
    m_pendingWork->showWindow();
}

void HRFDocumentController::cancelPendingWork()
{
    const HRFAlert question{
        .message = tr("Are you sure you want to cancel the remaining operations?"),
        .informativeText =
            tr("Lirra is currently saving tags. If you cancel now, changes will be lost."),
        .buttons = {{.title = tr("Yes"), .role = HRFAnswerRole::Accept, .isDestructive = true},
                    {.title = tr("No"), .role = HRFAnswerRole::Cancel}},
        .defaultButton = 1};
    if (HRFUserInteraction::current().runAlert(question).button != 0 || !m_pendingWork)
        return;
    m_pendingWork->progress()->cancel();
    HRFMetaFileManager::fileOperationQueue().cancelAllOperations();
}

void HRFDocumentController::finishTermination()
{
    if (m_pendingWork)
        m_pendingWork->dismiss();
    m_pendingWork.reset();
    for (const auto &document : m_documents)
        document->fileManager().stopImports();
    HRFApplication::shared().willTerminate();
    if (const auto terminate = std::exchange(m_terminate, {}))
        terminate();
}
