#include "operations/HRFOperationQueue.h"

#include "operations/HRFStripTagsOperation.h"

#include <algorithm>
#include <typeinfo>

namespace {

bool isPlainWrite(const HRFFileOperation &operation)
{
    return typeid(operation) == typeid(HRFTagWriteOperation);
}

/// Lets the later write do the work of the earlier one as well, if that has not started.
void fold(HRFTagWriteOperation &earlier, HRFTagWriteOperation &later)
{
    earlier.cancelIfNotStarted([&] {
        later.mergeEarlierValues(earlier.changedValues());
        if (const auto progress = earlier.progress())
            progress->addCompleted();
        earlier.setSucceeded(true);
    });
}

/// Drops an earlier operation on the same file that a later one makes needless.
void supersede(HRFFileOperation &earlier, HRFFileOperation &later)
{
    // The values of a cancelled batch are not wanted any more.
    if (!isPlainWrite(earlier) || earlier.isCancelledWithBatch())
        return;
    if (dynamic_cast<const HRFStripTagsOperation *>(&later))
        earlier.cancel();
    else if (isPlainWrite(later))
        fold(static_cast<HRFTagWriteOperation &>(earlier),
             static_cast<HRFTagWriteOperation &>(later));
}

template <class Operation> bool isOver(const std::weak_ptr<Operation> &operation)
{
    const auto present = operation.lock();
    return !present || present->isFinished();
}

} // namespace

void HRFOperationQueue::preProcessOperation(const std::shared_ptr<HRFOperation> &operation)
{
    if (const auto fileOperation = std::dynamic_pointer_cast<HRFFileOperation>(operation))
        preProcessFileOperation(fileOperation);
}

void HRFOperationQueue::preProcessFileOperation(const std::shared_ptr<HRFFileOperation> &operation)
{
    const QString key = operation->fileKey();
    if (key.isEmpty())
        return; // without a file there is nothing to wait for
    const std::lock_guard lock(m_mapMutex);
    Operations &earlier = m_filePathToOperationsMap[key];
    std::erase_if(earlier, isOver<HRFFileOperation>);
    if (const auto last = earlier.empty() ? nullptr : earlier.back().lock())
        supersede(*last, *operation);
    for (const auto &other : earlier)
        if (const auto present = other.lock())
            operation->addDependency(present);
    earlier.push_back(operation);
    if (m_filePathToOperationsMap.size() >= m_mapSizeToTidy)
        forgetFinishedOperations();
}

void HRFOperationQueue::forgetFinishedOperations()
{
    m_filePathToOperationsMap.removeIf([](const auto &entry) {
        return std::ranges::all_of(entry.value(), isOver<HRFFileOperation>);
    });
    constexpr qsizetype smallest = 64;
    m_mapSizeToTidy = std::max(smallest, 2 * m_filePathToOperationsMap.size());
}
