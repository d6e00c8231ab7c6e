#pragma once

namespace TagLib {
class StringList;
namespace ID3v2 {
class TextIdentificationFrame;
}
} // namespace TagLib

/// Gives a genre frame the words back that TagLib drops: it takes all that stands in parentheses at
/// the beginning of a genre for a reference to another one (ID3v2.3.0 §4.2.1, TCON).
///
/// @param texts the texts of the frame as they stand in the file
void ID3RestoreGenres(TagLib::ID3v2::TextIdentificationFrame &frame,
                      const TagLib::StringList &texts);
