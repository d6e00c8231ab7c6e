#pragma once

#include "tags/VorbisMetaData.h"

/// The engine of Opus files.
class OGGOpusMetaData : public VorbisMetaData
{
public:
    static const HRFEngineClass metadataClass;

    OGGOpusMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
};
