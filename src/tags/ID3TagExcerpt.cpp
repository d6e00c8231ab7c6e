#include "tags/ID3TagExcerpt.h"

#include "tags/HRFStreamOfBytes.h"
#include "tags/HRFTagStream.h"
#include "tags/ID3FrameHeader.h"

#include <taglib/id3v2synchdata.h>

#include <algorithm>
#include <array>

using namespace TagLib;

namespace {

constexpr unsigned int headerSize = ID3FrameHeader::length; ///< the tag's own has the same
using Header = std::array<char, headerSize>;

bool isPlainHeader(const Header &header)
{
    return std::string_view(header.data(), 3) == "ID3" && (header[3] == 3 || header[3] == 4)
        && header[5] == '\0';
}

/// Puts a tag header before the frames, and padding behind them.
QByteArray tagWithFrames(Header header, QByteArray frames)
{
    frames.append(headerSize, '\0');
    const ByteVector size = ID3v2::SynchData::fromUInt(static_cast<unsigned int>(frames.size()));
    std::copy_n(size.begin(), 4, header.end() - 4);
    return frames.prepend(header.data(), header.size());
}

} // namespace

std::shared_ptr<HRFTagStream> ID3TagExcerpt(HRFTagStream &stream,
                                            const std::set<std::string_view> &frameIDs)
{
    Header header{};
    if (stream.readAt(0, header) != headerSize || !isPlainHeader(header))
        return nullptr;
    const qint64 end = headerSize + qint64(ID3SynchSafeSize(header.data() + 6));
    if (end > stream.length())
        return nullptr;
    QByteArray frames;
    for (qint64 offset = headerSize; offset + headerSize < end;) {
        Header bytes{};
        stream.readAt(offset, bytes);
        const ID3FrameHeader frame(bytes.data(), static_cast<unsigned char>(header[3]));
        if (frame.isPadding())
            break;
        const qint64 size = headerSize + qint64(frame.frameSize());
        if (frame.frameSize() == 0 || offset + size > end)
            return nullptr;
        if (frameIDs.contains(frame.frameID())) {
            const qsizetype known = frames.size();
            frames.resize(known + size);
            stream.readAt(offset, {frames.data() + known, std::size_t(size)});
        }
        offset += size;
    }
    return HRFStreamOfBytes(tagWithFrames(header, std::move(frames)));
}
