#pragma once

#include "tags/ID3FileMetaData.h"

#include <taglib/dsffile.h>

/// The engine of DSD stream files.
class DSFMetaData : public ID3FileMetaData<TagLib::DSF::File>
{
public:
    static const HRFEngineClass metadataClass;

    using ID3FileMetaData::ID3FileMetaData;

    TagLib::ID3v2::Tag *ID3V2Tag() const override { return tagFile()->tag(); }

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    HRFResult<void> saveTags() override;
};
