#include "formats/HRFSoundBytes.h"

#include "support/HRFTestBytes.h"

#include <map>
#include <stdexcept>

using namespace HRFTestBytes;

namespace {

void demand(bool condition, const char *what)
{
    if (!condition)
        throw std::runtime_error(what);
}

QByteArray mpegSound(QByteArray file)
{
    file.remove(0, ID3v2Size(file));
    if (file.size() >= 128 && file.last(128).startsWith("TAG"))
        file.chop(128);
    if (file.size() >= 32 && file.last(32).startsWith("APETAGEX"))
        file.chop(littleEndianAt(file, file.size() - 20) + 32);
    return file;
}

QByteArray flacSound(const QByteArray &file)
{
    qint64 at = ID3v2Size(file);
    demand(file.sliced(at, 4) == "fLaC", "no FLAC stream");
    QByteArray sound;
    bool isLast = false;
    for (at += 4; !isLast;) {
        const qint64 header = bigEndianAt(file, at);
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
    const auto sizeAt = [&](qint64 at) {
        return isBigEndian ? bigEndianAt(file, at, sizeLength) : littleEndianAt(file, at);
    };
    demand(sizeAt(4) == file.size() - 4 - sizeLength, "wrong form size");
    QByteArray sound;
    for (qint64 at = 8 + sizeLength; at < file.size();) {
        const QByteArray name = file.sliced(at, 4);
        const qint64 size = sizeAt(at + 4);
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
    demand(littleEndianAt(file, 12, 8) == file.size(), "wrong file size");
    const qint64 tagOffset = littleEndianAt(file, 20, 8);
    return file.sliced(28, (tagOffset == 0 ? file.size() : tagOffset) - 28);
}

/// What the chunk offsets point at.
QByteArray sampleStarts(const QByteArray &file, const QByteArray &movie, const char *table,
                        int entryLength)
{
    QByteArray starts;
    for (qint64 at = movie.indexOf(table); at >= 0; at = movie.indexOf(table, at + 4))
        for (qint64 i = 0; i < bigEndianAt(movie, at + 8); ++i)
            starts += file.mid(bigEndianAt(movie, at + 12 + i * entryLength, entryLength), 16);
    return starts;
}

QByteArray mp4Sound(const QByteArray &file)
{
    QByteArray sound;
    QByteArray movie;
    for (qint64 at = 0; at < file.size();) {
        const qint64 size = bigEndianAt(file, at);
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

/// All packets but the comment, and where they end in time.
QByteArray oggSound(const QByteArray &file)
{
    struct Stream
    {
        quint32 pages = 0;
        QByteArray packet;
        QByteArrayList packets;
    };
    std::map<quint32, Stream> streams;
    QByteArray sound;
    const std::vector<OggPage> pages = OggPages(file);
    demand(!pages.empty() && file.endsWith(pages.back().render()), "a damaged page");
    for (const OggPage &page : pages) {
        Stream &stream = streams[page.serial];
        demand(page.sequence == stream.pages++, "a page is missing");
        for (qsizetype i = 0; i < page.packets.size(); ++i) {
            stream.packet += page.packets[i];
            if (page.isOpen && i == page.packets.size() - 1)
                break;
            stream.packets.append(std::exchange(stream.packet, {}));
            const QByteArray &packet = stream.packets.back();
            const bool isComment = stream.packets.front().startsWith("\x7F\x46LAC")
                ? !packet.isEmpty() && (packet.front() & 0x7F) == 4
                : stream.packets.size() == 2;
            if (!isComment)
                sound += packet + '|';
        }
        if (page.granule > 0)
            sound += QByteArray::number(page.granule);
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
