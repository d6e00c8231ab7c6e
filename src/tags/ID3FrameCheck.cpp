#include "tags/ID3FrameCheck.h"

#include <QScopeGuard>
#include <taglib/id3v2frame.h>
#include <taglib/id3v2header.h>
#include <taglib/id3v2synchdata.h>

#include <zlib.h>

using namespace TagLib;

namespace {

/// Chapters and tables of contents hold frames that describe them, which are none of the two.
constexpr int deepestLevel = 4;
/// Nobody compresses much: pictures are compressed already.
constexpr qint64 largestInflatedSize = 16 << 20;

bool isContainer(const ByteVector &frameID)
{
    return frameID == "CHAP" || frameID == "CTOC";
}

/// Behind the text that ends with a zero byte.
unsigned int skipText(const ByteVector &content, unsigned int position)
{
    const int end = content.find(ByteVector(1, '\0'), position);
    return end < 0 ? position : static_cast<unsigned int>(end) + 1;
}

/// Where the embedded frames begin (ID3v2 Chapter Frame Addendum 1.0 §3).
unsigned int embeddedFramesOffset(const ByteVector &content, const ByteVector &frameID)
{
    constexpr unsigned int sizeOfTimes = 16;
    unsigned int position = skipText(content, 0);
    if (frameID == "CHAP")
        return position + sizeOfTimes;
    ++position; // flags
    const auto count =
        position < content.size() ? static_cast<unsigned char>(content[int(position)]) : 0;
    ++position;
    for (int i = 0; i < count; ++i)
        position = skipText(content, position);
    return position;
}

} // namespace

bool ID3FrameCheck::isSafe(const ByteVector &data, const ID3v2::Header &tagHeader)
{
    return isSafe(data, tagHeader, 0);
}

/// Takes the same view of the data as TagLib: a compressed frame may go on behind its end.
bool ID3FrameCheck::isSafe(const ByteVector &data, const ID3v2::Header &tagHeader, int depth)
{
    constexpr unsigned int lengthIndicatorSize = 4;
    const unsigned int version = tagHeader.majorVersion();
    const ID3v2::Frame::Header header(data, version);
    const ByteVector frameID = header.frameID();
    if (header.frameSize() == 0 || header.frameSize() > data.size() || header.encryption()
        || (!header.compression() && !isContainer(frameID)))
        return true;
    if (isContainer(frameID) && depth == deepestLevel)
        return false;

    ByteVector content = data.mid(header.size());
    if (version > 3 && (tagHeader.unsynchronisation() || header.unsynchronisation()))
        content = ID3v2::SynchData::decode(content.mid(0, header.frameSize()));
    if (header.compression() || header.dataLengthIndicator())
        content = content.mid(lengthIndicatorSize);
    ByteVector inflated;
    if (header.compression()) {
        if (!inflate(content, inflated))
            return false;
        content = inflated;
    }
    return !isContainer(frameID)
        || embeddedFramesAreSafe(content.mid(embeddedFramesOffset(content, frameID)), tagHeader,
                                 depth + 1);
}

bool ID3FrameCheck::embeddedFramesAreSafe(const ByteVector &frames, const ID3v2::Header &tagHeader,
                                          int depth)
{
    const unsigned int version = tagHeader.majorVersion();
    for (qint64 position = 0; position < frames.size();) {
        const ByteVector rest = frames.mid(static_cast<unsigned int>(position));
        if (!isSafe(rest, tagHeader, depth))
            return false;
        const ID3v2::Frame::Header header(rest, version);
        if (header.frameSize() == 0)
            return true;
        position += qint64(header.size()) + header.frameSize();
    }
    return true;
}

/// Answers whether the content is within the limit.
bool ID3FrameCheck::inflate(const ByteVector &packed, ByteVector &content)
{
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK)
        return false;
    const auto cleanUp = qScopeGuard([&stream] { inflateEnd(&stream); });
    ByteVector input = packed;
    stream.next_in = reinterpret_cast<Bytef *>(input.data());
    stream.avail_in = input.size();
    ByteVector chunk(1U << 16, '\0');
    for (int state = Z_OK; state == Z_OK;) {
        stream.next_out = reinterpret_cast<Bytef *>(chunk.data());
        stream.avail_out = chunk.size();
        state = ::inflate(&stream, Z_NO_FLUSH);
        const unsigned int count = chunk.size() - stream.avail_out;
        m_inflatedSize += count;
        if (m_inflatedSize > largestInflatedSize)
            return false;
        content.append(chunk.mid(0, count));
    }
    return true;
}
