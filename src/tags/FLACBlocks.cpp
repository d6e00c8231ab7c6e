#include "tags/FLACBlocks.h"

#include "tags/TagLibText.h"

#include <QtEndian>
#include <taglib/id3v2header.h>
#include <taglib/tfile.h>

#include <algorithm>

using namespace TagLib;

namespace {

constexpr qint64 streamMarkerLength = 4; ///< of "fLaC"

QByteArray readBytes(File &file, qint64 offset, qint64 length)
{
    file.seek(offset);
    return TagLibText::toQByteArray(file.readBlock(std::size_t(length)));
}

bool hasID3v2(File &file)
{
    return readBytes(file, 0, 3) == "ID3";
}

/// Where "fLaC" is.
qint64 findStream(File &file)
{
    qint64 behindTag = 0;
    if (hasID3v2(file)) {
        file.seek(0);
        behindTag = ID3v2::Header(file.readBlock(ID3v2::Header::size())).completeTagSize();
    }
    return file.find("fLaC", behindTag);
}

/// A block whose data has not been read.
struct BlockPlace
{
    char type;
    qint64 offset; ///< of the data
    qint64 length; ///< of the data
};

/// All blocks, of which there is at least one; nothing when they are cut off.
std::optional<std::vector<BlockPlace>> findBlocks(File &file)
{
    const qint64 stream = findStream(file);
    if (stream < 0)
        return {};
    std::vector<BlockPlace> places;
    qint64 offset = stream + streamMarkerLength;
    for (bool isLast = false; !isLast;) {
        const QByteArray header = readBytes(file, offset, FLACBlockHeaderLength);
        if (header.size() < FLACBlockHeaderLength)
            return {};
        const qint64 length = qFromBigEndian<quint32>(header.constData()) & FLACLargestBlock;
        offset += FLACBlockHeaderLength;
        if (length > file.length() - offset)
            return {};
        places.push_back({static_cast<char>(header.front() & FLACBlockType::mask), offset, length});
        offset += length;
        isLast = (header.front() & FLACBlockType::lastBlockFlag) != 0;
    }
    return places;
}

/// The padding that makes the blocks as long as they were. Much of it is given back, since a
/// removed picture leaves a lot.
qint64 paddingLength(qint64 left, qint64 fileLength)
{
    constexpr qint64 usual = 4096;
    constexpr qint64 most = 1 << 20;
    const qint64 limit = std::clamp(fileLength / 100, usual, most);
    return left < 0 || left > limit ? usual : left;
}

} // namespace

QByteArray FLACBlockHeader(char type, qsizetype length)
{
    QByteArray header(FLACBlockHeaderLength, Qt::Uninitialized);
    qToBigEndian(static_cast<quint32>(length), header.data());
    header.front() = type;
    return header;
}

std::optional<FLACBlocks> FLACBlocks::read(File &file)
{
    const auto places = findBlocks(file);
    if (!places)
        return {};
    FLACBlocks result{.start = places->front().offset - FLACBlockHeaderLength,
                      .end = places->back().offset + places->back().length,
                      .blocks = {}};
    for (const auto &[type, offset, length] : *places)
        result.blocks.push_back({type, readBytes(file, offset, length)});
    return result;
}

std::optional<QByteArray> FLACBlocks::readComment(File &file)
{
    for (const auto &[type, offset, length] : findBlocks(file).value_or(std::vector<BlockPlace>()))
        if (type == FLACBlockType::vorbisComment)
            return readBytes(file, offset, length);
    return {};
}

void FLACBlocks::write(File &file) const
{
    QByteArray bytes;
    for (const FLACBlock &block : blocks)
        if (block.type != FLACBlockType::padding)
            bytes += FLACBlockHeader(block.type, block.data.size()) + block.data;
    const qint64 padding =
        paddingLength(end - start - bytes.size() - FLACBlockHeaderLength, file.length());
    bytes += FLACBlockHeader(
        static_cast<char>(FLACBlockType::padding | FLACBlockType::lastBlockFlag), padding);
    bytes.append(padding, '\0');
    file.insert(TagLibText::toByteVector(bytes), start, std::size_t(end - start));
}

void FLACBlocks::removeID3Tags(File &file) const
{
    constexpr qint64 id3v1Length = 128;
    const qint64 id3v1 = file.length() - id3v1Length;
    if (id3v1 > start && readBytes(file, id3v1, 3) == "TAG")
        file.removeBlock(id3v1, id3v1Length);
    if (hasID3v2(file))
        file.removeBlock(0, std::size_t(start - streamMarkerLength));
}
