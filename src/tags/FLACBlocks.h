#pragma once

#include <QByteArray>

#include <optional>
#include <vector>

namespace TagLib {
class File;
}

/// A metadata block's length has 24 bits (RFC 9639 §8.1).
inline constexpr qsizetype FLACLargestBlock = (1 << 24) - 1;

/// The types of metadata blocks (RFC 9639 §8.1) that the engines change, and how they stand in the
/// first byte of a block.
namespace FLACBlockType {
inline constexpr char padding = 1;
inline constexpr char vorbisComment = 4;
inline constexpr char picture = 6;
inline constexpr char mask = '\x7F';
inline constexpr char lastBlockFlag = '\x80';
} // namespace FLACBlockType

/// What precedes the data of a block: the type, with or without the flag, and the length.
QByteArray FLACBlockHeader(char type, qsizetype length);
inline constexpr qsizetype FLACBlockHeaderLength = 4;

/// One metadata block: data that stands in the file, or new data.
struct FLACBlock
{
    char type = 0;
    qint64 offset = 0; ///< of the data in the file; not used for new data
    qint64 length = 0; ///< of the data
    std::optional<QByteArray> newData{};

    static FLACBlock withData(char type, const QByteArray &data);
};

/// The metadata blocks of a native FLAC file as its bytes are. Only their headers are read.
struct FLACBlocks
{
    qint64 start = 0; ///< of the first block, behind "fLaC"
    qint64 end = 0; ///< where the audio begins
    std::vector<FLACBlock> blocks;

    /// Nothing when the blocks are cut off; else at least one.
    static std::optional<FLACBlocks> read(TagLib::File &file);
    /// The data of the first Vorbis comment; nothing when there is none or the blocks are cut off.
    static std::optional<QByteArray> readComment(TagLib::File &file);
    /// A FLAC file of its own that has the stream information and the given comment, but neither
    /// pictures nor audio; nothing when the blocks are cut off.
    static std::optional<QByteArray> fileWithComment(const QByteArray &comment, TagLib::File &file);
    /// Puts the blocks, new ones among them, in the place of those that were read, in their order.
    /// The audio keeps its place when the padding allows for it.
    void write(TagLib::File &file) const;
    /// Removes everything before the stream if it begins with an ID3v2 tag, and an ID3v1 tag.
    void removeID3Tags(TagLib::File &file) const;
};
