#pragma once

#include "kit/HRFError.h"
#include "kit/HRFFileReference.h"
#include "operations/HRFOperation.h"
#include "operations/HRFProgress.h"
#include "store/HRFManagedObject.h"

#include <atomic>
#include <optional>

class HRFMetaFile;

/// What is wrong when the file of a record is not there any more.
/// @param path where it was last known to be
HRFError HRFFileNotFoundError(const QString &fileName, const QString &path = {});

/// Work on one file of a list.
class HRFFileOperation : public HRFOperation
{
public:
    /// An operation of the given class for a record, which must be of a main context.
    template <class Operation>
    static std::shared_ptr<Operation> operationWithFile(const HRFMetaFile &file)
    {
        auto operation = std::make_shared<Operation>();
        operation->setFile(file);
        return operation;
    }
    /// Makes this an operation on the file of a record, which must be of a main context.
    void setFile(const HRFMetaFile &file);

    /// The record that this operation works for.
    HRFObjectID objectID() const { return m_objectID; }
    void setObjectID(HRFObjectID objectID) { m_objectID = objectID; }
    /// The file where it was last known to be; null when that never was known.
    HRFFileReference fileURL() const;
    void setFileURL(const HRFFileReference &file);
    /// @param referenceURL that of the file, where it is known already
    void setFileURL(const HRFFileReference &file, const QString &referenceURL);
    /// The name of the file, for the user; known even when the file is not found.
    QString fileName() const;
    /// Names the file wherever it moves: its reference URL, else its path. Empty without a file.
    QString fileKey() const;

    /// That of the batch; nullptr without one, or when nobody holds it any more.
    std::shared_ptr<HRFProgress> progress() const;
    /// The list of the batch, whose window shows what goes wrong.
    HRFInteractionOwner owner() const;
    void setProgress(const std::shared_ptr<HRFProgress> &progress);
    /// Whether this is the last operation of its batch.
    bool isLast() const { return m_isLast; }
    void setLast(bool isLast) { m_isLast = isLast; }
    /// Whether this operation, or its batch, is cancelled.
    bool isCancelledWithBatch() const;

    bool succeeded() const { return m_succeeded; }
    void setSucceeded(bool succeeded) { m_succeeded = succeeded; }
    /// What went wrong with the file, for those who list the failures of a batch.
    std::optional<HRFError> error() const;
    void setError(const std::optional<HRFError> &error);

protected:
    /// The file at its present path, also as fileURL() from now on; an error that names it when it
    /// is not found.
    [[nodiscard]] HRFResult<HRFFileReference> findFile();
    void mainDidThrow(const std::exception &failure) override;

    mutable std::mutex m_fieldsMutex; ///< guards the fields of this class and those below it

private:
    QString referenceURL() const;

    std::atomic<HRFObjectID> m_objectID = 0;
    std::atomic<bool> m_isLast = false;
    std::atomic<bool> m_succeeded = false;
    HRFFileReference m_fileURL;
    QString m_fileName; ///< empty where m_fileURL tells it
    QString m_referenceURL; ///< empty when it is not known
    std::weak_ptr<HRFProgress> m_progress;
    std::optional<HRFError> m_error;
};
