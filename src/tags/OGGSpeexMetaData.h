#pragma once

#include "tags/VorbisMetaData.h"

/// The engine of Speex files.
class OGGSpeexMetaData : public VorbisMetaData
{
public:
    static const HRFEngineClass metadataClass;

    OGGSpeexMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

    /// The file must have a tag, too.
    HRFResult<void> checkFile() override;

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
};
