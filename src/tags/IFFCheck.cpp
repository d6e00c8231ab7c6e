#include "tags/IFFCheck.h"

#include "tags/HRFTagStream.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr qint64 chunkHeaderSize = 8;
constexpr qint64 formHeaderSize = 12;

bool isChunkName(const TagLib::ByteVector &name)
{
    return name.size() == 4
        && std::all_of(name.begin(), name.end(), [](char c) { return c >= ' ' && c < '\x7F'; });
}

} // namespace

bool IFFHasHeader(HRFTagStream &stream, QByteArrayView container, QByteArrayView formTypes)
{
    stream.seek(0, HRFTagStream::Beginning);
    const TagLib::ByteVector header = stream.readBlock(formHeaderSize);
    if (qint64(header.size()) < formHeaderSize
        || QByteArrayView(header.data(), container.size()) != container)
        return false;
    const QByteArrayView formType(header.data() + chunkHeaderSize, 4);
    for (qsizetype i = 0; i + 4 <= formTypes.size(); i += 4)
        if (formTypes.sliced(i, 4) == formType)
            return true;
    return false;
}

QString IFFObstacleToSaving(HRFTagStream &stream, IFFByteOrder order)
{
    for (qint64 offset = formHeaderSize; offset + chunkHeaderSize <= stream.length();) {
        stream.seek(offset, HRFTagStream::Beginning);
        const TagLib::ByteVector header = stream.readBlock(chunkHeaderSize);
        // Bytes behind the last chunk that are no chunk stay where they are.
        if (!isChunkName(header.mid(0, 4)))
            return {};
        const qint64 size = header.toUInt(4, order == IFFByteOrder::BigEndian);
        offset += chunkHeaderSize + size;
        if (offset > stream.length())
            return QCoreApplication::translate("IFFCheck", "The file is truncated.");
        stream.seek(offset, HRFTagStream::Beginning);
        const TagLib::ByteVector next = stream.readBlock(5);
        // The byte that pads an odd chunk is missing in some files.
        if (offset % 2 == 1 && (next.isEmpty() || next[0] == '\0' || isChunkName(next.mid(1, 4))))
            ++offset;
    }
    return {};
}
