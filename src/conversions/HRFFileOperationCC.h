#pragma once

#include "conversions/HRFConversionOutcome.h"
#include "conversions/HRFFilePlan.h"
#include "kit/HRFWeakSelf.h"

#include <memory>
#include <span>

class HRFFileManager;
class HRFFileOperationHost;
class HRFMoveOperation;
class HRFProgress;

/// The conversions that rename, move and copy the selected files. For the main thread alone.
class HRFFileOperationCC
{
public:
    using PlannedFiles = std::span<const HRFPlannedFile>;
    using Moves = std::vector<std::shared_ptr<HRFMoveOperation>>;

    /// The list must live longer.
    explicit HRFFileOperationCC(HRFFileOperationHost &host) : m_host(host) { }

    /// Gives the selected files the names that a pattern makes, as one undo action. Files that get
    /// none are selected then.
    HRFConversionOutcome renameFilesWithPattern(const HRFPattern &pattern, HRFProgress &progress);
    /// Renames the records of planned files, which makes the list rename the files; answers whether
    /// there were any. Refused ones are left out.
    bool renamePlannedFiles(PlannedFiles files, HRFProgress &progress);

    /// Moves the selected files, or copies them, into folders that a pattern makes below the base
    /// folder, or below the folder that each file is in. Files that get no folder are selected
    /// then, and the user is told.
    ///
    /// @param onCompletion called when all is done; not when the user cancels a question before
    /// @return whether anything was queued
    bool moveFilesToSubPathDefinedByPattern(const HRFPattern &pattern,
                                            const std::optional<HRFFileReference> &baseFolder,
                                            std::shared_ptr<HRFProgress> progress = {},
                                            const std::function<void()> &onCompletion = {});
    /// The same for planned files; answers the queued operations.
    Moves movePlannedFiles(PlannedFiles files, const HRFConversionContext &context,
                           const std::shared_ptr<HRFFileManager> &fileManager,
                           const std::shared_ptr<HRFProgress> &progress,
                           const std::function<void()> &onCompletion);

private:
    void selectFiles(const std::vector<HRFObjectID> &files);
    void handleFailedMoveOperations(const std::vector<HRFObjectID> &files,
                                    const std::shared_ptr<HRFProgress> &progress);
    std::shared_ptr<HRFMoveOperation> operationFor(const HRFPlannedFile &planned);

    HRFFileOperationHost &m_host;
    const HRFWeakSelf<HRFFileOperationCC> m_weakSelf{this};
};
