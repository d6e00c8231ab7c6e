#pragma once

#include <QtGlobal>

namespace TagLib {
class File;
}

/// Adds @p distance to the offsets in the index of the movie fragments (mfra: ISO/IEC 14496-12
/// §8.8.9), which TagLib leaves alone. False when the index is damaged or cannot hold them; true
/// when there is none.
bool MP4MoveFragmentIndex(TagLib::File &file, qint64 distance);
