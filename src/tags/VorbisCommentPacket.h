#pragma once

#include <QByteArray>
#include <QList>

#include <optional>

/// The bytes of a Vorbis comment (Vorbis I §5) in their parts, without what its container puts
/// before them. Nothing is decoded, so that rendering gives the same bytes again.
struct VorbisCommentPacket
{
    QByteArray vendor;
    QList<QByteArray> entries; ///< "NAME=value" if well-formed
    QByteArray rest; ///< behind the last entry: a framing bit, padding or anything else

    /// Nothing when the stated lengths and count go beyond the bytes.
    static std::optional<VorbisCommentPacket> parse(const QByteArray &bytes);
    QByteArray render() const;
};

/// The name of an entry in capital letters; empty when it has none.
QByteArray VorbisEntryName(const QByteArray &entry);
/// Whether TagLib takes entries of this name for pictures.
bool VorbisIsPictureName(const QByteArray &name);
