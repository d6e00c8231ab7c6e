#include "operations/HRFFileOperation.h"

#include "kit/HRFFileReferenceTable.h"
#include "store/HRFMetaFile.h"
#include "store/HRFSystemFile.h"

#include <QCoreApplication>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFFileOperation", text);
}

} // namespace

HRFError HRFFileNotFoundError(const QString &fileName, const QString &path)
{
    HRFError error;
    error.domain = QString::fromLatin1(HRFFileErrorDomain);
    error.code = HRFFileErrorCode::noSuchFile;
    error.description = tr("The file “%1” could not be found").arg(fileName);
    error.recoverySuggestion = tr("It was deleted, replaced, or moved to another place.");
    error.path = path;
    return error;
}

void HRFFileOperation::setFile(const HRFMetaFile &file)
{
    m_objectID = file.objectID();
    // Where the file is now is looked up when this runs.
    const QString referenceURL = file.fileURL();
    const auto known = HRFFileReferenceTable::lastKnownFileForURL(referenceURL);
    const std::lock_guard lock(m_fieldsMutex);
    m_fileURL = known.value_or(HRFFileReference());
    m_fileName = known ? QString() : file.fileInfo().displayFileName();
    m_referenceURL = referenceURL;
}

HRFFileReference HRFFileOperation::fileURL() const
{
    const std::lock_guard lock(m_fieldsMutex);
    return m_fileURL;
}

void HRFFileOperation::setFileURL(const HRFFileReference &file)
{
    setFileURL(file, HRFFileReferenceTable::referenceURLForFile(file).value_or(QString()));
}

void HRFFileOperation::setFileURL(const HRFFileReference &file, const QString &referenceURL)
{
    const std::lock_guard lock(m_fieldsMutex);
    m_fileURL = file;
    m_fileName.clear();
    m_referenceURL = referenceURL;
}

QString HRFFileOperation::fileName() const
{
    const std::lock_guard lock(m_fieldsMutex);
    return m_fileName.isEmpty() ? m_fileURL.displayName() : m_fileName;
}

QString HRFFileOperation::fileKey() const
{
    const QString url = referenceURL();
    return url.isEmpty() ? QString::fromLatin1(fileURL().nativePath()) : url;
}

QString HRFFileOperation::referenceURL() const
{
    const std::lock_guard lock(m_fieldsMutex);
    return m_referenceURL;
}

std::shared_ptr<HRFProgress> HRFFileOperation::progress() const
{
    const std::lock_guard lock(m_fieldsMutex);
    return m_progress.lock();
}

void HRFFileOperation::setProgress(const std::shared_ptr<HRFProgress> &progress)
{
    const std::lock_guard lock(m_fieldsMutex);
    m_progress = progress;
}

HRFInteractionOwner HRFFileOperation::owner() const
{
    const std::shared_ptr<HRFProgress> batch = progress();
    return batch ? batch->owner() : HRFInteractionOwner();
}

bool HRFFileOperation::isCancelledWithBatch() const
{
    const std::shared_ptr<HRFProgress> batch = progress();
    return isCancelled() || (batch && batch->isCancelled());
}

std::optional<HRFError> HRFFileOperation::error() const
{
    const std::lock_guard lock(m_fieldsMutex);
    return m_error;
}

void HRFFileOperation::setError(const std::optional<HRFError> &error)
{
    const std::lock_guard lock(m_fieldsMutex);
    m_error = error;
}

HRFResult<HRFFileReference> HRFFileOperation::findFile()
{
    const QString url = referenceURL();
    const HRFFileReference found = url.isEmpty()
        ? fileURL()
        : HRFFileReferenceTable::fileForURL(url).value_or(HRFFileReference());
    if (found.isNull()) {
        const auto known = HRFFileReferenceTable::lastKnownFileForURL(url);
        return std::unexpected(
            HRFFileNotFoundError(fileName(), known ? known->displayPath() : QString()));
    }
    const std::lock_guard lock(m_fieldsMutex);
    m_fileURL = found;
    return found;
}

void HRFFileOperation::mainDidThrow(const std::exception &failure)
{
    HRFError error;
    error.domain = QString::fromLatin1(HRFLirraErrorDomain);
    error.description = tr("Could not process file: “%1”").arg(fileName());
    error.recoverySuggestion = QString::fromUtf8(failure.what());
    setError(error);
    setSucceeded(false);
}
