#pragma once

#include "tags/VorbisMetaData.h"

namespace TagLib::Ogg {
class File;
}

/// The engine of Ogg files that hold Vorbis or FLAC.
class OGGVorbisMetaData : public VorbisMetaData
{
public:
    static const HRFEngineClass metadataClass;

    OGGVorbisMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    HRFResult<void> saveTags() override;

private:
    HRFResult<void> saveOggFlac(TagLib::Ogg::File &file);

    bool m_isFlac = false;
};
