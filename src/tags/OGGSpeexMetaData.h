#pragma once

#include "tags/OGGMetaData.h"

/// The engine of Speex files.
class OGGSpeexMetaData : public OGGMetaData
{
public:
    static const HRFEngineClass metadataClass;

    OGGSpeexMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

    /// The file must have a tag, too. Audio in its place is none.
    HRFResult<void> checkFile() override;

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    std::optional<CommentPlace> commentPlace() const override;
};
