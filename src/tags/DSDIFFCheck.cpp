#include "tags/DSDIFFCheck.h"

#include "tags/HRFTagStream.h"

#include <QCoreApplication>

#include <cstdint>

using namespace TagLib;

namespace {

constexpr qint64 chunkHeaderSize = 12;
constexpr qint64 formHeaderSize = 16;

/// Walks over the chunks within a range, as TagLib does.
class ChunkWalk
{
public:
    ChunkWalk(HRFTagStream &stream, qint64 begin, qint64 end)
        : m_stream(stream), m_next(begin), m_end(end)
    {
    }

    /// Goes to the next chunk; answers whether there is one that ends in time.
    bool next();
    /// TagLib adds sizes to offsets unchecked, too.
    bool hasImpossibleSize() const { return m_size < 0 || m_size > INT64_MAX / 2; }
    const ByteVector &name() const { return m_name; }
    qint64 begin() const { return m_begin; }
    qint64 end() const { return m_begin + m_size; }

private:
    HRFTagStream &m_stream;
    ByteVector m_name;
    qint64 m_begin = 0;
    qint64 m_size = 0;
    qint64 m_next;
    const qint64 m_end;
};

bool ChunkWalk::next()
{
    if (m_end - m_next < chunkHeaderSize)
        return false;
    m_stream.seek(m_next, HRFTagStream::Beginning);
    const ByteVector header = m_stream.readBlock(chunkHeaderSize);
    m_name = header.mid(0, 4);
    m_begin = m_next + chunkHeaderSize;
    m_size = header.toLongLong(4U, true);
    if (m_size < 0 || m_size > m_end - m_begin)
        return false;
    m_next = end();
    if (m_next % 2 == 0)
        return true;
    m_stream.seek(m_next, HRFTagStream::Beginning);
    const ByteVector padding = m_stream.readBlock(1);
    m_next += !padding.isEmpty() && padding[0] == '\0' ? 1 : 0;
    return true;
}

/// Whether a chunk within the given one has an impossible size.
bool isDamaged(HRFTagStream &stream, const ChunkWalk &chunk)
{
    const bool isAudio = chunk.name() == "DST ";
    const bool isProperties = chunk.name() == "PROP";
    if (!isAudio && !isProperties && chunk.name() != "DIIN")
        return false;
    constexpr qint64 formTypeSize = 4;
    ChunkWalk inner(stream, chunk.begin() + (isProperties ? formTypeSize : 0), chunk.end());
    // TagLib does not go through the frames of the audio.
    while (inner.next())
        if (isAudio && inner.name() == "FRTE")
            return false;
    return inner.hasImpossibleSize();
}

} // namespace

QString DSDIFFObstacleToOpening(HRFTagStream &stream)
{
    ChunkWalk chunk(stream, formHeaderSize, stream.length());
    bool isBroken = false;
    while (!isBroken && chunk.next())
        isBroken = isDamaged(stream, chunk);
    if (!isBroken && !chunk.hasImpossibleSize())
        return {};
    return QCoreApplication::translate("DSDIFFCheck", "It has a chunk of impossible size.");
}

QString DSDIFFObstacleToSaving(HRFTagStream &stream)
{
    int propertiesCount = 0;
    int titlesCount = 0;
    bool isTagFirst = false;
    bool hasTag = false;
    for (ChunkWalk chunk(stream, formHeaderSize, stream.length()); chunk.next();) {
        const bool isProperties = chunk.name() == "PROP";
        const bool isTitles = chunk.name() == "DIIN";
        propertiesCount += isProperties ? 1 : 0;
        titlesCount += isTitles ? 1 : 0;
        isTagFirst = isTagFirst || (hasTag && (isProperties || isTitles));
        hasTag = hasTag || chunk.name() == "ID3 " || chunk.name() == "id3 ";
    }
    if (!isTagFirst && propertiesCount <= 1 && titlesCount <= 1)
        return {};
    return QCoreApplication::translate("DSDIFFCheck",
                                       "The order of its chunks would damage it on saving.");
}
