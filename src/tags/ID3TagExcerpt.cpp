#include "tags/ID3TagExcerpt.h"

#include "tags/HRFTagStream.h"
#include "tags/ID3FrameHeader.h"

#include <taglib/id3v2synchdata.h>

#include <algorithm>
#include <array>
#include <cerrno>

using namespace TagLib;

namespace {

constexpr unsigned int headerSize = ID3FrameHeader::length; ///< the tag's own has the same
using Header = std::array<char, headerSize>;

/// Bytes that are only read.
class ExcerptStore : public HRFByteStore
{
public:
    explicit ExcerptStore(QByteArray bytes) : m_bytes(std::move(bytes)) { }

    const QByteArray &name() const override { return m_name; }
    qint64 size() const override { return m_bytes.size(); }
    bool isWritable() const override { return false; }

    qint64 readAt(qint64 offset, std::span<char> buffer) override
    {
        const QByteArrayView part = QByteArrayView(m_bytes).sliced(std::min(offset, size()));
        const qint64 count = std::min(part.size(), qsizetype(buffer.size()));
        std::copy_n(part.begin(), count, buffer.begin());
        return count;
    }

    HRFResult<void> prepareWriting(qint64) override { return readOnly(); }
    HRFResult<void> writeAt(qint64, std::span<const char>) override { return readOnly(); }
    HRFResult<void> finishWriting(qint64) override { return readOnly(); }

private:
    static HRFResult<void> readOnly() { return std::unexpected(HRFError::fromErrno(EROFS)); }

    QByteArray m_name;
    QByteArray m_bytes;
};

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
    return std::make_shared<HRFTagStream>(
        std::make_unique<ExcerptStore>(tagWithFrames(header, std::move(frames))));
}
