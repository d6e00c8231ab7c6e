#pragma once

#include "tags/IFFChunks.h"

#include <QString>

#include <span>

namespace TagLib::RIFF::Info {
class Tag;
}

/// Reads all INFO lists into the tag, in either encoding that is found in the field: UTF-8, or
/// Windows-1252. TagLib reads only the first list, but removes all, and takes texts that are not
/// UTF-8 for nothing.
///
/// @return why saving would still lose a part of them; empty when it would not
QString WAVReadInfo(HRFTagStream &stream, std::span<const IFFChunk> chunks,
                    TagLib::RIFF::Info::Tag &tag);
