#pragma once

#include "store/HRFArtworkFacts.h"
#include "store/HRFManagedObject.h"

#include <optional>

class HRFMetaFile;

/// What is known of a file's picture.
class HRFArtworkProperties : public HRFManagedObject
{
public:
    static QString entityName();
    using HRFManagedObject::HRFManagedObject;

    HRFMetaFile *parentMetaFile() const;

    /// Takes the facts from a picture, its digest among them (HRFMetaFile::artworkMD5). No data
    /// clears them.
    void updateWithBitmapData(const QByteArray &data);
    void update(const std::optional<HRFArtworkFacts> &facts);
};
