#pragma once

#include "conversions/HRFConversionContext.h"
#include "kit/HRFFileReference.h"

#include <memory>
#include <vector>

class HRFMoveOperation;
class HRFPrivateContext;
class HRFProgress;

/// What is left to do when a batch of files was moved or copied. It knows no list, and lives as
/// long as the work does.
class HRFAfterMove
{
public:
    HRFAfterMove(std::vector<std::shared_ptr<HRFMoveOperation>> operations,
                 const HRFConversionContext &context, std::shared_ptr<HRFProgress> progress);

    /// Carries along what else was in the folders that lost their audio files, and offers to remove
    /// those that are empty then. Not on the main thread, which asks.
    void postProcessSuccessfulOperations() const;
    /// Lets the records of moved files lead to where they are now.
    void updateRecords(HRFPrivateContext &context) const;
    /// Shows the new files and folders to the user, who may want that. On the main thread.
    void revealItems() const;

private:
    using Operations = std::vector<std::shared_ptr<HRFMoveOperation>>;

    Operations succeeded() const;
    void moveAccompanyingFiles(const HRFFileReference &from, const HRFFileReference &to) const;

    const Operations m_operations;
    const HRFConversionContext m_context;
    const std::shared_ptr<HRFProgress> m_progress;
};

/// Asks whether empty folders are to be removed, and puts them into the Trash. On the main thread.
/// @param progress that of the move that left them
void HRFRemoveEmptyDirectories(const std::vector<HRFFileReference> &folders,
                               const HRFProgress &progress);
