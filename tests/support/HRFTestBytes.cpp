#include "support/HRFTestBytes.h"

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// Sizes of ID3v2.4 frames leave out the highest bit of every byte, those of ID3v2.3 do not.
int bitsPerSizeByte(int version)
{
    return version == 3 ? 8 : 7;
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

} // namespace

namespace HRFTestBytes {

QByteArray bigEndian(quint64 number, int width, int bitsPerByte)
{
    QByteArray bytes(width, '\0');
    for (int i = width - 1; i >= 0; --i, number >>= bitsPerByte)
        bytes[i] = char(number & ((1U << bitsPerByte) - 1));
    return bytes;
}

QByteArray littleEndian(quint64 number, int width)
{
    QByteArray bytes = bigEndian(number, width);
    std::ranges::reverse(bytes);
    return bytes;
}

qint64 bigEndianAt(const QByteArray &bytes, qint64 offset, int width, int bitsPerByte)
{
    if (offset < 0 || offset + width > bytes.size())
        throw std::out_of_range("a number behind the end");
    quint64 number = 0;
    for (const char byte : bytes.sliced(offset, width))
        number = number << bitsPerByte | static_cast<unsigned char>(byte);
    return qint64(number);
}

qint64 littleEndianAt(const QByteArray &bytes, qint64 offset, int width)
{
    QByteArray number = bytes.mid(offset, width);
    std::ranges::reverse(number);
    return bigEndianAt(number, 0, width);
}

Frame textFrame(const QByteArray &id, const QByteArray &text)
{
    return {id, '\0' + text};
}

QByteArray ID3v2Tag(int version, const std::vector<Frame> &frames, char revision)
{
    QByteArray body;
    for (const Frame &frame : frames)
        body += frame.id + bigEndian(quint64(frame.content.size()), 4, bitsPerSizeByte(version))
            + frame.flags + frame.content;
    return "ID3"_ba + char(version) + revision + '\0' + bigEndian(quint64(body.size()), 4, 7)
        + body;
}

int ID3v2Version(const QByteArray &bytes)
{
    return bytes.startsWith("ID3") ? bytes.at(3) : 0;
}

qint64 ID3v2Size(const QByteArray &bytes)
{
    return ID3v2Version(bytes) == 0 ? 0 : 10 + bigEndianAt(bytes, 6, 4, 7);
}

std::vector<Frame> ID3v2Frames(const QByteArray &bytes)
{
    const qint64 end = ID3v2Size(bytes);
    std::vector<Frame> frames;
    for (qint64 at = 10; at + 10 < end && bytes[at] != '\0';) {
        const auto size = bigEndianAt(bytes, at + 4, 4, bitsPerSizeByte(ID3v2Version(bytes)));
        frames.push_back({bytes.mid(at, 4), bytes.mid(at + 10, size), bytes.mid(at + 8, 2)});
        at += 10 + size;
    }
    return frames;
}

QByteArrayList contentsOf(const QByteArray &bytes, const QByteArray &id)
{
    QByteArrayList contents;
    for (const Frame &frame : ID3v2Frames(bytes))
        if (frame.id == id)
            contents.append(frame.content);
    return contents;
}

QByteArray OggPage::render() const
{
    QByteArray segments;
    for (const QByteArray &packet : packets)
        segments += QByteArray(packet.size() / 255, '\xFF') + char(packet.size() % 255);
    const QByteArray start = "OggS\0"_ba + flags + littleEndian(quint64(granule), 8)
        + littleEndian(serial) + littleEndian(sequence);
    const QByteArray end = char(segments.size()) + segments + packets.join();
    return start + littleEndian(checksum(start + littleEndian(0) + end)) + end;
}

std::vector<OggPage> OggPages(const QByteArray &file)
{
    std::vector<OggPage> pages;
    for (qint64 offset = file.indexOf("OggS"); offset >= 0;) {
        OggPage page{.flags = file[offset + 5],
                     .granule = littleEndianAt(file, offset + 6, 8),
                     .serial = quint32(littleEndianAt(file, offset + 14)),
                     .sequence = quint32(littleEndianAt(file, offset + 18))};
        const QByteArray sizes = file.mid(offset + 27, littleEndianAt(file, offset + 26, 1));
        qint64 end = offset + 27 + sizes.size();
        for (const char byte : sizes) {
            if (!page.isOpen)
                page.packets.append(QByteArray());
            const auto size = static_cast<unsigned char>(byte);
            page.packets.back() += file.mid(end, size);
            end += size;
            page.isOpen = size == 255;
        }
        const QByteArray bytes = file.mid(offset, end - offset).replace(22, 4, littleEndian(0));
        if (checksum(bytes) != littleEndianAt(file, offset + 22))
            break;
        pages.push_back(page);
        offset = file.indexOf("OggS", end);
    }
    return pages;
}

} // namespace HRFTestBytes
