#pragma once

#include "tags/HRFEngineClass.h"
#include "tags/HRFTagEngine.h"
#include "tags/VorbisCommentPacket.h"

#include <taglib/xiphcomment.h>

/// The engine of every format whose tag is a Vorbis comment. A subclass opens the file.
class VorbisMetaData : public HRFTagEngine
{
public:
    /// The Vorbis comment of the open file; may be null.
    virtual TagLib::Ogg::XiphComment *xiphTag() const = 0;

    /// All values of the field, joined with a space. A null field name is an assertion.
    HRFText stringForXiphTag(const char *tagName) const;
    /// Makes the text the only value of the field; nothing removes the field.
    void setStringForXiphTag(const HRFText &value, const char *tagName);
    void removeValueForXiphTag(const char *tagName);

    HRFText stringForKey(HRFTagKey key) const override;
    void setStringForKey(const HRFText &value, HRFTagKey key) override;
    HRFResult<void> stripTags() override;
    HRFResult<void> checkFile() override;

protected:
    explicit VorbisMetaData(std::shared_ptr<HRFTagStream> stream);

    QVariant readValue(HRFTagKey key) const override;
    void writeValue(const QVariant &value, HRFTagKey key) override;
    TagLib::File *tagFile() const override { return m_tagFile.get(); }
    void setTagFile(std::unique_ptr<TagLib::File> file);
    HRFResult<void> saveTags() override;

    /// The bytes of the comment as the file holds them; nothing when it holds none.
    virtual std::optional<QByteArray> readCommentBytes() const = 0;
    [[nodiscard]] virtual HRFResult<void> writeCommentBytes(const QByteArray &bytes) = 0;
    /// What stays behind the entries of a comment when they are stripped.
    virtual QByteArray strippedRest(const QByteArray &rest) const;

    /// The packet without the fields that none of the given properties is read from.
    static VorbisCommentPacket packetOfValues(VorbisCommentPacket packet,
                                              const std::map<HRFTagKey, QVariant> &values);

    /// Pictures in the comment.
    QByteArray commentArtwork() const;
    void setCommentArtwork(const QByteArray &data);

private:
    VorbisCommentPacket changedPacket(VorbisCommentPacket packet,
                                      TagLib::Ogg::XiphComment &comment) const;

    std::unique_ptr<TagLib::File> m_tagFile;
    std::optional<VorbisCommentPacket> m_packet; ///< as in the file; nothing when damaged
    TagLib::Ogg::FieldListMap m_fields; ///< what the packet says
    bool m_hasChangedPictures = false;
};
