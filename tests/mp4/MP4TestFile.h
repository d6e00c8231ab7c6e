#pragma once

#include "tags/HRFTagStream.h"
#include "tags/MP4MetaData.h"

#include <QtEndian>

#include <algorithm>

/// A file in memory.
class MP4TestStore final : public HRFByteStore
{
public:
    explicit MP4TestStore(QByteArray &bytes) : m_bytes(bytes) { }

    const QByteArray &name() const override { return m_name; }
    qint64 size() const override { return m_bytes.size(); }
    bool isWritable() const override { return true; }

    qint64 readAt(qint64 offset, std::span<char> buffer) override
    {
        const qint64 count = std::clamp<qint64>(size() - offset, 0, qint64(buffer.size()));
        std::copy_n(m_bytes.constData() + offset, count, buffer.data());
        return count;
    }
    HRFResult<void> prepareWriting(qint64 newSize) override
    {
        m_bytes.resize(std::max(newSize, size()));
        return {};
    }
    HRFResult<void> writeAt(qint64 offset, std::span<const char> data) override
    {
        std::ranges::copy(data, m_bytes.data() + offset);
        return {};
    }
    HRFResult<void> finishWriting(qint64 newSize) override
    {
        m_bytes.resize(newSize);
        return {};
    }

private:
    QByteArray m_name = "test.m4a";
    QByteArray &m_bytes;
};

inline std::unique_ptr<HRFTagEngine> openMP4(QByteArray &bytes)
{
    auto engine = MP4MetaData::metadataClass.initWithStream(
        std::make_shared<HRFTagStream>(std::make_unique<MP4TestStore>(bytes)), false);
    return engine ? std::move(*engine) : nullptr;
}

/// The bytes of a literal, which may contain zeros.
template <std::size_t size> QByteArray bytesOf(const char (&literal)[size])
{
    return {literal, size - 1};
}

inline QByteArray number32(quint32 number)
{
    QByteArray result(4, '\0');
    qToBigEndian(number, result.data());
    return result;
}

inline QByteArray atom(const char *name, const QByteArray &contents)
{
    return number32(quint32(contents.size() + 8)) + name + contents;
}

inline QByteArray longAtom(const char *name, const QByteArray &contents)
{
    return number32(1) + name + number32(0) + number32(quint32(contents.size() + 16)) + contents;
}

inline QByteArray openAtom(const char *name, const QByteArray &contents)
{
    return number32(0) + name + contents;
}

inline QByteArray dataAtom(quint32 type, const QByteArray &value)
{
    return atom("data", number32(type) + number32(0) + value);
}

inline QByteArray metaAtom(const QByteArray &items, const char *handler = "mdir")
{
    return atom("meta",
                number32(0) + atom("hdlr", QByteArray(8, '\0') + handler + QByteArray(13, '\0'))
                    + items);
}

/// A chunk offset table as deep in a movie as it must be.
inline QByteArray trackAtom(const QByteArray &entries)
{
    const QByteArray table =
        atom("stco", number32(0) + number32(quint32(entries.size() / 4)) + entries);
    return atom("trak", atom("mdia", atom("minf", atom("stbl", table))));
}

inline const QByteArray fileType = atom("ftyp", "M4A isom");
inline const QByteArray audio = atom("mdat", "audio");
