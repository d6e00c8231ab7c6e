#pragma once

#include <QString>

namespace TagLib {
class File;
}
class HRFTagStream;

/// Why TagLib must not read an MP4 file; empty when it may. It descends into nested atoms without
/// any limit, and keeps every atom in memory.
QString MP4ObstacleToOpening(HRFTagStream &stream);

/// Why saving an MP4 file with TagLib would damage it; empty when it would not.
///
/// A chunk offset table (stco, co64: ISO/IEC 14496-12 §8.7.5) that states more entries than it has
/// room for makes TagLib write over what follows.
QString MP4ObstacleToSaving(TagLib::File &file);

/// Why the audio must not move within the file; empty when it may. TagLib corrects the data offsets
/// of the first movie fragment only (moof, tfhd: ISO/IEC 14496-12 §8.8).
QString MP4ObstacleToMoving(TagLib::File &file);
