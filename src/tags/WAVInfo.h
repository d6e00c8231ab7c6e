#pragma once

#include "tags/IFFChunks.h"

#include <QString>

#include <span>

namespace TagLib::RIFF::Info {
class Tag;
}

/// Lets TagLib read INFO texts in either encoding that is found in the field: UTF-8, or
/// Windows-1252. TagLib takes what is not UTF-8 for nothing. Does something once only.
void WAVRegisterInfoTexts();

/// Reads all INFO lists into the tag: TagLib reads only the first, but removes all.
///
/// @return why saving would still lose a part of them; empty when it would not
QString WAVReadInfo(HRFTagStream &stream, std::span<const IFFChunk> chunks,
                    TagLib::RIFF::Info::Tag &tag);
