#include "document/HRFPlaylist.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserInteraction.h"
#include "operations/HRFMetaFile+Operations.h"
#include "operations/HRFProgress+Notification.h"
#include "operations/HRFProgressWindowController.h"
#include "operations/HRFTagWriteOperation.h"
#include "store/HRFMetaFile.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Wait = HRFMainThread::Wait;

namespace {

/// The records of so many operations are refreshed together, while the queue is at the next ones.
constexpr std::ptrdiff_t sliceSize = 250;

/// Saves the background context, then the main context. The user is told of a failure. What comes
/// from the background is no edit, and so not undoable; what the user edits meanwhile is.
void saveBoth(HRFPrivateContext &background, const std::weak_ptr<HRFMainContext> &weakMain,
              HRFInteractionOwner owner)
{
    const HRFResult<void> saved = background.save();
    HRFMainThread::run(
        [&] {
            const auto main = weakMain.lock();
            if (!main)
                return; // the list is closed: there is nobody to miss anything
            if (const HRFResult<void> outcome = saved ? main->save() : saved; !outcome)
                HRFUserInteraction::presentErrorLater(outcome.error(), owner);
            main->processPendingChanges();
            main->enableUndoRegistration();
        },
        Wait::Yes);
}

/// Those of operations, which hold them weakly.
std::set<std::shared_ptr<HRFProgress>> progressesOf(const HRFPlaylist::Operations &operations)
{
    std::set<std::shared_ptr<HRFProgress>> progresses;
    for (const auto &operation : operations)
        if (auto progress = operation->progress())
            progresses.insert(std::move(progress));
    return progresses;
}

HRFPlaylist::Operations succeeded(const HRFPlaylist::Operations &operations)
{
    HRFPlaylist::Operations found;
    std::ranges::copy_if(operations, std::back_inserter(found),
                         [](const auto &operation) { return operation->succeeded(); });
    return found;
}

} // namespace

/// What the operations that have not ended are to write, by record: where operations have read
/// files anew, the records know better.
QHash<HRFObjectID, QSet<QString>> HRFPlaylist::newerTagsThan(const Operations &operations) const
{
    m_fileManager->managedObjectContext()->processPendingChanges();
    QHash<HRFObjectID, QSet<QString>> tags;
    for (const auto &operation : operations)
        tags.insert(operation->objectID(), {});
    for (const auto &[number, slice] : m_slices)
        for (const auto &operation : slice.operations) {
            const auto entry = tags.find(operation->objectID());
            const auto *write = entry == tags.end()
                ? nullptr
                : dynamic_cast<const HRFTagWriteOperation *>(operation.get());
            if (write)
                for (const QString &tag : write->changedValues().keys())
                    entry->insert(tag);
        }
    return tags;
}

