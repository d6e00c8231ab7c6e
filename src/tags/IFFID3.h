#pragma once

#include "tags/IFFChunks.h"

#include <QString>

#include <span>

namespace TagLib {
class File;
namespace ID3v2 {
class Tag;
}
} // namespace TagLib

/// Whether the chunk is one for an ID3v2 tag.
bool IFFIsID3(const IFFChunk &chunk);

/// Why saving would lose a part of the tag that is to fill the given bytes; empty when it would
/// not.
QString IFFObstacleInID3(HRFTagStream &stream, qint64 offset, qint64 size);

/// Gives the tag of the first chunk the frames of the others that it has not: TagLib reads only the
/// first and removes all.
///
/// @return why saving would still lose a part of them; empty when it would not
QString IFFMergeID3(HRFTagStream &stream, std::span<const IFFChunk> chunks, TagLib::File &file,
                    TagLib::ID3v2::Tag &tag);
