#pragma once

#include "kit/HRFUserInteraction.h"
#include "operations/HRFTransfer.h"

#include <optional>
#include <set>
#include <sys/types.h>
#include <utility>

/// What to do about an item that is in the way.
enum class HRFFileExistsRecovery {
    Stop = 0, ///< fail, and cancel the whole batch
    Skip = 1, ///< fail
    KeepBoth = 2, ///< give the new item a name of its own
    Replace = 3,
};

/// Moves and copies files, and gets over what stands in the way.
///
/// Moving and copying answer where the item is now, or an error that names it: of
/// HRFFileErrorDomain 516 when the destination exists, 513 without permission, 4 when there is no
/// such item or folder, else of HRFPOSIXErrorDomain. The settings are made before the first use;
/// after that one thread at a time may move and copy.
class HRFFileManager
{
public:
    /// Whether a locked file is unlocked to move it.
    void setUnlockFiles(bool unlocks) { m_unlockFiles = unlocks; }
    /// Whether a folder that may not be written gets other permissions.
    void setFixPermissions(bool fixes) { m_fixPermissions = fixes; }
    /// Whether the folder of the destination is made where it is missing.
    void setCreateMissingDirectories(bool creates) { m_createMissingDirectories = creates; }
    /// What moveItemAtURL and copyItemAtURL themselves do about an item that is in the way.
    void setFileExistsRecovery(HRFFileExistsRecovery recovery) { m_fileExistsRecovery = recovery; }
    /// The answer to all questions about items that are in the way; the user is not asked then.
    void setAppliedToAllRecovery(HRFFileExistsRecovery answer) { m_appliedToAllRecovery = answer; }

    /// Lets no other item take the place of this one, whatever the answers are.
    void protectItem(const HRFFileReference &item);

    /// Nothing is overwritten unless fileExistsRecovery says so.
    /// @param sourceURL the reference of the source, where that is known and the move stays within
    /// a file system
    [[nodiscard]] HRFResult<HRFFileReference> moveItemAtURL(const HRFFileReference &source,
                                                            const HRFFileReference &destination,
                                                            const QString &sourceURL = {});
    [[nodiscard]] HRFResult<HRFFileReference> copyItemAtURL(const HRFFileReference &source,
                                                            const HRFFileReference &destination);
    /// Copies an item to the place of another one, or where there is none, in one step.
    [[nodiscard]] static HRFResult<HRFFileReference>
    atomicCopyItemAtURL(const HRFFileReference &source, const HRFFileReference &destination);

    /// Asks the user on the main thread, from whatever thread, unless there is an answer for all.
    ///
    /// @param showSuppression whether to offer "Apply to All"
    /// @param owner the list whose file it is
    HRFFileExistsRecovery
    userRequestedRecoveryForFileExistsError(const HRFFileReference &destination,
                                            bool showSuppression, HRFInteractionOwner owner = {});
    /// Does the transfer that failed with the error after all; Stop and Skip leave it at that.
    [[nodiscard]] HRFResult<HRFFileReference>
    attemptFixingFileExistsError(const HRFError &error, HRFFileExistsRecovery recovery,
                                 const HRFTransfer &transfer);

private:
    HRFResult<HRFFileReference> perform(const HRFTransfer &transfer);
    HRFResult<HRFFileReference> attempt(const HRFTransfer &transfer, bool replaces);
    HRFResult<HRFFileReference> keepBoth(const HRFTransfer &transfer);
    HRFResult<HRFFileReference> replace(const HRFTransfer &transfer);
    bool isProtected(const HRFFileReference &item) const;
    HRFFileExistsRecovery ask(const HRFFileReference &destination, bool showSuppression,
                              HRFInteractionOwner owner);

    // 0 when the transfer may be tried again, else the errno to report:
    int fix(int failure, const HRFTransfer &transfer) const;
    int fixPermissions(int failure, const HRFTransfer &transfer) const;
    int fixDestinationPermissions(int failure, const HRFFileReference &destination) const;
    int fixMissingFolder(int failure, const HRFTransfer &transfer) const;

    bool m_unlockFiles = true;
    bool m_fixPermissions = true;
    bool m_createMissingDirectories = false;
    HRFFileExistsRecovery m_fileExistsRecovery = HRFFileExistsRecovery::Stop;
    std::optional<HRFFileExistsRecovery> m_appliedToAllRecovery; ///< for the main thread
    std::set<std::pair<dev_t, ino_t>> m_protectedItems;
};
