#pragma once

#include "tags/OGGMetaData.h"

/// The engine of Ogg files that hold Vorbis or FLAC.
class OGGVorbisMetaData : public OGGMetaData
{
public:
    static const HRFEngineClass metadataClass;

    OGGVorbisMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    std::optional<CommentPlace> commentPlace() const override;
    HRFResult<void> updatePrefix(QByteArray &prefix, qsizetype length) const override;
    QByteArray strippedRest(const QByteArray &rest) const override;

private:
    bool m_isFlac = false;
};
