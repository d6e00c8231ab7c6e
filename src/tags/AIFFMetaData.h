#pragma once

#include "tags/HRFEngineClass.h"
#include "tags/ID3MetaData.h"

#include <taglib/aifffile.h>

/// The engine of AIFF and AIFF-C files.
class AIFFMetaData : public ID3MetaData
{
public:
    static const HRFEngineClass metadataClass;

    AIFFMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

    TagLib::ID3v2::Tag *ID3V2Tag() const override { return m_tagFile->tag(); }
    HRFResult<void> stripTags() override;
    HRFResult<void> checkFile() override;

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    TagLib::File *tagFile() const override { return m_tagFile.get(); }
    HRFResult<void> saveTags() override;

private:
    std::unique_ptr<TagLib::RIFF::AIFF::File> m_tagFile;
    QString m_obstacle; ///< why saving would lose a part of the tags
};
