#include "tags/MPEGCheck.h"

using namespace TagLib;

namespace {

/// Whether frames follow one another from the given offset on, to the end of a very short file.
bool framesBeginAt(MPEG::File &file, offset_t offset)
{
    constexpr int wanted = 4;
    const MPEG::Header first(&file, offset, false);
    for (int count = 0; count < wanted; ++count) {
        const MPEG::Header header(&file, offset, false);
        if (!header.isValid() || header.frameLength() <= 0 || header.layer() < 1
            || header.version() != first.version() || header.layer() != first.layer()
            || header.sampleRate() != first.sampleRate())
            return false;
        offset += header.frameLength();
        if (offset >= file.length())
            return true;
    }
    return true;
}

} // namespace

bool MPEGHasAudio(MPEG::File &file)
{
    constexpr int mostTries = 256;
    offset_t offset = file.firstFrameOffset();
    for (int tries = 0; offset >= 0 && tries < mostTries; ++tries) {
        if (framesBeginAt(file, offset))
            return true;
        offset = file.nextFrameOffset(offset + 1);
    }
    return false;
}
