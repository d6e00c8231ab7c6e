#include "xiph/XiphFiles.h"

#include "tags/FLACMetaData.h"
#include "tags/HRFByteStore.h"
#include "tags/HRFTagStream.h"
#include "tags/OGGOpusMetaData.h"
#include "tags/OGGSpeexMetaData.h"
#include "tags/OGGVorbisMetaData.h"

#include <QtEndian>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace XiphFiles {

namespace {

class MemoryStore : public HRFByteStore
{
public:
    explicit MemoryStore(std::shared_ptr<QByteArray> bytes) : m_bytes(std::move(bytes)) { }

    const QByteArray &name() const override { return m_name; }
    qint64 size() const override { return m_bytes->size(); }
    bool isWritable() const override { return true; }
    qint64 readAt(qint64 offset, std::span<char> buffer) override
    {
        const QByteArray part = m_bytes->mid(offset, qsizetype(buffer.size()));
        std::memcpy(buffer.data(), part.constData(), std::size_t(part.size()));
        return part.size();
    }
    HRFResult<void> prepareWriting(qint64 newSize) override
    {
        m_bytes->resize(std::max<qint64>(m_bytes->size(), newSize));
        return {};
    }
    HRFResult<void> writeAt(qint64 offset, std::span<const char> data) override
    {
        std::memcpy(m_bytes->data() + offset, data.data(), data.size());
        return {};
    }
    HRFResult<void> finishWriting(qint64 newSize) override
    {
        m_bytes->resize(newSize);
        return {};
    }

private:
    std::shared_ptr<QByteArray> m_bytes;
    QByteArray m_name = "memory";
};

template <class Number> QByteArray littleEndian(Number number)
{
    const Number stored = qToLittleEndian(number);
    return QByteArray(reinterpret_cast<const char *>(&stored), sizeof stored);
}

quint32 checksum(const QByteArray &bytes)
{
    quint32 sum = 0;
    for (const char byte : bytes) {
        sum ^= quint32(static_cast<unsigned char>(byte)) << 24;
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 0x80000000U) != 0 ? (sum << 1) ^ 0x04C11DB7U : sum << 1;
    }
    return sum;
}

QByteArray audioPages(quint32 sequence)
{
    return Page{.granule = 960, .sequence = sequence, .packets = {"audio 1", "audio 2"}}.render()
        + Page{.flags = last, .granule = 1920, .sequence = sequence + 1, .packets = {"audio 3"}}
              .render();
}

QByteArray oggFile(const QByteArray &head, const QByteArray &packet)
{
    return Page{.flags = first, .packets = {head}}.render()
        + Page{.sequence = 1, .packets = {packet}}.render() + audioPages(2);
}

QByteArray oggFlac(const QByteArray &comment)
{
    const QByteArray head("\x7F"
                          "FLAC\x01\0\0\x01"
                          "fLaC",
                          13);
    return oggFile(head + flacBlock(0, streamInfo()), flacBlock(4, comment, true));
}

} // namespace

QByteArray comment(const QList<QByteArray> &entries, const QByteArray &rest, qsizetype count)
{
    QByteArray bytes = littleEndian<quint32>(6) + "vendor"
        + littleEndian(static_cast<quint32>(count < 0 ? entries.size() : count));
    for (const QByteArray &entry : entries)
        bytes += littleEndian(static_cast<quint32>(entry.size())) + entry;
    return bytes + rest;
}

QByteArray Page::render() const
{
    QByteArray segments;
    for (const QByteArray &packet : packets)
        segments +=
            QByteArray(packet.size() / 255, '\xFF') + static_cast<char>(packet.size() % 255);
    const QByteArray start = QByteArray("OggS\0", 5) + flags + littleEndian(granule)
        + littleEndian(serial) + littleEndian(sequence);
    const QByteArray end = static_cast<char>(segments.size()) + segments + packets.join();
    return start + littleEndian(checksum(start + QByteArray(4, '\0') + end)) + end;
}

