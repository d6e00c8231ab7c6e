#pragma once

#include <QtGlobal>
#include <taglib/tbytevector.h>

namespace TagLib::ID3v2 {
class Header;
}

/// Tells which frames of one ID3v2 tag TagLib must not parse: it inflates compressed frames and
/// descends into chapters without any limit.
class ID3FrameCheck
{
public:
    /// Whether the frame that begins the data may be parsed. Frames that TagLib refuses count as
    /// safe.
    bool isSafe(const TagLib::ByteVector &data, const TagLib::ID3v2::Header &tagHeader);

private:
    bool isSafe(const TagLib::ByteVector &data, const TagLib::ID3v2::Header &tagHeader, int depth);
    bool embeddedFramesAreSafe(const TagLib::ByteVector &frames,
                               const TagLib::ID3v2::Header &tagHeader, int depth);
    bool inflate(const TagLib::ByteVector &packed, TagLib::ByteVector &content);

    qint64 m_inflatedSize = 0; ///< of all compressed frames together
};
