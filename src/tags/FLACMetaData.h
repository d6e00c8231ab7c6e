#pragma once

#include "tags/HRFFrameFactory.h"
#include "tags/VorbisMetaData.h"

#include <taglib/flacfile.h>

struct FLACBlock;

/// The engine of native FLAC files.
class FLACMetaData : public VorbisMetaData
{
public:
    static const HRFEngineClass metadataClass;

    FLACMetaData(std::shared_ptr<HRFTagStream> stream, bool readProperties);

    /// Where pictures are written: "lirra.tagging.preferredFLACArtworkStorageType", 0 for a picture
    /// block, 1 for the Vorbis comment, anything else for both.
    static int preferredFLACArtworkStorageType();

    TagLib::Ogg::XiphComment *xiphTag() const override;
    /// The data of the first picture block; empty without one.
    QByteArray FLACArtwork() const;
    /// Replaces all picture blocks by one, or by none for empty data.
    void setFLACArtwork(const QByteArray &data);
    HRFResult<void> stripTags() override;

protected:
    QVariant readValue(HRFTagKey key) const override;
    void writeValue(const QVariant &value, HRFTagKey key) override;
    const HRFEngineClass &engineClass() const override { return metadataClass; }
    TagLib::FLAC::File *tagFile() const override;
    std::optional<QByteArray> readCommentBytes() const override;
    std::shared_ptr<HRFTagStream>
    streamForReading(const std::map<HRFTagKey, QVariant> &values) const override;
    HRFResult<void> writeCommentBytes(const QByteArray &bytes) override;

private:
    [[nodiscard]] HRFResult<void> appendPictures(std::vector<FLACBlock> &blocks) const;

    bool m_hasChangedPictures = false;
    bool m_isStripping = false;

    HRFFrameFactory m_frameFactory; ///< of the ID3v2 tag that may stand before the stream
};
