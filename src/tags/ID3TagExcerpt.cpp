#include "tags/ID3TagExcerpt.h"

#include "tags/HRFTagStream.h"

#include <taglib/id3v2synchdata.h>

#include <algorithm>
#include <cerrno>

using namespace TagLib;

namespace {

constexpr unsigned int headerSize = 10; ///< of the tag and of every frame

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

bool isPlainHeader(const ByteVector &header)
{
    return header.size() == headerSize && header.startsWith("ID3")
        && (header[3] == 3 || header[3] == 4) && header[5] == '\0';
}

} // namespace

std::shared_ptr<HRFTagStream> ID3TagExcerpt(HRFTagStream &stream,
                                            const std::set<std::string_view> &frameIDs)
{
    stream.seek(0, IOStream::Beginning);
    const ByteVector header = stream.readBlock(headerSize);
    if (!isPlainHeader(header))
        return nullptr;
    const qint64 end = headerSize + qint64(ID3v2::SynchData::toUInt(header.mid(6, 4)));
    if (end > stream.length())
        return nullptr;
    QByteArray excerpt;
    for (qint64 offset = headerSize; offset + headerSize < end;) {
        stream.seek(offset, IOStream::Beginning);
        const ByteVector frame = stream.readBlock(headerSize);
        if (frame.data()[0] == '\0')
            break;
        const ByteVector sizeBytes = frame.mid(4, 4);
        const qint64 frameSize =
            header[3] == 4 ? ID3v2::SynchData::toUInt(sizeBytes) : sizeBytes.toUInt();
        offset += headerSize + frameSize;
        if (frameSize == 0 || offset > end)
            return nullptr;
        if (!frameIDs.contains({frame.data(), 4}))
            continue;
        const ByteVector content = stream.readBlock(std::size_t(frameSize));
        excerpt.append(frame.data(), frame.size()).append(content.data(), content.size());
    }
    excerpt.append(headerSize, '\0');
    const ByteVector sizeBytes =
        ID3v2::SynchData::fromUInt(static_cast<unsigned int>(excerpt.size()));
    excerpt.prepend(sizeBytes.data(), sizeBytes.size());
    excerpt.prepend(header.data(), headerSize - 4);
    return std::make_shared<HRFTagStream>(std::make_unique<ExcerptStore>(std::move(excerpt)));
}
