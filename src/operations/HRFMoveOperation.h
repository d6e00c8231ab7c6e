#pragma once

#include "operations/HRFFileManager.h"
#include "operations/HRFFileOperation.h"

/// Moves or copies the file of a record.
class HRFMoveOperation : public HRFFileOperation
{
public:
    /// That of the batch, so that an answer for all reaches every file, and none replaces one that
    /// was moved before. To be set before the operation is in a queue (assertion "fileManager").
    void setFileManager(const std::shared_ptr<HRFFileManager> &manager) { m_fileManager = manager; }
    /// To be set before the operation is in a queue.
    bool isCopyOperation() const { return m_isCopyOperation; }
    void setCopyOperation(bool isCopy) { m_isCopyOperation = isCopy; }

    /// Where the file was; null before the operation ran.
    HRFFileReference srcURL() const;
    /// Where the file is to be; where it, or its copy, is after the operation succeeded. On another
    /// file system it is a file with another reference URL.
    HRFFileReference dstURL() const;
    void setDstURL(const HRFFileReference &destination);

protected:
    void main() override;

private:
    HRFTransfer::Kind kind() const;
    [[nodiscard]] HRFResult<HRFFileReference> transfer(const HRFFileReference &source);
    void leaveOut(const HRFError &error, HRFFileExistsRecovery recovery);
    void finish(const HRFResult<HRFFileReference> &result);

    std::shared_ptr<HRFFileManager> m_fileManager;
    bool m_isCopyOperation = false;

    // Guarded by m_fieldsMutex:
    HRFFileReference m_srcURL;
    HRFFileReference m_dstURL;
};
