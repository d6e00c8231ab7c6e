#pragma once

#include "operations/HRFFileOperation.h"
#include "store/HRFFileSnapshot.h"

#include <condition_variable>
#include <functional>
#include <mutex>

class HRFPrivateContext;
class HRFTagEngine;

/// Looks at an engine that has just read its file, on the reading thread.
using HRFEngineInspector = std::function<void(const QString &fileURL, HRFTagEngine &)>;

/// What the imports of one batch share.
struct HRFImportBatch
{
    std::shared_ptr<HRFPrivateContext> context;
    std::shared_ptr<HRFProgress> progress;
    HRFEngineInspector inspector; ///< may be empty
    std::function<void()> save; ///< saves the context, in its turn
};

/// Reads a file and makes its record.
///
/// The reading may be done ahead, on another thread: readAhead. The records are made one at a time,
/// in the order of the queue.
class HRFFileImportOperation : public HRFFileOperation
{
public:
    HRFFileImportOperation(const HRFFileReference &file, const QString &referenceURL,
                           qlonglong sortIndex, std::shared_ptr<const HRFImportBatch> batch);

    QString referenceURL() const { return m_referenceURL; }

    /// Lets other work on the file come first. To be called before this one is in a queue.
    void waitFor(const std::shared_ptr<HRFOperation> &earlier);
    /// Reads the file now, unless that was begun before, or something else is to happen to the file
    /// first.
    void readAhead();

protected:
    void main() override;

private:
    using Reading = HRFResult<HRFFileSnapshot>;

    bool beginReading();
    void read();
    Reading readFile() const;
    Reading takeReading();
    void insertRecord(const HRFFileSnapshot &snapshot);

    const QString m_referenceURL;
    const qlonglong m_sortIndex;
    const std::shared_ptr<const HRFImportBatch> m_batch;

    bool m_hasToWait = false;
    std::mutex m_readingMutex; ///< guards the members below
    std::condition_variable m_hasRead;
    bool m_isReading = false;
    std::optional<Reading> m_reading;
};
