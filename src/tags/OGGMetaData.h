#pragma once

#include "tags/VorbisMetaData.h"

/// The engine of every Ogg format: the comment is a packet of its own.
class OGGMetaData : public VorbisMetaData
{
public:
    TagLib::Ogg::XiphComment *xiphTag() const override;

protected:
    /// Where a comment is.
    struct CommentPlace
    {
        unsigned int packet = 1;
        qsizetype prefixLength = 0; ///< bytes of the packet before the comment
    };

    using VorbisMetaData::VorbisMetaData;

    /// Nothing when the stream has no comment.
    virtual std::optional<CommentPlace> commentPlace() const = 0;
    /// Corrects the bytes before a comment for its new length.
    [[nodiscard]] virtual HRFResult<void> updatePrefix(QByteArray &prefix, qsizetype length) const;

    std::optional<QByteArray> readCommentBytes() const override;
    HRFResult<void> writeCommentBytes(const QByteArray &bytes) override;
};
