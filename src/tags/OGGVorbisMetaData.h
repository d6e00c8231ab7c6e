#pragma once

#include "tags/VorbisMetaData.h"

/// The engine of Ogg files that hold Vorbis or FLAC.
class OGGVorbisMetaData : public VorbisMetaData
{
public:
    static const HRFEngineClass metadataClass;

    OGGVorbisMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }

private:
    bool m_isFlac = false;
};
