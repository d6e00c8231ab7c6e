#include "tags/IFFChunks.h"

#include "tags/HRFTagStream.h"

#include <algorithm>

using namespace TagLib;

namespace {

/// Whether the bytes are four printable ASCII characters.
bool isChunkName(const ByteVector &name)
{
    return name.size() == 4
        && std::ranges::all_of(name, [](char c) { return c >= ' ' && c < '\x7F'; });
}

/// Where the next chunk begins behind contents that end at an odd offset.
qint64 paddedEnd(HRFTagStream &stream, qint64 offset, qint64 end)
{
    const ByteVector next = IFFReadBytes(stream, offset, std::min<qint64>(5, end - offset));
    const bool isPadded = !next.isEmpty() && (next[0] == '\0' || isChunkName(next.mid(1, 4)));
    return isPadded ? offset + 1 : offset;
}

} // namespace

ByteVector IFFReadBytes(HRFTagStream &stream, qint64 offset, qint64 count)
{
    stream.seek(offset, HRFTagStream::Beginning);
    return stream.readBlock(std::size_t(std::max<qint64>(0, count)));
}

qint64 IFFSizeFromBytes(IFFLayout layout, const ByteVector &bytes)
{
    return layout.sizeWidth == 8 ? bytes.toLongLong(layout.isBigEndian)
                                 : qint64(bytes.toUInt(layout.isBigEndian));
}

ByteVector IFFBytesFromSize(IFFLayout layout, qint64 size)
{
    return layout.sizeWidth == 8
        ? ByteVector::fromLongLong(size, layout.isBigEndian)
        : ByteVector::fromUInt(static_cast<unsigned int>(size), layout.isBigEndian);
}

IFFChunkList IFFReadChunks(HRFTagStream &stream, IFFLayout layout, qint64 start, qint64 end)
{
    IFFChunkList list{.chunks = {}, .end = start};
    while (list.end + layout.headerSize() <= end) {
        const ByteVector header = IFFReadBytes(stream, list.end, layout.headerSize());
        const ByteVector name = header.mid(0, 4);
        if (!isChunkName(name))
            return list;
        const qint64 offset = list.end + layout.headerSize();
        const qint64 size = IFFSizeFromBytes(layout, header.mid(4));
        list.isCutOff = size < 0 || size > end - offset;
        if (list.isCutOff)
            return list;
        list.end = offset + size;
        if (list.end % 2 == 1)
            list.end = paddedEnd(stream, list.end, end);
        list.chunks.push_back({name, offset, size, list.end});
    }
    return list;
}

IFFChunkList IFFReadChunks(HRFTagStream &stream, IFFLayout layout)
{
    return IFFReadChunks(stream, layout, layout.formHeaderSize(), stream.length());
}
