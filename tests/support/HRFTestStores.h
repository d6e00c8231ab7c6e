#pragma once

#include "tags/HRFByteStore.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <memory>
#include <string>
#include <utility>

/// A store whose file is a text in memory, which outlives it.
class HRFMemoryByteStore : public HRFByteStore
{
public:
    explicit HRFMemoryByteStore(std::string &bytes) : m_bytes(bytes), m_size(qint64(bytes.size()))
    {
    }

    const QByteArray &name() const override { return m_name; }
    qint64 size() const override { return m_size; }
    bool isWritable() const override { return true; }

    qint64 readAt(qint64 offset, std::span<char> buffer) override
    {
        if (offset >= qint64(m_bytes.size()))
            return 0;
        return qint64(m_bytes.copy(buffer.data(), buffer.size(), std::size_t(offset)));
    }
    HRFResult<void> prepareWriting(qint64 newSize) override
    {
        m_bytes.resize(std::max(m_bytes.size(), std::size_t(newSize)));
        return {};
    }
    /// Writing behind the room that was made is an error, since a disk may be full there.
    HRFResult<void> writeAt(qint64 offset, std::span<const char> data) override
    {
        if (std::size_t(offset) + data.size() > m_bytes.size())
            return std::unexpected(HRFError::fromErrno(ENOSPC));
        std::ranges::copy(data, m_bytes.begin() + offset);
        return {};
    }
    HRFResult<void> finishWriting(qint64 newSize) override
    {
        m_bytes.resize(std::size_t(newSize));
        m_size = newSize;
        return {};
    }

private:
    std::string &m_bytes;
    qint64 m_size;
    const QByteArray m_name = "memory.mp3";
};

/// What is to go wrong in a store.
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

/// Passes everything on to another store, except what is to go wrong. A failing write has written
/// half of its bytes.
class HRFFaultyByteStore : public HRFByteStore
{
public:
    HRFFaultyByteStore(std::unique_ptr<HRFByteStore> store, HRFFaults &faults)
        : m_store(std::move(store)), m_faults(faults)
    {
    }

    const QByteArray &name() const override { return m_store->name(); }
    qint64 size() const override { return m_store->size(); }
    bool isWritable() const override { return !m_faults.isReadOnly; }

    qint64 readAt(qint64 offset, std::span<char> buffer) override
    {
        const auto readable = std::size_t(std::max<qint64>(0, m_faults.unreadableFrom - offset));
        return m_store->readAt(offset, buffer.first(std::min(buffer.size(), readable)));
    }
    HRFResult<void> prepareWriting(qint64 newSize) override
    {
        if (m_faults.prepareFails)
            return std::unexpected(HRFError::fromErrno(ENOSPC));
        return m_store->prepareWriting(newSize);
    }
    HRFResult<void> writeAt(qint64 offset, std::span<const char> data) override
    {
        const int number = m_faults.writeCount++;
        const bool isLate = m_faults.failsForGood && number > m_faults.failingWrite;
        if (number != m_faults.failingWrite && !isLate)
            return m_store->writeAt(offset, data);
        if (auto half = m_store->writeAt(offset, data.first(data.size() / 2)); !half)
            return half;
        return std::unexpected(HRFError::fromErrno(EIO));
    }
    HRFResult<void> finishWriting(qint64 newSize) override
    {
        return m_store->finishWriting(newSize);
    }

private:
    std::unique_ptr<HRFByteStore> m_store;
    HRFFaults &m_faults;
};
