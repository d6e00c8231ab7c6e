#pragma once

#include "tags/HRFTagKey.h"

namespace TagLib::ID3v2 {
class Tag;
}

/// What saving a tag as ID3v2.3 takes, since TagLib drops frames that only ID3v2.4 has.
namespace ID3Version3 {

/// Whether the property has a frame in ID3v2.4 only. In an ID3v2.3 tag it is a user text frame,
/// described by the property's APE item key.
bool isKeptAsUserText(HRFTagKey key);

/// Replaces every frame that TagLib would drop or change the words of.
void prepare(TagLib::ID3v2::Tag &tag);

} // namespace ID3Version3
