#pragma once

#include "tags/HRFEngineClass.h"
#include "tags/HRFTagUnion.h"
#include "tags/ID3MetaData.h"

#include <taglib/dsdifffile.h>

/// The engine of DSD interchange files: an ID3v2 tag, and the DIIN chunk for artist and title.
class DSDIFFMetaData : public HRFTagUnion<DSDIFFMetaData, ID3MetaData>
{
public:
    static const HRFEngineClass metadataClass;

    DSDIFFMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

    /// Whether TagLib can read the file at all.
    static HRFResult<void> checkBeforeOpening(HRFTagStream &stream);

    TagLib::ID3v2::Tag *ID3V2Tag() const override { return m_tagFile->ID3v2Tag(); }
    TagLib::DSDIFF::DIIN::Tag *DIINTag() const { return m_tagFile->DIINTag(); }

    QVariant secondValueForKey(HRFTagKey key) const;
    void setSecondValueForKey(const QVariant &value, HRFTagKey key);
    QString secondTagVersion() const;
    HRFResult<void> stripTags() override;
    HRFResult<void> checkFile() override;

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    TagLib::File *tagFile() const override { return m_tagFile.get(); }
    HRFResult<void> saveTags() override;

private:
    void readDIINTexts();

    /// Tests what TagLib cannot stand, and makes an engine.
    std::unique_ptr<TagLib::DSDIFF::File> m_tagFile;
    std::vector<TagLib::String> m_DIINTexts; ///< as they were read
    QString m_obstacle; ///< why saving would lose a part of the tags
};
