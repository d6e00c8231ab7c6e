#pragma once

#include <QtGlobal>
#include <taglib/tbytevector.h>

#include <vector>

class HRFTagStream;

/// How a chunked file writes the sizes of its chunks.
struct IFFLayout
{
    bool isBigEndian;
    int sizeWidth; ///< in bytes

    qint64 headerSize() const { return 4 + sizeWidth; }
    /// The container's header and the form type.
    qint64 formHeaderSize() const { return headerSize() + 4; }
};

inline constexpr IFFLayout RIFFLayout{false, 4};
inline constexpr IFFLayout AIFFLayout{true, 4};
inline constexpr IFFLayout DSDIFFLayout{true, 8};

struct IFFChunk
{
    TagLib::ByteVector name;
    qint64 offset; ///< of the contents
    qint64 size; ///< of the contents
    qint64 end; ///< behind the byte that pads an odd chunk
};

struct IFFChunkList
{
    std::vector<IFFChunk> chunks;
    qint64 end = 0; ///< behind the last chunk
    bool isCutOff = false; ///< whether another chunk follows that states more bytes than there are
};

/// The chunks between two offsets, up to the first bytes that are no chunk. Chunks begin at even
/// offsets (EA IFF 85, RIFF), but the byte that pads an odd chunk is missing in some files.
IFFChunkList IFFReadChunks(HRFTagStream &stream, IFFLayout layout, qint64 start, qint64 end);
/// The chunks behind the form type.
IFFChunkList IFFReadChunks(HRFTagStream &stream, IFFLayout layout);

TagLib::ByteVector IFFReadBytes(HRFTagStream &stream, qint64 offset, qint64 count);
/// A size as it stands in the file; beyond what 63 bits hold it is negative.
qint64 IFFSizeFromBytes(IFFLayout layout, const TagLib::ByteVector &bytes);
TagLib::ByteVector IFFBytesFromSize(IFFLayout layout, qint64 size);
