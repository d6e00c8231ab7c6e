#pragma once

#include "tags/HRFByteStore.h"

#include <algorithm>
#include <cerrno>

/// A writable byte store in memory. The bytes belong to the caller and outlive the store.
class HRFMemoryByteStore : public HRFByteStore
{
public:
    explicit HRFMemoryByteStore(QByteArray &bytes) : m_bytes(bytes) { }

    const QByteArray &name() const override { return m_name; }
    qint64 size() const override { return m_bytes.size(); }
    bool isWritable() const override { return true; }

    qint64 readAt(qint64 offset, std::span<char> buffer) override
    {
        const qint64 available = std::max<qint64>(0, m_bytes.size() - offset);
        const qint64 count = std::min(available, qint64(buffer.size()));
        std::copy_n(m_bytes.constData() + std::min<qint64>(offset, m_bytes.size()), count,
                    buffer.data());
        return count;
    }

    HRFResult<void> prepareWriting(qint64 newSize) override
    {
        if (newSize > m_bytes.size())
            m_bytes.append(newSize - m_bytes.size(), '\0');
        return {};
    }

    HRFResult<void> writeAt(qint64 offset, std::span<const char> data) override
    {
        if (offset < 0 || offset + qint64(data.size()) > m_bytes.size())
            return std::unexpected(HRFError::fromErrno(EINVAL));
        std::ranges::copy(data, m_bytes.data() + offset);
        return {};
    }

    HRFResult<void> finishWriting(qint64 newSize) override
    {
        m_bytes.truncate(newSize);
        return {};
    }

private:
    QByteArray &m_bytes;
    const QByteArray m_name = "memory";
};