void HRFPlaylist::performBlockInBackgroundContext(std::function<void(HRFPrivateContext &)> block,
                                                  bool wait, std::function<void()> whenDone)
{
    const auto background = m_fileManager->backgroundContext();
    const std::weak_ptr<HRFMainContext> main = m_fileManager->managedObjectContext();
    const auto work = [background, main, owner = HRFInteractionOwner(this),
                       block = std::move(block), whenDone = std::move(whenDone)] {
        block(*background);
        saveBoth(*background, main, owner);
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
    progress->setOwner(this);
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
        sheet = HRFMainThread::makeShared<HRFProgressWindowController>(progress);
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
    queueOperations(operations, {.whenDone = std::move(whenDone)});
}

void HRFPlaylist::queueOperations(const Operations &operations, const Afterwork &afterwork)
{
    // Queued here and now, so that the batches of a list stay in their order.
    HRFOperationQueue &queue = HRFMetaFileManager::fileOperationQueue();
    queue.addBarrierBlock([progress = queue.progress(), total = operations.size()] {
        progress->setCompletedUnitCount(0);
        progress->setTotalUnitCount(qlonglong(total));
    });
    const auto batch = std::make_shared<Batch>(Batch{operations, afterwork});
    auto slice = batch->operations.begin();
    do {
        const auto end = slice + std::min(sliceSize, batch->operations.end() - slice);
        ++batch->unfinishedSlices;
        runSlice({slice, end}, batch, end == batch->operations.end());
        slice = end;
    } while (slice != batch->operations.end());
    Q_EMIT fileOperationsDidBegin();
}

void HRFPlaylist::runSlice(const Operations &operations, const std::shared_ptr<Batch> &batch,
                           bool isLast)
{
    HRFOperationQueue &queue = HRFMetaFileManager::fileOperationQueue();
    queue.addOperations({operations.begin(), operations.end()}, false);
    const quint64 number = ++m_lastSlice;
    const auto work = isLast ? batch->afterwork.inQueue : std::function<void()>();
    // The progresses are needed until then, even when the list is closed meanwhile: to cancel the
    // rest, and to show the end of the program how much there is to do.
    const auto progresses = progressesOf(operations);
    for (const auto &progress : progresses)
        progress->setOwner(this);
    m_slices.emplace(number, Slice{operations, batch, progresses});
    queue.addBarrierBlock([reference = m_weakSelf.reference(), number, work, progresses] {
        static_cast<void>(progresses);
        if (work)
            HRFUserInteraction::presentFailures(work);
        HRFMainThread::run(
            [reference, number] {
                if (HRFPlaylist *self = reference.get())
                    self->sliceDidEnd(self->m_slices.extract(number).mapped());
            },
            Wait::No);
    });
}

std::set<std::shared_ptr<HRFProgress>> HRFPlaylist::pendingProgresses() const
{
    std::set<std::shared_ptr<HRFProgress>> progresses;
    for (const auto &[number, slice] : m_slices)
        progresses.insert(slice.progresses.begin(), slice.progresses.end());
    return progresses;
}

void HRFPlaylist::sliceDidEnd(const Slice &slice)
{
    const auto tellAll = [reference = m_weakSelf.reference(), batch = slice.batch] {
        if (--batch->unfinishedSlices > 0)
            return;
        if (batch->afterwork.whenDone)
            batch->afterwork.whenDone();
        if (HRFPlaylist *self = reference.get())
            Q_EMIT self->fileOperationsDidEnd(batch->operations);
    };
    const auto &refresh = slice.batch->afterwork.refresh;
    if (m_shouldClose || (refresh && slice.batch->unfinishedSlices > 1))
        tellAll();
    else if (refresh)
        performBlockInBackgroundContext(refresh, false, tellAll);
    else
        handleCompletedFileWriteOperations(succeeded(slice.operations), tellAll);
}

void HRFPlaylist::refresh(HRFPrivateContext &context, const Operations &operations,
                          const HRFWeakReference<HRFPlaylist> &reference)
{
    // First of all, so that edits from here on are newer.
    std::vector<HRFMetaFile *> files;
    std::ranges::transform(operations, std::back_inserter(files),
                           [&context](const auto &operation) {
                               return context.object<HRFMetaFile>(operation->objectID());
                           });
    QHash<HRFObjectID, QSet<QString>> newerTags;
    if (std::ranges::any_of(operations,
                            [](const auto &operation) { return HRFReadsFileAnew(*operation); }))
        HRFMainThread::run(
            [&] {
                if (const HRFPlaylist *self = reference.get())
                    newerTags = self->newerTagsThan(operations);
            },
            Wait::Yes);
    for (std::size_t i = 0; i < files.size(); ++i)
        if (files[i])
            HRFUpdateWithOperation(*files[i], *operations[i],
                                   newerTags.value(operations[i]->objectID()));
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
        [reference = m_weakSelf.reference(), operations](HRFPrivateContext &context) {
            refresh(context, operations, reference);
        },
        false,
        [reference = m_weakSelf.reference(), whenDone = std::move(whenDone)] {
            if (HRFPlaylist *self = reference.get(); self && self->m_window)
                self->m_window->reloadArtworkPane();
            if (whenDone)
                whenDone();
        });
}
