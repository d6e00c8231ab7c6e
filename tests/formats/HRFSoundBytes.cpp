#include "formats/HRFSoundBytes.h"

#include <map>
#include <stdexcept>

namespace {

void demand(bool condition, const char *what)
{
    if (!condition)
        throw std::runtime_error(what);
}

qint64 number(const QByteArray &bytes, qint64 at, int count, bool isBigEndian)
{
    demand(at >= 0 && at + count <= bytes.size(), "a number behind the end");
    quint64 value = 0;
    for (int i = 0; i < count; ++i)
        value =
            value << 8 | static_cast<unsigned char>(bytes[at + (isBigEndian ? i : count - 1 - i)]);
    return qint64(value);
}

qint64 id3v2Size(const QByteArray &file)
{
    if (!file.startsWith("ID3"))
        return 0;
    qint64 size = 0;
    for (int i = 6; i < 10; ++i)
        size = size << 7 | file[i];
    return size + 10;
}

QByteArray mpegSound(QByteArray file)
{
    file.remove(0, id3v2Size(file));
    if (file.size() >= 128 && file.last(128).startsWith("TAG"))
        file.chop(128);
    if (file.size() >= 32 && file.last(32).startsWith("APETAGEX"))
        file.chop(number(file, file.size() - 20, 4, false) + 32);
    return file;
}

QByteArray flacSound(const QByteArray &file)
{
    qint64 at = id3v2Size(file);
    demand(file.sliced(at, 4) == "fLaC", "no FLAC stream");
    QByteArray sound;
    bool isLast = false;
    for (at += 4; !isLast;) {
        const auto header = number(file, at, 4, true);
        isLast = (header >> 31) != 0;
        const qint64 size = header & 0xFFFFFF;
        if ((header >> 24 & 0x7F) == 0)
            sound += file.sliced(at + 4, size);
        at += 4 + size;
    }
    return sound + file.sliced(at);
}

/// Chunks other than tags, each of which must lie within the form, and the form be the file.
QByteArray chunkSound(const QByteArray &file, int sizeLength, bool isBigEndian)
{
    demand(number(file, 4, sizeLength, isBigEndian) == file.size() - 4 - sizeLength,
           "wrong form size");
    QByteArray sound;
    for (qint64 at = 8 + sizeLength; at < file.size();) {
        const QByteArray name = file.sliced(at, 4);
        const qint64 size = number(file, at + 4, sizeLength, isBigEndian);
        at += 4 + sizeLength;
        demand(at + size <= file.size(), "a chunk behind the end");
        const QByteArray data = file.sliced(at, size);
        const bool isTag = name.toLower() == "id3 " || name == "DIIN"
            || (name == "LIST" && data.startsWith("INFO"));
        demand(!isTag || size > 0, "an empty tag");
        if (!isTag)
            sound += name + data;
        at += size + size % 2;
    }
    return sound;
}

QByteArray dsfSound(const QByteArray &file)
{
    demand(number(file, 12, 8, false) == file.size(), "wrong file size");
    const qint64 tagOffset = number(file, 20, 8, false);
    return file.sliced(28, (tagOffset == 0 ? file.size() : tagOffset) - 28);
}

/// What the chunk offsets point at.
QByteArray sampleStarts(const QByteArray &file, const QByteArray &movie, const char *table,
                        int entryLength)
{
    QByteArray starts;
    for (qint64 at = movie.indexOf(table); at >= 0; at = movie.indexOf(table, at + 4))
        for (qint64 i = 0; i < number(movie, at + 8, 4, true); ++i)
            starts += file.mid(number(movie, at + 12 + i * entryLength, entryLength, true), 16);
    return starts;
}

QByteArray mp4Sound(const QByteArray &file)
{
    QByteArray sound;
    QByteArray movie;
    for (qint64 at = 0; at < file.size();) {
        const qint64 size = number(file, at, 4, true);
        demand(size >= 8 && at + size <= file.size(), "a box behind the end");
        const QByteArray box = file.sliced(at + 4, size - 4);
        if (box.startsWith("moov"))
            movie = box;
        else if (!box.startsWith("free"))
            sound += box;
        at += size;
    }
    return sound + sampleStarts(file, movie, "stco", 4) + sampleStarts(file, movie, "co64", 8);
}

struct OggStream
{
    QByteArray kind; ///< the begin of the first packet
    QByteArray packet;
    qint64 packets = 0;
    qint64 pages = 0;
};

bool isComment(const OggStream &stream)
{
    if (stream.kind.startsWith("\x7F"
                               "FLAC"))
        return (stream.packet.left(1).toHex().toInt(nullptr, 16) & 0x7F) == 4;
    return stream.packets == 1;
}

QByteArray oggSound(const QByteArray &file)
{
    QByteArray sound;
    std::map<qint64, OggStream> streams;
    for (qint64 at = 0; at < file.size();) {
        demand(file.sliced(at, 4) == "OggS", "no Ogg page");
        OggStream &stream = streams[number(file, at + 14, 4, false)];
        demand(number(file, at + 18, 4, false) == stream.pages++, "a page is missing");
        const qint64 position = number(file, at + 6, 8, false);
        const qint64 segments = number(file, at + 26, 1, false);
        const QByteArray sizes = file.sliced(at + 27, segments);
        at += 27 + segments;
        for (const char byte : sizes) {
            const auto size = static_cast<unsigned char>(byte);
            stream.packet += file.sliced(at, size);
            at += size;
            if (size == 255)
                continue;
            if (stream.packets == 0)
                stream.kind = stream.packet;
            if (!isComment(stream))
                sound += stream.packet + '|';
            ++stream.packets;
            stream.packet.clear();
        }
        if (position > 0)
            sound += QByteArray::number(position);
    }
    return sound;
}

} // namespace

QByteArray HRFSoundBytes(const QByteArray &file, HRFContainer container)
{
    switch (container) {
    case HRFContainer::MPEG:
        return mpegSound(file);
    case HRFContainer::MP4:
        return mp4Sound(file);
    case HRFContainer::FLAC:
        return flacSound(file);
    case HRFContainer::Ogg:
        return oggSound(file);
    case HRFContainer::RIFF:
        return chunkSound(file, 4, false);
    case HRFContainer::AIFF:
        return chunkSound(file, 4, true);
    case HRFContainer::DSDIFF:
        return chunkSound(file, 8, true);
    case HRFContainer::DSF:
        return dsfSound(file);
    }
    return {};
}
