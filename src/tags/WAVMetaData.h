#pragma once

#include "tags/HRFTagUnion.h"
#include "tags/ID3FileMetaData.h"

#include <taglib/wavfile.h>

/// The engine of WAVE files: an ID3v2 tag, and the RIFF INFO list for the properties that it can
/// hold.
class WAVMetaData : public HRFTagUnion<WAVMetaData, ID3FileMetaData<TagLib::RIFF::WAV::File>>
{
public:
    static const HRFEngineClass metadataClass;

    WAVMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

    TagLib::ID3v2::Tag *ID3V2Tag() const override { return tagFile()->ID3v2Tag(); }
    TagLib::RIFF::Info::Tag *infoTag() const { return tagFile()->InfoTag(); }

    /// A null chunk identifier has no text, and nothing is written to it.
    HRFText stringForINFOTag(const char *chunkID) const;
    void setStringForINFOTag(const HRFText &value, const char *chunkID);
    void removeValueForINFOTag(const char *chunkID) { setStringForINFOTag({}, chunkID); }
    HRFText stringForINFOKey(HRFTagKey key) const
    {
        return stringForINFOTag(INFOChunkIDForKey(key));
    }
    void setStringForINFOKey(const HRFText &value, HRFTagKey key)
    {
        setStringForINFOTag(value, INFOChunkIDForKey(key));
    }
    void removeValueForINFOKey(HRFTagKey key) { removeValueForINFOTag(INFOChunkIDForKey(key)); }
    HRFNumber numberForINFOKey(HRFTagKey key) const
    {
        return numberForString(stringForINFOKey(key));
    }
    /// Nothing and 0 remove the field.
    void setNumberForINFOKey(const HRFNumber &value, HRFTagKey key)
    {
        setStringForINFOKey(stringForNumber(value), key);
    }

    HRFText secondStringForKey(HRFTagKey key) const { return stringForINFOKey(key); }
    void setSecondStringForKey(const HRFText &value, HRFTagKey key)
    {
        setStringForINFOKey(value, key);
    }
    QVariant secondValueForKey(HRFTagKey key) const;
    void setSecondValueForKey(const QVariant &value, HRFTagKey key);
    QString secondTagVersion() const;
    HRFResult<void> stripTags() override;
    HRFResult<void> checkFile() override;

protected:
    QVariant readValue(HRFTagKey key) const override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    HRFResult<void> saveTags() override;

private:
    const int m_saveTagTypes; ///< the types that are switched on
};
