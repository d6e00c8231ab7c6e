#include "operations/HRFMoveOperation.h"

#include "kit/HRFAssert.h"
#include "kit/HRFFileReferenceTable.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserInteraction.h"
#include "operations/HRFFileReference+Locations.h"

HRFFileReference HRFMoveOperation::srcURL() const
{
    const std::lock_guard lock(m_fieldsMutex);
    return m_srcURL;
}

HRFFileReference HRFMoveOperation::dstURL() const
{
    const std::lock_guard lock(m_fieldsMutex);
    return m_dstURL;
}

void HRFMoveOperation::setDstURL(const HRFFileReference &destination)
{
    const std::lock_guard lock(m_fieldsMutex);
    m_dstURL = destination;
}

void HRFMoveOperation::main()
{
    HRFRequire(m_fileManager != nullptr, "fileManager");
    if (isCancelledWithBatch())
        return;
    const HRFResult<HRFFileReference> source = findFile();
    HRFResult<HRFFileReference> result = source ? transfer(*source) : source;
    if (!result && HRFIsFileExistsError(result.error())) {
        const auto recovery =
            m_fileManager->userRequestedRecoveryForFileExistsError(dstURL(), !isLast(), owner());
        result = m_fileManager->attemptFixingFileExistsError(result.error(), recovery,
                                                             {kind(), *source, dstURL()});
        if (recovery == HRFFileExistsRecovery::Stop || recovery == HRFFileExistsRecovery::Skip)
            return leaveOut(result.error(), recovery);
    }
    finish(result);
}

HRFTransfer::Kind HRFMoveOperation::kind() const
{
    return m_isCopyOperation ? HRFTransfer::Kind::Copy : HRFTransfer::Kind::Move;
}

HRFResult<HRFFileReference> HRFMoveOperation::transfer(const HRFFileReference &source)
{
    const HRFFileReference destination = dstURL();
    {
        const std::lock_guard lock(m_fieldsMutex);
        m_srcURL = source;
    }
    if (m_isCopyOperation)
        return m_fileManager->copyItemAtURL(source, destination);
    // A move that changes nothing but letter case is not made, and is no failure.
    if (differInCaseAtMost(source, destination))
        return source;
    return m_fileManager->moveItemAtURL(source, destination);
}

void HRFMoveOperation::leaveOut(const HRFError &error, HRFFileExistsRecovery recovery)
{
    setError(error);
    const std::shared_ptr<HRFProgress> batch = progress();
    if (recovery == HRFFileExistsRecovery::Stop && batch)
        batch->cancel();
}

void HRFMoveOperation::finish(const HRFResult<HRFFileReference> &result)
{
    if (!result) {
        setError(result.error());
        const auto present = [&] {
            HRFUserInteraction::current().presentError(result.error(), owner());
        };
        HRFMainThread::run(present, HRFMainThread::Wait::Yes);
        return;
    }
    // Those that wait to write the file know it by the reference that it had.
    if (!m_isCopyOperation)
        HRFFileReferenceTable::fileDidBecome(fileKey(), *result);
    setDstURL(*result);
    m_fileManager->protectItem(*result);
    setSucceeded(true);
    if (const std::shared_ptr<HRFProgress> batch = progress())
        batch->addCompleted();
}
