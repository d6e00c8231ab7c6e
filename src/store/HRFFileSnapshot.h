#pragma once

#include "kit/HRFFileReference.h"
#include "store/HRFArtworkFacts.h"
#include "store/HRFValues.h"

#include <QDateTime>
#include <QString>

#include <optional>

class HRFTagEngine;

/// What the file system tells of a file.
struct HRFFileFacts
{
    QString filePath{}; ///< the folder that holds it
    qulonglong fileSize = 0; ///< bytes
    QDateTime dateCreated{}; ///< UTC; invalid where the file system keeps none
    QDateTime dateModified{}; ///< UTC

    /// Nothing when the file cannot be examined.
    static std::optional<HRFFileFacts> of(const HRFFileReference &file);
};

/// All that the records of a file are made from. It is taken from an engine on any thread; filling
/// the records is quick then.
struct HRFFileSnapshot
{
    QVariant tagSize{};
    HRFValues tags{}; ///< by property number of the entity MetaTags
    HRFValues properties{}; ///< by property number of the entity AudioProperties
    std::optional<HRFFileFacts> facts{};
    std::optional<HRFArtworkFacts> artwork{};

    static HRFFileSnapshot of(const HRFTagEngine &engine);
};
