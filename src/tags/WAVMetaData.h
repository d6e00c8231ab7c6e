#pragma once

#include "tags/HRFEngineClass.h"
#include "tags/HRFTagUnion.h"
#include "tags/ID3MetaData.h"

#include <taglib/wavfile.h>

/// The engine of WAVE files: an ID3v2 tag, and the RIFF INFO list for the properties that it can
/// hold.
class WAVMetaData : public HRFTagUnion<WAVMetaData, ID3MetaData>
{
public:
    static const HRFEngineClass metadataClass;

    WAVMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

    TagLib::ID3v2::Tag *ID3V2Tag() const override;
    TagLib::RIFF::Info::Tag *infoTag() const;

    /// A null chunk identifier has no text, and nothing is written to it.
    HRFText stringForINFOTag(const char *chunkID) const;
    void setStringForINFOTag(const HRFText &value, const char *chunkID);
    void removeValueForINFOTag(const char *chunkID);
    HRFText stringForINFOKey(HRFTagKey key) const;
    void setStringForINFOKey(const HRFText &value, HRFTagKey key);
    void removeValueForINFOKey(HRFTagKey key);
    HRFNumber numberForINFOKey(HRFTagKey key) const;
    /// Nothing and 0 remove the field.
    void setNumberForINFOKey(const HRFNumber &value, HRFTagKey key);

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
    const int m_saveTagTypes; ///< the types that are switched on
    std::unique_ptr<TagLib::RIFF::WAV::File> m_tagFile;
    QString m_obstacle; ///< why saving would lose a part of the tags
};
