#include "tags/IFFCheck.h"

#include "tags/HRFTagStream.h"

#include <QCoreApplication>

#include <cstdint>

namespace {

/// More bytes than this behind the last chunk are taken for audio that no chunk states.
constexpr qint64 largestJunk = 4096;

QString tr(const char *text)
{
    return QCoreApplication::translate("IFFCheck", text);
}

} // namespace

bool IFFHasHeader(HRFTagStream &stream, IFFLayout layout, QByteArrayView container,
                  QByteArrayView formTypes)
{
    const TagLib::ByteVector header = IFFReadBytes(stream, 0, layout.formHeaderSize());
    if (qint64(header.size()) < layout.formHeaderSize()
        || QByteArrayView(header.data(), container.size()) != container)
        return false;
    const QByteArrayView formType(header.data() + layout.headerSize(), 4);
    for (qsizetype i = 0; i + 4 <= formTypes.size(); i += 4)
        if (formTypes.sliced(i, 4) == formType)
            return true;
    return false;
}

QString IFFObstacleToSaving(HRFTagStream &stream, IFFLayout layout, const char *audioName)
{
    const IFFChunkList list = IFFReadChunks(stream, layout);
    if (list.isCutOff)
        return tr("The file is truncated.");
    const qint64 junk = stream.length() - list.end;
    // A single byte is the padding of the last chunk.
    if (list.chunks.empty() || junk <= 1)
        return {};
    const IFFChunk &last = list.chunks.back();
    const bool hasEmptyAudio = last.name == audioName && last.size == 0;
    const qint64 statedEnd =
        layout.headerSize() + IFFSizeFromBytes(layout, IFFReadBytes(stream, 4, layout.sizeWidth));
    if (hasEmptyAudio || list.end < statedEnd || junk > largestJunk)
        return tr("The file has audio behind its last chunk; its recording was broken off.");
    return {};
}

QString IFFObstacleToKeeping(HRFTagStream &stream, IFFLayout layout)
{
    // The size of the container is a 32-bit number (RIFF, EA IFF 85).
    if (layout.sizeWidth == 4 && stream.length() - layout.headerSize() > qint64(UINT32_MAX))
        return tr("The file would be larger than 4 GiB, more than its format can hold.");
    return {};
}
