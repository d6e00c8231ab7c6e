#pragma once

#include "tags/HRFFrameFactory.h"
#include "tags/HRFTagEngine.h"

#include <taglib/tstring.h>

namespace TagLib::ID3v2 {
class Tag;
}

/// The engine of every format whose tag is an ID3v2 tag. A subclass opens and saves the file.
class ID3MetaData : public HRFTagEngine
{
public:
    /// Takes the text encoding of new frames from "lirra.tagging.ID3v2Version": behind the version
    /// digit, 1 is ISO Latin-1, 16 is UTF-16 and anything else UTF-8. Called once by itself; to be
    /// called again, between two file operations, when the setting changes.
    static void registerStringEncodingPreference();
    static TagLib::String::Type defaultTextEncoding();
    /// The first digit of "lirra.tagging.ID3v2Version": 3 or 4.
    static int preferredID3v2Version();

    /// The ID3v2 tag of the open file; may be null.
    virtual TagLib::ID3v2::Tag *ID3V2Tag() const = 0;

    /// The text of the first frame with the identifier.
    HRFText stringForID3Tag(const char *frameID) const;
    /// Replaces all frames with the identifier by one text frame, or by none.
    void setStringForID3Tag(const HRFText &value, const char *frameID);
    void removeValueForID3Tag(const char *frameID);

    /// The first value of the user text frame (TXXX, ID3v2.4.0 frames §4.2.6) with the description.
    HRFText stringForUserTextIdentificationFrame(const char *description) const;
    void setStringForUserTextIdentificationFrame(const HRFText &value, const char *description);

    /// The URL of the key's first frame when it is a URL frame, else its text.
    HRFText urlStringForKey(HRFTagKey key) const;
    /// URLs are Latin-1 (ID3v2.4.0 frames §4.3): other characters are percent-encoded.
    void setURLStringForKey(const HRFText &url, HRFTagKey key, const char *description);

    HRFText stringForID3Key(HRFTagKey key) const;
    void setStringForID3Key(const HRFText &value, HRFTagKey key);
    void removeValueForID3Key(HRFTagKey key);

    /// One half of a number pair "number/total": the number (@p first) or the total. A half below 1
    /// is nothing, but 0/0 is 0.
    HRFNumber numberForIntPairWithID3Key(HRFTagKey key, bool first) const;
    /// Writes "first/second", or "first" without a second; removes the frame when both are 0.
    void setFirstValueSecondValueForID3Key(const HRFNumber &first, const HRFNumber &second,
                                           HRFTagKey key);

    HRFText stringForKey(HRFTagKey key) const override;
    void setStringForKey(const HRFText &value, HRFTagKey key) override;
    HRFResult<void> stripTags() override;
    /// Completes the tag that TagLib has read, too.
    HRFResult<void> checkFile() override;

protected:
    explicit ID3MetaData(std::shared_ptr<HRFTagStream> stream);

    QVariant readValue(HRFTagKey key) const override;
    void writeValue(const QVariant &value, HRFTagKey key) override;

    HRFFrameFactory *frameFactory() { return &m_frameFactory; }
    /// Readies the tag for being saved in the given version, 3 or 4.
    [[nodiscard]] HRFResult<void> prepareSaving(int version);
    /// Saves a file whose format always has ID3v2.4 tags.
    [[nodiscard]] HRFResult<void> saveAsVersion4(TagLib::File &file);

    /// Where the tag begins in the file; -1 when that cannot be told.
    virtual qint64 ID3V2TagOffset() const;

private:
    void readBehindExtendedHeader(TagLib::ID3v2::Tag &tag);

    HRFFrameFactory m_frameFactory;
};
