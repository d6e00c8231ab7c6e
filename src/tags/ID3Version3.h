#pragma once

#include "tags/HRFTagKey.h"

class HRFTagStream;

namespace TagLib::ID3v2 {
class Tag;
}

/// What saving a tag as ID3v2.3 takes, since TagLib drops frames that only ID3v2.4 has.
namespace ID3Version3 {

/// Whether the property has a frame in ID3v2.4 only. In an ID3v2.3 tag it is a user text frame,
/// described by the property's APE item key.
bool isKeptAsUserText(HRFTagKey key);

/// Whether the tag has binary frames that only ID3v2.4 has.
bool hasFramesToHide(const TagLib::ID3v2::Tag &tag);

/// Replaces every frame that TagLib would drop or change the words of. Binary frames are only
/// hidden from TagLib: see revealFrames.
void prepare(TagLib::ID3v2::Tag &tag);

/// Gives hidden frames of a saved tag their identifiers back.
///
/// @param tagOffset where the tag begins in the stream
void revealFrames(HRFTagStream &stream, qint64 tagOffset);

} // namespace ID3Version3
