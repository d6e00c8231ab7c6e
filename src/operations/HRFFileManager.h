#pragma once

#include "kit/HRFError.h"
#include "kit/HRFFileReference.h"

/// What to do about an item that is in the way.
enum class HRFFileExistsRecovery {
    Stop = 0, ///< fail, and cancel the whole batch
    Skip = 1, ///< fail
    KeepBoth = 2, ///< give the new item a name of its own
    Replace = 3,
};

/// Moves files, and gets over what stands in the way.
class HRFFileManager
{
public:
    HRFFileExistsRecovery fileExistsRecovery() const { return m_fileExistsRecovery; }
    void setFileExistsRecovery(HRFFileExistsRecovery recovery) { m_fileExistsRecovery = recovery; }

    /// Moves an item within its volume. Nothing is overwritten unless fileExistsRecovery says so.
    ///
    /// @return where the item is now, or an error that names it: of HRFFileErrorDomain 516 when the
    /// destination exists, 513 without permission, 4 when there is no such item or folder, else of
    /// HRFPOSIXErrorDomain
    [[nodiscard]] HRFResult<HRFFileReference> moveItemAtURL(const HRFFileReference &source,
                                                            const HRFFileReference &destination);

private:
    HRFFileExistsRecovery m_fileExistsRecovery = HRFFileExistsRecovery::Stop;
};
