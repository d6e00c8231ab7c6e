#pragma once

#include <memory>
#include <set>
#include <string_view>

class HRFTagStream;

/// A stream that holds only the given frames of the ID3v2 tag at the beginning of another stream,
/// as a tag of their own: reading a few values back is much cheaper than from the whole tag.
///
/// @return null unless the tag is well-formed to its end and plain: no extended header, no
///         unsynchronisation
std::shared_ptr<HRFTagStream> ID3TagExcerpt(HRFTagStream &stream,
                                            const std::set<std::string_view> &frameIDs);
