#include "tags/ID3FrameRepair.h"

#include "tags/ID3FrameHeader.h"

#include <QByteArrayView>
#include <taglib/id3v2frame.h>
#include <taglib/id3v2synchdata.h>

#include <algorithm>
#include <array>
#include <string_view>

using namespace TagLib;

namespace {

constexpr unsigned int headerSize = ID3FrameHeader::length;

enum TextEncoding : char { Latin1 = 0, UTF16 = 1, UTF16BE = 2, UTF8 = 3 };

/// Larger sizes mean different things in ID3v2.3 and ID3v2.4, which some writers mix up: TagLib
/// finds out.
unsigned int frameSize(const ByteVector &data, const ID3FrameHeader &header, unsigned int version)
{
    constexpr unsigned int largestCertainSize = 127;
    return header.frameSize() <= largestCertainSize
        ? header.frameSize()
        : ID3v2::Frame::Header(data, version).frameSize();
}

ByteVector withFrameSize(ByteVector frame, unsigned int version)
{
    const unsigned int size = frame.size() - headerSize;
    const ByteVector bytes =
        version == 4 ? ID3v2::SynchData::fromUInt(size) : ByteVector::fromUInt(size);
    std::ranges::copy(bytes, frame.begin() + ID3FrameHeader::sizeOffset);
    return frame;
}

/// Where the byte of the frame's group stands; 0 when there is none.
unsigned int groupByteOffset(unsigned char flags, unsigned int version)
{
    if (version == 4)
        return (flags & 0x40) != 0 ? headerSize : 0;
    if ((flags & 0x20) == 0)
        return 0;
    return headerSize + ((flags & 0x80) != 0 ? 4 : 0) + ((flags & 0x40) != 0 ? 1 : 0);
}

ByteVector withoutGroupByte(const ByteVector &frame, unsigned int offset, unsigned int version)
{
    ByteVector result = frame.mid(0, offset);
    result.append(frame.mid(offset + 1));
    const char groupFlag = version == 4 ? 0x40 : 0x20;
    char &flags = result[ID3FrameHeader::formatFlagsOffset];
    flags = static_cast<char>(flags & ~groupFlag);
    return withFrameSize(result, version);
}

/// Frames whose content is an encoding byte and texts, and nothing else.
bool isText(std::string_view id)
{
    constexpr std::array<std::string_view, 4> others = {"WFED", "MVNM", "MVIN", "GRP1"};
    return id.starts_with('T') || std::ranges::find(others, id) != others.end();
}

/// The same with a language between the two.
bool isTextWithLanguage(std::string_view id)
{
    return id == "COMM" || id == "USLT";
}

bool isValidUTF8(const ByteVector &text)
{
    return QByteArrayView(text.data(), qsizetype(text.size())).isValidUtf8();
}

/// Whether nothing needs to be done, told for the most common texts without making copies.
bool hasReadableText(std::string_view frameID, QByteArrayView content)
{
    const auto isASCII = [](char character) { return static_cast<signed char>(character) >= 0; };
    switch (content[0]) {
    case Latin1:
    case UTF16BE:
        return true;
    case UTF16:
        return isText(frameID) && content.size() > 2
            && (content.sliced(1).startsWith("\xFF\xFE")
                || content.sliced(1).startsWith("\xFE\xFF"));
    case UTF8:
        return std::ranges::all_of(content, isASCII);
    default:
        return false;
    }
}

/// The mark for text without one: little endian, unless the text looks like the other.
ByteVector byteOrderMark(const ByteVector &text)
{
    const bool isBigEndian = text[0] == '\0' && text[1] != '\0';
    return {isBigEndian ? "\xFE\xFF" : "\xFF\xFE", 2};
}

bool hasByteOrderMark(const ByteVector &text)
{
    return text.startsWith(ByteVector("\xFF\xFE", 2)) || text.startsWith(ByteVector("\xFE\xFF", 2));
}

ByteVector withByteOrderMark(const ByteVector &frame, unsigned int offset, unsigned int version)
{
    const ByteVector text = frame.mid(offset);
    if (text.size() < 2 || hasByteOrderMark(text))
        return frame;
    ByteVector result = frame.mid(0, offset);
    result.append(byteOrderMark(text));
    result.append(text);
    return withFrameSize(result, version);
}

/// Where the text behind a UTF-16 description begins.
unsigned int offsetBehindDescription(const ByteVector &frame, unsigned int description)
{
    for (unsigned int offset = description; offset + 1 < frame.size(); offset += 2)
        if (frame[int(offset)] == '\0' && frame[int(offset) + 1] == '\0')
            return offset + 2;
    return frame.size();
}

ByteVector withEncodingByte(const ByteVector &frame, unsigned int version)
{
    ByteVector result = frame.mid(0, headerSize);
    result.append(static_cast<char>(Latin1));
    result.append(frame.mid(headerSize));
    return withFrameSize(result, version);
}

ByteVector withReadableText(const ByteVector &frame, bool hasLanguage, unsigned int version)
{
    constexpr unsigned int languageSize = 3;
    const unsigned int text = headerSize + 1 + (hasLanguage ? languageSize : 0);
    const char encoding = frame[headerSize];
    if (encoding < Latin1 || encoding > UTF8) {
        if (encoding >= ' ' && !hasLanguage)
            return withEncodingByte(frame, version);
    } else if (encoding == UTF16) {
        const ByteVector marked = withByteOrderMark(frame, text, version);
        return hasLanguage
            ? withByteOrderMark(marked, offsetBehindDescription(marked, text), version)
            : marked;
    } else if (encoding != UTF8 || isValidUTF8(frame.mid(text))) {
        return frame;
    }
    ByteVector result = frame;
    result[headerSize] = Latin1;
    return result;
}

} // namespace

std::optional<ByteVector> ID3RepairedFrame(const ByteVector &data, unsigned int version)
{
    if (version < 3 || data.size() <= headerSize)
        return {};
    const ID3FrameHeader header(data.data(), version);
    const bool hasLanguage = isTextWithLanguage(header.frameID());
    const bool hasText = hasLanguage || isText(header.frameID());
    const unsigned int groupOffset = groupByteOffset(header.formatFlags(), version);
    if (!hasText && groupOffset == 0)
        return {};
    const unsigned int size = frameSize(data, header, version);
    if (size == 0 || size > data.size() - headerSize)
        return {};
    if (groupOffset == 0
        && hasReadableText(header.frameID(), {data.data() + headerSize, qsizetype(size)}))
        return {};

    ByteVector frame = data.mid(0, headerSize + size);
    if (groupOffset != 0 && groupOffset < frame.size())
        frame = withoutGroupByte(frame, groupOffset, version);
    // What is compressed, encrypted or unsynchronised is left to TagLib.
    if (!hasText || frame[ID3FrameHeader::formatFlagsOffset] != '\0' || frame.size() <= headerSize)
        return frame;
    return withReadableText(frame, hasLanguage, version);
}
