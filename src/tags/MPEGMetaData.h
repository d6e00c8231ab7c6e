#pragma once

#include "tags/APEUnionMetaData.h"
#include "tags/HRFEngineClass.h"

#include <taglib/mpegfile.h>

/// The engine of MPEG audio files: ID3v2, ID3v1 and APE tags as one.
class MPEGMetaData : public APEUnionMetaData
{
public:
    static const HRFEngineClass metadataClass;

    MPEGMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

    TagLib::ID3v2::Tag *ID3V2Tag() const override;
    TagLib::ID3v1::Tag *ID3V1Tag() const override;
    TagLib::APE::Tag *APETag() const override;
    /// Removes all tags and writes the file.
    HRFResult<void> stripTags() override;
    HRFResult<void> checkFile() override;

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    TagLib::File *tagFile() const override { return m_tagFile.get(); }
    HRFResult<void> saveTags() override;
    std::shared_ptr<HRFTagStream>
    streamForReading(const std::map<HRFTagKey, QVariant> &values) const override;

private:
    bool mayCreateTag(int type) const;
    void takeOverSecondTag();
    void openTagFile(bool readProperties);

    const int m_saveTagTypes; ///< the types that are switched on: they are created and saved
    std::unique_ptr<TagLib::MPEG::File> m_tagFile;
};
