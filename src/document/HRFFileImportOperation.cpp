#include "document/HRFFileImportOperation.h"

#include "kit/HRFFileReferenceTable.h"
#include "store/HRFMetaFile.h"
#include "store/HRFPrivateContext.h"
#include "store/HRFSystemFile.h"
#include "tags/HRFTagEngine.h"

#include <QCoreApplication>

#include <utility>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFFileImportOperation", text);
}

} // namespace

HRFFileImportOperation::HRFFileImportOperation(const HRFFileReference &file,
                                               const QString &referenceURL, qlonglong sortIndex,
                                               std::shared_ptr<const HRFImportBatch> batch)
    : m_referenceURL(referenceURL), m_sortIndex(sortIndex), m_batch(std::move(batch))
{
    setFileURL(file, referenceURL);
    setProgress(m_batch->progress);
}

HRFFileImportOperation::Reading HRFFileImportOperation::readFile() const
{
    // Another file under the name is none that was asked for.
    if (HRFFileReferenceTable::referenceURLForFile(fileURL()) != m_referenceURL)
        return std::unexpected(HRFError{
            .domain = QString::fromLatin1(HRFFileErrorDomain),
            .code = HRFFileErrorCode::noSuchFile,
            .description = tr("The file “%1” could not be found").arg(fileURL().displayName()),
            .path = fileURL().displayPath()});
    auto engine = HRFTagEngine::initWithURL(fileURL(), true);
    if (!engine)
        return std::unexpected(std::move(engine.error()));
    HRFFileSnapshot snapshot = HRFFileSnapshot::of(**engine);
    if (m_batch->inspector)
        m_batch->inspector(m_referenceURL, **engine);
    return snapshot;
}

void HRFFileImportOperation::waitFor(const std::shared_ptr<HRFOperation> &earlier)
{
    m_hasToWait = true;
    addDependency(earlier);
}

bool HRFFileImportOperation::beginReading()
{
    const std::lock_guard lock(m_readingMutex);
    return !std::exchange(m_isReading, true);
}

void HRFFileImportOperation::readAhead()
{
    if (!isCancelledWithBatch() && !m_hasToWait && beginReading())
        read();
}

/// Whoever waits for the reading must not wait for ever, whatever happens here.
void HRFFileImportOperation::read()
{
    Reading reading;
    try {
        reading = readFile();
    } catch (const std::exception &failure) {
        reading = std::unexpected(HRFError{.domain = QString::fromLatin1(HRFLirraErrorDomain),
                                           .description = QString::fromUtf8(failure.what())});
    }
    const std::lock_guard lock(m_readingMutex);
    m_reading = std::move(reading);
    m_hasRead.notify_all();
}

HRFFileImportOperation::Reading HRFFileImportOperation::takeReading()
{
    if (beginReading())
        read();
    std::unique_lock lock(m_readingMutex);
    m_hasRead.wait(lock, [this] { return m_reading.has_value(); });
    return std::move(*m_reading);
}

void HRFFileImportOperation::main()
{
    if (isCancelledWithBatch())
        return;
    const Reading reading = takeReading();
    if (!reading)
        return setError(reading.error());
    m_batch->context->performBlockAndWait([&] { insertRecord(*reading); });
}

void HRFFileImportOperation::insertRecord(const HRFFileSnapshot &snapshot)
{
    constexpr qlonglong filesPerSave = 300;
    auto *record = m_batch->context->newObject<HRFMetaFile>();
    record->setSortIndex(m_sortIndex);
    HRFFileReferenceTable::preferPath(fileURL()); // the record shows the path that was asked for
    record->setFileURL(m_referenceURL);
    if (record->fileInfo().fileName().isEmpty()) // the file is gone by now
        record->fileInfo().setFileName(fileURL().displayName());
    record->importValues(snapshot);
    setObjectID(record->objectID());
    setSucceeded(true);
    m_batch->progress->addCompleted();
    if (!isCancelledWithBatch() && m_batch->progress->completedUnitCount() % filesPerSave == 0)
        m_batch->save();
}
