#pragma once

#include "operations/HRFWorkQueue.h"

#include <QHash>
#include <QString>

class HRFFileOperation;

/// A queue for operations that change files. Those on one file run in the order in which they came.
/// A tag write that has not started is merged into the next write of its file, and dropped when the
/// tags are going to be stripped.
class HRFOperationQueue : public HRFWorkQueue
{
protected:
    void preProcessOperation(const std::shared_ptr<HRFOperation> &operation) override;

private:
    void preProcessFileOperation(const std::shared_ptr<HRFFileOperation> &operation);
    void forgetFinishedOperations();

    using Operations = std::vector<std::weak_ptr<HRFFileOperation>>;

    std::mutex m_mapMutex; ///< guards the members below, and lets one pre-processing run at a time
    /// By file key. The last of each file is the one that counts; the others matter when it is
    /// cancelled, as it does not wait for them then.
    QHash<QString, Operations> m_filePathToOperationsMap;
    qsizetype m_mapSizeToTidy = 64; ///< the map is tidied when it is that large
};
