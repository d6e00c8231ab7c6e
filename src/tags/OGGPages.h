#pragma once

#include <QByteArray>

#include <optional>

namespace TagLib {
class File;
}

/// A packet of the first logical stream of an Ogg file (RFC 3533); nothing when there is none.
/// Pages of other streams in between and later links of a chain do not count.
std::optional<QByteArray> OGGReadPacket(TagLib::File &file, unsigned int index);

/// Puts a header packet in the place of another. Every other packet stays as it is, and so do the
/// pages of other streams and links. False when the pages of the packet do not follow each other.
bool OGGReplacePacket(TagLib::File &file, unsigned int index, const QByteArray &packet);
