#include "tags/VorbisCommentPacket.h"

#include <QtEndian>

#include <algorithm>

namespace {

/// Takes a number of 32 bits off the front.
std::optional<quint32> takeNumber(QByteArrayView &bytes)
{
    constexpr qsizetype size = sizeof(quint32);
    if (bytes.size() < size)
        return {};
    const auto number = qFromLittleEndian<quint32>(bytes.data());
    bytes = bytes.sliced(size);
    return number;
}

/// Takes a text off the front that follows its length.
std::optional<QByteArray> takeText(QByteArrayView &bytes)
{
    const auto length = takeNumber(bytes);
    if (!length || qsizetype(*length) > bytes.size())
        return {};
    QByteArray text = bytes.first(*length).toByteArray();
    bytes = bytes.sliced(*length);
    return text;
}

void appendNumber(QByteArray &bytes, qsizetype number)
{
    const quint32 stored = qToLittleEndian(static_cast<quint32>(number));
    bytes.append(reinterpret_cast<const char *>(&stored), sizeof stored);
}

void appendText(QByteArray &bytes, const QByteArray &text)
{
    appendNumber(bytes, text.size());
    bytes.append(text);
}

} // namespace

std::optional<VorbisCommentPacket> VorbisCommentPacket::parse(const QByteArray &bytes)
{
    QByteArrayView left(bytes);
    const auto vendor = takeText(left);
    const auto count = vendor ? takeNumber(left) : std::nullopt;
    if (!count)
        return {};
    VorbisCommentPacket packet{.vendor = *vendor, .entries = {}, .rest = {}};
    for (quint32 i = 0; i < *count; ++i) {
        const auto entry = takeText(left);
        if (!entry)
            return {};
        packet.entries.append(*entry);
    }
    packet.rest = left.toByteArray();
    return packet;
}

QByteArray VorbisCommentPacket::render() const
{
    QByteArray bytes;
    appendText(bytes, vendor);
    appendNumber(bytes, entries.size());
    for (const QByteArray &entry : entries)
        appendText(bytes, entry);
    return bytes + rest;
}

QByteArray VorbisEntryName(const QByteArray &entry)
{
    return entry.first(std::max<qsizetype>(0, entry.indexOf('='))).toUpper();
}

bool VorbisIsPictureName(const QByteArray &name)
{
    return name == "METADATA_BLOCK_PICTURE" || name == "COVERART";
}
