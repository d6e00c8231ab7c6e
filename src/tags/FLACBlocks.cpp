#include "tags/FLACBlocks.h"

#include "tags/TagLibText.h"

#include <QtEndian>
#include <taglib/id3v2header.h>
#include <taglib/tfile.h>

#include <algorithm>
#include <ranges>

using namespace TagLib;

namespace {

constexpr QByteArrayView streamMarker("fLaC");

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
    return file.find(TagLibText::toByteVector(streamMarker.toByteArray()), behindTag);
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

QByteArray paddingBlock(qint64 length)
{
    constexpr char type = static_cast<char>(FLACBlockType::padding | FLACBlockType::lastBlockFlag);
    return FLACBlockHeader(type, length) + QByteArray(length, '\0');
}

} // namespace

QByteArray FLACBlockHeader(char type, qsizetype length)
{
    QByteArray header(FLACBlockHeaderLength, Qt::Uninitialized);
    qToBigEndian(static_cast<quint32>(length), header.data());
    header.front() = type;
    return header;
}

FLACBlock FLACBlock::withData(char type, const QByteArray &data)
{
    return {.type = type, .length = data.size(), .newData = data};
}

std::optional<FLACBlocks> FLACBlocks::read(File &file)
{
    const qint64 stream = findStream(file);
    if (stream < 0)
        return {};
    const qint64 start = stream + streamMarker.size();
    FLACBlocks result{.start = start, .end = start, .blocks = {}};
    for (bool isLast = false; !isLast;) {
        const QByteArray header = readBytes(file, result.end, FLACBlockHeaderLength);
        if (header.size() < FLACBlockHeaderLength)
            return {};
        const qint64 length = qFromBigEndian<quint32>(header.constData()) & FLACLargestBlock;
        const qint64 offset = result.end + FLACBlockHeaderLength;
        if (length > file.length() - offset)
            return {};
        result.blocks.push_back({.type = static_cast<char>(header.front() & FLACBlockType::mask),
                                 .offset = offset,
                                 .length = length});
        result.end = offset + length;
        isLast = (header.front() & FLACBlockType::lastBlockFlag) != 0;
    }
    return result;
}

std::optional<QByteArray> FLACBlocks::readComment(File &file)
{
    for (const FLACBlock &block : read(file).value_or(FLACBlocks()).blocks)
        if (block.type == FLACBlockType::vorbisComment)
            return readBytes(file, block.offset, block.length);
    return {};
}

std::optional<QByteArray> FLACBlocks::fileWithComment(const QByteArray &comment, File &file)
{
    const auto metadata = read(file);
    if (!metadata)
        return {};
    const FLACBlock &first = metadata->blocks.front();
    return streamMarker.toByteArray() + FLACBlockHeader(first.type, first.length)
        + readBytes(file, first.offset, first.length)
        + FLACBlockHeader(FLACBlockType::vorbisComment, comment.size()) + comment + paddingBlock(0);
}

/// Goes backwards, so that the places of the blocks that stay as they are remain known.
void FLACBlocks::write(File &file) const
{
    qint64 length = FLACBlockHeaderLength;
    for (const FLACBlock &block : blocks)
        if (block.type != FLACBlockType::padding)
            length += FLACBlockHeaderLength + block.length;
    QByteArray bytes = paddingBlock(paddingLength(end - start - length, file.length()));
    qint64 done = end;
    const auto putBytesBehind = [&](qint64 offset) {
        if (!bytes.isEmpty() || offset < done)
            file.insert(TagLibText::toByteVector(bytes), offset, std::size_t(done - offset));
        bytes.clear();
    };
    for (const FLACBlock &block : blocks | std::views::reverse) {
        if (block.type == FLACBlockType::padding)
            continue;
        const QByteArray header = FLACBlockHeader(block.type, block.length);
        if (block.newData) {
            bytes.prepend(header + *block.newData);
            continue;
        }
        putBytesBehind(block.offset + block.length);
        done = block.offset - FLACBlockHeaderLength;
        // The block may have been the last one.
        file.seek(done);
        file.writeBlock(TagLibText::toByteVector(header));
    }
    putBytesBehind(start);
}

void FLACBlocks::removeID3Tags(File &file) const
{
    constexpr qint64 id3v1Length = 128;
    const qint64 id3v1 = file.length() - id3v1Length;
    if (id3v1 > start && readBytes(file, id3v1, 3) == "TAG")
        file.removeBlock(id3v1, id3v1Length);
    if (hasID3v2(file))
        file.removeBlock(0, std::size_t(start - streamMarker.size()));
}
