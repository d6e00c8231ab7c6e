#pragma once

#include <taglib/tbytevector.h>

#include <optional>

/// One frame as a whole, made such that TagLib reads the words in it.
///
/// Writers in the field break the format in a few common ways, and TagLib then reads nothing or
/// rubbish and would save that: text whose encoding byte is missing or unknown, UTF-8 that is
/// Latin-1, UTF-16 without a byte order mark; and TagLib takes the byte of a frame's group
/// (ID3v2.4.0 structure §4.1.2) for content.
///
/// @param data bytes that begin with the frame's header
/// @param version the tag's major version
/// @return nothing when there is nothing to repair; else only the frame, whose size may differ
std::optional<TagLib::ByteVector> ID3RepairedFrame(const TagLib::ByteVector &data,
                                                   unsigned int version);
