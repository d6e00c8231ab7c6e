#include "document/HRFDocumentController.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFApplication.h"
#include "kit/HRFBackground.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserInteraction.h"
#include "operations/HRFProgressWindowController.h"

#include <utility>

bool HRFDocumentController::terminate(std::function<void()> terminate)
{
    if (m_pendingWork)
        return false; // it is on its way
    m_terminate = std::move(terminate);
    if (HRFMetaFileManager::fileOperationQueue().operationCount() == 0) {
        finishTermination();
        return true;
    }
    for (const auto &document : m_documents)
        document->setShouldClose(true);
    waitForPendingWork();
    return false;
}

void HRFDocumentController::waitForPendingWork()
{
    const auto progress = std::make_shared<HRFProgress>();
    progress->setLocalizedDescription(tr("Writing Metadata…"));
    for (const auto &document : m_documents)
        if (const auto &pending = document->fileManager().writeProgress())
            progress->addChild(pending);
    progress->setLocalizedAdditionalDescription(
        tr("%1 items total").arg(progress->totalUnitCount()));
    m_pendingWork = std::make_unique<HRFProgressWindowController>(progress);
    m_pendingWork->setCancellationHandler([this] { cancelPendingWork(); });
    m_pendingWork->showWindow();
    HRFBackground::run([this] {
        HRFMetaFileManager::fileOperationQueue().waitUntilAllOperationsAreFinished();
        HRFMainThread::run([this] { finishTermination(); }, HRFMainThread::Wait::No);
    });
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
    HRFApplication::shared().willTerminate();
    if (const auto terminate = std::exchange(m_terminate, {}))
        terminate();
}
