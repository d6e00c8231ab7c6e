#include "tags/FLACBlocks.h"

#include "tags/TagLibText.h"

#include <QtEndian>
#include <taglib/id3v2header.h>
#include <taglib/tfile.h>

#include <algorithm>

using namespace TagLib;

namespace {

constexpr qsizetype headerLength = 4;
constexpr char typeMask = '\x7F';
constexpr char lastBlockFlag = '\x80';

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

void appendHeader(QByteArray &bytes, char type, qint64 length)
{
    const quint32 header =
        qToBigEndian((quint32(static_cast<unsigned char>(type)) << 24) | quint32(length));
    bytes.append(reinterpret_cast<const char *>(&header), sizeof header);
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

std::optional<FLACBlocks> FLACBlocks::read(File &file)
{
    const qint64 stream = findStream(file);
    if (stream < 0)
        return {};
    FLACBlocks result{.start = stream + headerLength, .end = stream + headerLength, .blocks = {}};
    for (bool isLast = false; !isLast;) {
        const QByteArray header = readBytes(file, result.end, headerLength);
        if (header.size() < headerLength)
            return {};
        constexpr quint32 lengthMask = 0xFFFFFF;
        const qsizetype length = qFromBigEndian<quint32>(header.constData()) & lengthMask;
        const char type = static_cast<char>(header.front() & typeMask);
        result.blocks.push_back({type, readBytes(file, result.end + headerLength, length)});
        if (result.blocks.back().data.size() < length)
            return {};
        result.end += headerLength + length;
        isLast = (header.front() & lastBlockFlag) != 0;
    }
    return result;
}

void FLACBlocks::write(File &file) const
{
    QByteArray bytes;
    for (const FLACBlock &block : blocks) {
        if (block.type == FLACBlockType::padding)
            continue;
        appendHeader(bytes, block.type, block.data.size());
        bytes += block.data;
    }
    const qint64 padding = paddingLength(end - start - bytes.size() - headerLength, file.length());
    appendHeader(bytes, static_cast<char>(FLACBlockType::padding | lastBlockFlag), padding);
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
        file.removeBlock(0, std::size_t(start - headerLength));
}
