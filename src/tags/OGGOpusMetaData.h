#pragma once

#include "tags/OGGMetaData.h"

/// The engine of Opus files.
class OGGOpusMetaData : public OGGMetaData
{
public:
    static const HRFEngineClass metadataClass;

    OGGOpusMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    std::optional<CommentPlace> commentPlace() const override;
    QByteArray strippedRest(const QByteArray &rest) const override;
};
