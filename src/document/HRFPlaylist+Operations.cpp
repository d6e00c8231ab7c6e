#include "document/HRFPlaylist.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserInteraction.h"
#include "operations/HRFMetaFile+Operations.h"
#include "operations/HRFProgress+Notification.h"
#include "operations/HRFProgressWindowController.h"
#include "operations/HRFTagWriteOperation.h"
#include "store/HRFMetaFile.h"
#include "store/HRFUndoSuspension.h"

#include <QPointer>

#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;
using Wait = HRFMainThread::Wait;

namespace {

/// Saves the background context, then the main context. The user is told of a failure.
void saveBoth(HRFPrivateContext &background, const std::weak_ptr<HRFMainContext> &weakMain)
{
    const HRFResult<void> saved = background.save();
    HRFMainThread::run(
        [&] {
            const auto main = weakMain.lock();
            const HRFResult<void> outcome = saved && main ? main->save() : saved;
            if (!outcome)
                HRFUserInteraction::current().presentError(outcome.error());
        },
        Wait::Yes);
}

HRFPlaylist::Operations succeeded(const HRFPlaylist::Operations &operations)
{
    HRFPlaylist::Operations found;
    std::ranges::copy_if(operations, std::back_inserter(found),
                         [](const auto &operation) { return operation->succeeded(); });
    return found;
}

} // namespace

void HRFPlaylist::performBlockInBackgroundContext(std::function<void(HRFPrivateContext &)> block,
                                                  bool wait, std::function<void()> whenDone)
{
    const auto background = m_fileManager->backgroundContext();
    const std::weak_ptr<HRFMainContext> main = m_fileManager->managedObjectContext();
    const auto work = [background, main, block = std::move(block), whenDone = std::move(whenDone)] {
        {
            const HRFUndoSuspension noUndo(main);
            block(*background);
            saveBoth(*background, main);
        }
        if (whenDone)
            HRFMainThread::run(whenDone, Wait::No);
    };
    if (wait)
        background->performBlockAndWait(work);
    else
        background->performBlock(work);
}

bool HRFPlaylist::enqueueOperationsForFiles(const std::vector<HRFMetaFile *> &files,
                                            const std::shared_ptr<HRFProgress> &progress,
                                            HRFProgressDisplayMode mode,
                                            const OperationMaker &block)
{
    constexpr std::chrono::milliseconds delay(400);
    progress->setCompletedUnitCount(0);
    progress->setTotalUnitCount(qlonglong(files.size()));
    const auto answers = std::make_shared<HRFAppliedAnswers>();
    Operations operations;
    for (std::size_t index = 0; index < files.size(); ++index) {
        const auto operation = block(*files[index], index);
        if (!operation)
            continue;
        operation->setFile(*files[index]);
        operation->setLast(index + 1 == files.size());
        operation->setProgress(progress);
        operation->setAppliedAnswers(answers);
        operation->setQueuePriority(HRFOperation::Priority::High);
        operations.push_back(operation);
    }
    if (operations.empty())
        return true;
    std::shared_ptr<HRFProgressWindowController> sheet;
    if (mode != HRFProgressDisplayMode::None) {
        sheet = std::make_shared<HRFProgressWindowController>(progress);
        sheet->showAsSheet(mode == HRFProgressDisplayMode::AtOnce ? std::chrono::milliseconds()
                                                                  : delay);
    }
    runOperations(operations, [sheet, progress, mode] {
        if (sheet)
            sheet->dismiss();
        if (mode == HRFProgressDisplayMode::AtOnce)
            sendAssociatedNotificationRegardless(*progress, true);
    });
    return true;
}

void HRFPlaylist::runOperations(const Operations &operations, std::function<void()> whenDone)
{
    // Queued here and now, so that the batches of a list stay in their order.
    HRFOperationQueue &queue = HRFMetaFileManager::fileOperationQueue();
    queue.addBarrierBlock([progress = queue.progress(), total = operations.size()] {
        progress->setCompletedUnitCount(0);
        progress->setTotalUnitCount(qlonglong(total));
    });
    queue.addOperations({operations.begin(), operations.end()}, false);
    HRFBackground::run([self = QPointer(this), operations, whenDone = std::move(whenDone)] {
        // The last first, which mostly is the last to finish: to be woken by each costs time.
        for (const auto &operation : operations | std::views::reverse)
            operation->waitUntilFinished();
        HRFMainThread::run(
            [self, operations, whenDone] {
                if (self)
                    self->operationsDidEnd(operations, whenDone);
                else if (whenDone)
                    whenDone();
            },
            Wait::No);
    });
}

void HRFPlaylist::operationsDidEnd(const Operations &operations,
                                   const std::function<void()> &whenDone)
{
    const auto tellAll = [self = QPointer(this), operations, whenDone] {
        if (whenDone)
            whenDone();
        if (self)
            Q_EMIT self->fileOperationsDidEnd(operations);
    };
    if (m_shouldClose)
        tellAll();
    else
        handleCompletedFileWriteOperations(succeeded(operations), tellAll);
}

void HRFPlaylist::handleCompletedFileWriteOperations(const Operations &operations,
                                                     std::function<void()> whenDone)
{
    if (operations.empty()) {
        if (whenDone)
            whenDone();
        return;
    }
    performBlockInBackgroundContext(
        [operations](HRFPrivateContext &context) {
            for (const auto &operation : operations)
                if (auto *file = context.object<HRFMetaFile>(operation->objectID()))
                    HRFUpdateWithOperation(*file, *operation);
        },
        false,
        [self = QPointer(this), whenDone = std::move(whenDone)] {
            if (self && self->m_window)
                self->m_window->reloadArtworkPane();
            if (whenDone)
                whenDone();
        });
}
