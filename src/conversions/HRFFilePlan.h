#pragma once

#include "conversions/HRFDotPrefixCheck.h"
#include "conversions/HRFPattern.h"
#include "kit/HRFError.h"
#include "kit/HRFFileReference.h"
#include "operations/HRFFileManager.h"
#include "store/HRFManagedObject.h"

#include <functional>
#include <optional>
#include <vector>

class HRFMetaFile;

/// Where one file of a batch is, and where it is to be.
struct HRFPlannedFile
{
    HRFObjectID objectID = 0;
    HRFFileReference source{}; ///< null when the file is not found
    HRFFileReference destination{}; ///< of no meaning when the file is refused
    /// Why nothing is to be done with the file.
    std::optional<HRFError> refusal{};
    /// What the user may want to know beforehand: missing values, a leading dot, what is in the
    /// way and stays.
    std::vector<HRFError> warnings{};
    /// The file takes the place of what is in its way, which is no file of the batch.
    bool replaces = false;
};

struct HRFFilePlan
{
    std::vector<HRFPlannedFile> files{};
    /// An answer has ended the batch: the last file is the one that was asked about, and those
    /// after it are not here; nor those before it when a leading dot has ended moves.
    bool isCancelled = false;
};

/// How questions are answered while files are planned.
struct HRFPlanAnswers
{
    /// What is being done, for questions.
    QString title{};
    /// See HRFDotPrefixCheck; without an answer the user is asked.
    int dotNames = HRFDotPrefixCheck::noAnswer;
    /// Says what to do about something at a file's destination. Without it such things are left to
    /// whoever carries the plan out.
    std::function<HRFFileExistsRecovery(const HRFFileReference &destination, bool isLast)>
        existingItem{};
    /// Ends the plan with the files so far. It may be left out.
    std::function<bool()> hasToEnd{};
};

// Nothing is changed by planning. Files are taken to be worked on one after the other, so that an
// earlier one makes room for a later one, or is in its way. On the main thread.

/// Files keep their folder and extension.
HRFFilePlan HRFPlanRenames(const std::vector<HRFMetaFile *> &files, const HRFPattern &pattern,
                           const HRFPlanAnswers &answers);

/// Files keep their name; the pattern makes the folders below the base folder, or below the one
/// that a file is in. They are copied when the context of the pattern says so.
HRFFilePlan HRFPlanMoves(const std::vector<HRFMetaFile *> &files, const HRFPattern &pattern,
                         const std::optional<HRFFileReference> &baseFolder,
                         const HRFPlanAnswers &answers);