std::vector<Page> pages(const QByteArray &file)
{
    std::vector<Page> result;
    for (qsizetype offset = file.indexOf("OggS"); offset >= 0;) {
        const char *header = file.constData() + offset;
        Page page{.flags = header[5],
                  .granule = qFromLittleEndian<qint64>(header + 6),
                  .serial = qFromLittleEndian<quint32>(header + 14),
                  .sequence = qFromLittleEndian<quint32>(header + 18)};
        const auto segmentCount = static_cast<unsigned char>(header[26]);
        qsizetype end = offset + 27 + segmentCount;
        bool isOpen = false;
        for (const char segment : file.mid(offset + 27, segmentCount)) {
            const auto size = static_cast<unsigned char>(segment);
            if (!isOpen)
                page.packets.append(QByteArray());
            page.packets.back() += file.mid(end, size);
            end += size;
            isOpen = size == 255;
        }
        QByteArray bytes = file.mid(offset, end - offset);
        bytes.replace(22, 4, QByteArray(4, '\0'));
        if (checksum(bytes) != qFromLittleEndian<quint32>(header + 22))
            break;
        result.push_back(page);
        offset = file.indexOf("OggS", end);
    }
    return result;
}

QByteArray flacBlock(char type, const QByteArray &data, bool isLast)
{
    const quint32 header =
        qToBigEndian((quint32(type) << 24) | quint32(data.size()) | (isLast ? 0x80000000U : 0U));
    return QByteArray(reinterpret_cast<const char *>(&header), sizeof header) + data;
}

QByteArray streamInfo()
{
    return QByteArray(34, '\1');
}

QByteArray flacFile(const QByteArray &blocks)
{
    return "fLaC" + flacBlock(0, streamInfo()) + blocks + flacBlock(1, "1234", true)
        + "\xFF\xF8 audio";
}

std::vector<Container> containers()
{
    return {{"FLAC", &FLACMetaData::metadataClass, "",
             [](const QByteArray &bytes) { return flacFile(flacBlock(4, bytes)); }},
            {"Vorbis", &OGGVorbisMetaData::metadataClass, "\x03vorbis",
             [](const QByteArray &bytes) { return oggFile("\x01vorbis", "\x03vorbis" + bytes); }},
            {"Ogg FLAC", &OGGVorbisMetaData::metadataClass, "", oggFlac},
            {"Opus", &OGGOpusMetaData::metadataClass, "OpusTags",
             [](const QByteArray &bytes) { return oggFile("OpusHead", "OpusTags" + bytes); }},
            {"Speex", &OGGSpeexMetaData::metadataClass, "",
             [](const QByteArray &bytes) { return oggFile("Speex   ", bytes); }}};
}

Container container(const std::string &name)
{
    const auto all = containers();
    return *std::ranges::find(all, name, &Container::name);
}

void setAlbum(HRFTagEngine &engine)
{
    engine.setValueForKey(u"New"_s, HRFTagKey::album);
}

void strip(HRFTagEngine &engine)
{
    EXPECT_TRUE(engine.stripTags());
}

HRFResult<std::unique_ptr<HRFTagEngine>> open(const HRFEngineClass &engineClass,
                                              const std::shared_ptr<QByteArray> &file)
{
    auto stream = std::make_shared<HRFTagStream>(std::make_unique<MemoryStore>(file));
    return engineClass.initWithStream(std::move(stream), false);
}

Saved save(const HRFEngineClass &engineClass, const QByteArray &file, const Change &change)
{
    const auto bytes = std::make_shared<QByteArray>(file);
    const auto engine = open(engineClass, bytes);
    if (!engine) {
        ADD_FAILURE() << qPrintable(engine.error().fullText());
        return {};
    }
    change(**engine);
    const auto saved = (*engine)->updateFileWithError();
    return {.file = *bytes, .error = saved ? QString() : saved.error().fullText()};
}

} // namespace XiphFiles
