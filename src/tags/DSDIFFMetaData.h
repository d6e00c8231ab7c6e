#pragma once

#include "tags/HRFTagUnion.h"
#include "tags/ID3FileMetaData.h"

#include <taglib/dsdifffile.h>

#include <vector>

/// The engine of DSD interchange files: an ID3v2 tag, and the DIIN chunk for artist and title.
class DSDIFFMetaData : public HRFTagUnion<DSDIFFMetaData, ID3FileMetaData<TagLib::DSDIFF::File>>
{
public:
    static const HRFEngineClass metadataClass;

    using HRFTagUnion::HRFTagUnion;

    /// Whether TagLib can read the file at all.
    static HRFResult<void> checkBeforeOpening(HRFTagStream &stream);

    TagLib::ID3v2::Tag *ID3V2Tag() const override { return tagFile()->ID3v2Tag(); }
    TagLib::DSDIFF::DIIN::Tag *DIINTag() const { return tagFile()->DIINTag(); }

    QVariant secondValueForKey(HRFTagKey key) const;
    void setSecondValueForKey(const QVariant &value, HRFTagKey key);
    QString secondTagVersion() const;
    /// Not the DIIN chunks: they describe the recording, too.
    QString strippableTags() const override;
    HRFResult<void> checkFile() override;

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    HRFResult<void> saveTags() override;

private:
    void noteDIINTexts();

    std::vector<TagLib::String> m_DIINTexts; ///< as they are in the file
};
