#pragma once

#include "tags/ID3FileMetaData.h"

#include <taglib/aifffile.h>

/// The engine of AIFF and AIFF-C files.
class AIFFMetaData : public ID3FileMetaData<TagLib::RIFF::AIFF::File>
{
public:
    static const HRFEngineClass metadataClass;

    using ID3FileMetaData::ID3FileMetaData;

    TagLib::ID3v2::Tag *ID3V2Tag() const override { return tagFile()->tag(); }
    HRFResult<void> checkFile() override;

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    HRFResult<void> saveTags() override;
};
