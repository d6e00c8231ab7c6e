#pragma once

#include "tags/HRFEngineClass.h"
#include "tags/ID3MetaData.h"

#include <taglib/dsffile.h>

/// The engine of DSD stream files.
class DSFMetaData : public ID3MetaData
{
public:
    static const HRFEngineClass metadataClass;

    DSFMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

    TagLib::ID3v2::Tag *ID3V2Tag() const override { return m_tagFile->tag(); }

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    TagLib::File *tagFile() const override { return m_tagFile.get(); }
    HRFResult<void> saveTags() override;

private:
    std::unique_ptr<TagLib::DSF::File> m_tagFile;
};
