#include "tags/HRFStreamOfBytes.h"

#include "tags/HRFTagStream.h"

#include <algorithm>
#include <cerrno>

namespace {

class ReadOnlyBytes : public HRFByteStore
{
public:
    explicit ReadOnlyBytes(QByteArray bytes) : m_bytes(std::move(bytes)) { }

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

} // namespace

std::shared_ptr<HRFTagStream> HRFStreamOfBytes(QByteArray bytes)
{
    return std::make_shared<HRFTagStream>(std::make_unique<ReadOnlyBytes>(std::move(bytes)));
}
