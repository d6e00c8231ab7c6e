#pragma once

#include "tags/HRFByteStore.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <utility>

/// What is to go wrong in a store. A failing write has written half of its bytes.
struct HRFFaults
{
    static constexpr int never = std::numeric_limits<int>::max();

    bool isReadOnly = false;
    bool prepareFails = false;
    int failingWrite = never; ///< the number of the call, from 0
    bool failsForGood = false; ///< every later write too, not just that one
    qint64 unreadableFrom = std::numeric_limits<qint64>::max();
    int writeCount = 0;
};

/// A file in memory: bytes that outlive the store, and zeros behind them up to the given size.
class HRFMemoryByteStore : public HRFByteStore
{
public:
    HRFMemoryByteStore(QByteArray &bytes, HRFFaults &faults, QByteArray name, qint64 size = 0)
        : m_bytes(bytes)
        , m_faults(faults)
        , m_name(std::move(name))
        , m_size(std::max<qint64>(size, bytes.size()))
    {
    }

    const QByteArray &name() const override { return m_name; }
    qint64 size() const override { return m_size; }
    bool isWritable() const override { return !m_faults.isReadOnly; }

    qint64 readAt(qint64 offset, std::span<char> buffer) override
    {
        const qint64 end =
            std::min(std::max<qint64>(m_size, m_bytes.size()), m_faults.unreadableFrom);
        const qint64 count = std::clamp<qint64>(end - offset, 0, qint64(buffer.size()));
        const qint64 present = std::clamp<qint64>(m_bytes.size() - offset, 0, count);
        std::ranges::fill(buffer.first(std::size_t(count)), '\0');
        std::copy_n(m_bytes.constData() + std::min<qint64>(offset, m_bytes.size()), present,
                    buffer.data());
        return count;
    }
    HRFResult<void> prepareWriting(qint64 newSize) override
    {
        if (m_faults.prepareFails)
            return std::unexpected(HRFError::fromErrno(ENOSPC));
        m_bytes.resize(std::max(newSize, m_size), '\0');
        return {};
    }
    HRFResult<void> writeAt(qint64 offset, std::span<const char> data) override
    {
        const int number = m_faults.writeCount++;
        const bool fails = number == m_faults.failingWrite
            || (m_faults.failsForGood && number > m_faults.failingWrite);
        const auto written = data.first(fails ? data.size() / 2 : data.size());
        // Behind the room that was made a disk may be full.
        if (offset < 0 || offset + qint64(written.size()) > m_bytes.size())
            return std::unexpected(HRFError::fromErrno(ENOSPC));
        std::ranges::copy(written, m_bytes.data() + offset);
        return fails ? HRFResult<void>(std::unexpected(HRFError::fromErrno(EIO)))
                     : HRFResult<void>();
    }
    HRFResult<void> finishWriting(qint64 newSize) override
    {
        m_bytes.resize(newSize);
        m_size = newSize;
        return {};
    }

private:
    QByteArray &m_bytes;
    HRFFaults &m_faults;
    const QByteArray m_name;
    qint64 m_size;
};
