#include "tags/OGGPages.h"

#include "tags/TagLibText.h"

#include <QtEndian>
#include <taglib/tfile.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

using namespace TagLib;

namespace {

// The fields of a page header (RFC 3533 §6).
constexpr qsizetype flagsField = 5;
constexpr qsizetype granuleField = 6;
constexpr qsizetype serialField = 14;
constexpr qsizetype sequenceField = 18;
constexpr qsizetype checksumField = 22;
constexpr qsizetype segmentCountField = 26;
constexpr qsizetype segmentTable = 27;
constexpr qsizetype maximumSegments = 255;

constexpr char fullSegment = '\xFF';
constexpr char continuedFlag = 1;
constexpr char firstFlag = 2;
constexpr char lastFlag = 4;
constexpr qint64 noGranule = -1;

struct Page
{
    qint64 offset;
    QByteArray header;

    bool has(char flag) const { return (header[flagsField] & flag) != 0; }
    template <class Number> Number number(qsizetype field) const
    {
        return qFromLittleEndian<Number>(header.constData() + field);
    }
    quint32 serial() const { return number<quint32>(serialField); }
    quint32 sequence() const { return number<quint32>(sequenceField); }
    QByteArray segments() const { return header.sliced(segmentTable); }
    qint64 bodyOffset() const { return offset + header.size(); }
    qint64 end() const;
};

/// The packets of a page that are looked for, and where they are in its pages.
struct PacketPages
{
    std::vector<Page> pages;
    qsizetype begin; ///< its first segment in the first page
    qsizetype end; ///< behind its last segment in the last page
};

qsizetype sizeOfSegments(QByteArrayView segments)
{
    return std::accumulate(
        segments.begin(), segments.end(), qsizetype(0),
        [](qsizetype sum, char segment) { return sum + static_cast<unsigned char>(segment); });
}

qint64 Page::end() const
{
    return bodyOffset() + sizeOfSegments(segments());
}

template <class Number> void setNumber(QByteArray &bytes, qsizetype field, Number number)
{
    qToLittleEndian(number, bytes.data() + field);
}

constexpr auto checksumTable = [] {
    constexpr quint32 polynomial = 0x04C11DB7;
    std::array<quint32, 256> table{};
    for (quint32 i = 0; i < table.size(); ++i) {
        table[i] = i << 24;
        for (int bit = 0; bit < 8; ++bit)
            table[i] = (table[i] << 1) ^ ((table[i] >> 31) * polynomial);
    }
    return table;
}();

/// Sets the checksum of a whole page, which counts with a checksum of zero.
void setChecksum(QByteArray &page)
{
    setNumber<quint32>(page, checksumField, 0);
    quint32 sum = 0;
    for (const char byte : page)
        sum = (sum << 8) ^ checksumTable[(sum >> 24) ^ static_cast<unsigned char>(byte)];
    setNumber(page, checksumField, sum);
}

QByteArray readBytes(File &file, qint64 offset, qint64 length)
{
    file.seek(offset);
    return TagLibText::toQByteArray(file.readBlock(std::size_t(length)));
}

std::optional<Page> readPage(File &file, qint64 offset)
{
    if (offset < 0)
        return {};
    Page page{.offset = offset, .header = readBytes(file, offset, segmentTable)};
    if (page.header.size() < segmentTable || !page.header.startsWith("OggS"))
        return {};
    const auto segmentCount = static_cast<unsigned char>(page.header[segmentCountField]);
    page.header += readBytes(file, offset + segmentTable, segmentCount);
    if (page.header.size() < segmentTable + segmentCount)
        return {};
    return page;
}

/// The page of the same stream that follows; bytes between pages are skipped.
std::optional<Page> nextPage(File &file, const Page &page)
{
    if (page.has(lastFlag))
        return {};
    bool wasFirst = page.has(firstFlag);
    for (qint64 offset = page.end();;) {
        auto next = readPage(file, offset);
        if (!next)
            next = readPage(file, file.find("OggS", offset));
        // All streams of a link begin before any of them goes on (RFC 3533 §4).
        if (!next || (next->has(firstFlag) && !wasFirst))
            return {};
        if (next->serial() == page.serial())
            return next;
        wasFirst = next->has(firstFlag);
        offset = next->end();
    }
}

std::optional<PacketPages> findPacket(File &file, unsigned int index)
{
    PacketPages found{};
    unsigned int current = 0;
    for (auto page = readPage(file, file.find("OggS")); page; page = nextPage(file, *page)) {
        if (!found.pages.empty())
            found.pages.push_back(*page);
        const QByteArray segments = page->segments();
        for (qsizetype i = 0; i < segments.size(); ++i) {
            if (current == index && found.pages.empty()) {
                found.pages.push_back(*page);
                found.begin = i;
            }
            if (segments[i] == fullSegment)
                continue;
            if (current == index) {
                found.end = i + 1;
                return found;
            }
            ++current;
        }
    }
    return {};
}

/// The segments of the pages for a packet, with those of the packets around it. The packets behind
/// it keep a page for themselves unless all of them fit: the position of the last one is known
/// only.
std::vector<QByteArray> paginate(const QByteArray &before, qsizetype packetSize,
                                 const QByteArray &behind)
{
    const QByteArray segments =
        before + QByteArray(packetSize / 255, fullSegment) + static_cast<char>(packetSize % 255);
    std::vector<QByteArray> pages;
    for (qsizetype i = 0; i < segments.size(); i += maximumSegments)
        pages.push_back(segments.mid(i, maximumSegments));
    if (pages.back().size() + behind.size() <= maximumSegments)
        pages.back() += behind;
    else
        pages.push_back(behind);
    return pages;
}

/// The new pages in the place of the old ones. Header packets end at position 0.
QByteArray renderPages(const std::vector<QByteArray> &tables, QByteArrayView body,
                       const PacketPages &old)
{
    const Page &first = old.pages.front();
    const Page &last = old.pages.back();
    QByteArray result;
    bool isContinued = first.has(continuedFlag);
    for (std::size_t i = 0; i < tables.size(); ++i) {
        const bool isLast = i + 1 == tables.size();
        const bool hasEnd =
            std::ranges::any_of(tables[i], [](char segment) { return segment != fullSegment; });
        QByteArray page = first.header.first(segmentTable);
        page[flagsField] = static_cast<char>((isContinued ? continuedFlag : 0)
                                             | (i == 0 && first.has(firstFlag) ? firstFlag : 0)
                                             | (isLast && last.has(lastFlag) ? lastFlag : 0));
        const qint64 lastGranule = isLast ? last.number<qint64>(granuleField) : 0;
        setNumber(page, granuleField, hasEnd ? lastGranule : noGranule);
        setNumber(page, sequenceField, first.sequence() + static_cast<quint32>(i));
        page[segmentCountField] = static_cast<char>(tables[i].size());
        const qsizetype size = sizeOfSegments(tables[i]);
        page.append(tables[i]).append(body.first(size));
        setChecksum(page);
        result += page;
        body = body.sliced(size);
        isContinued = tables[i].endsWith(fullSegment);
    }
    return result;
}

/// Renumbers the pages of the stream behind the given one. A damaged page stays damaged.
void renumberPages(File &file, Page page, quint32 difference)
{
    while (const auto next = nextPage(file, page)) {
        page = *next;
        QByteArray bytes = readBytes(file, page.offset, page.end() - page.offset);
        const QByteArray old = bytes;
        setChecksum(bytes);
        if (bytes != old)
            continue;
        setNumber(bytes, sequenceField, page.sequence() + difference);
        setChecksum(bytes);
        file.seek(page.offset + sequenceField);
        file.writeBlock(TagLibText::toByteVector(
            bytes.sliced(sequenceField, segmentCountField - sequenceField)));
    }
}

} // namespace

std::optional<QByteArray> OGGReadPacket(File &file, unsigned int index)
{
    const auto found = findPacket(file, index);
    if (!found)
        return {};
    QByteArray packet;
    for (const Page &page : found->pages) {
        const QByteArray segments = page.segments();
        const qsizetype begin = &page == &found->pages.front() ? found->begin : 0;
        const qsizetype end = &page == &found->pages.back() ? found->end : segments.size();
        packet += readBytes(file, page.bodyOffset() + sizeOfSegments(segments.first(begin)),
                            sizeOfSegments(segments.sliced(begin, end - begin)));
    }
    return packet;
}

bool OGGReplacePacket(File &file, unsigned int index, const QByteArray &packet)
{
    const auto found = findPacket(file, index);
    if (!found
        || std::ranges::adjacent_find(
               found->pages,
               [](const Page &page, const Page &next) { return page.end() != next.offset; })
            != found->pages.end())
        return false;
    const Page &first = found->pages.front();
    const Page &last = found->pages.back();
    const QByteArray before = first.segments().first(found->begin);
    const QByteArray behind = last.segments().sliced(found->end);
    const qsizetype sizeBehind = sizeOfSegments(behind);
    const QByteArray body = readBytes(file, first.bodyOffset(), sizeOfSegments(before)) + packet
        + readBytes(file, last.end() - sizeBehind, sizeBehind);
    const auto tables = paginate(before, packet.size(), behind);
    if (body.size() < sizeOfSegments(before) + packet.size() + sizeBehind)
        return false;
    const QByteArray pages = renderPages(tables, body, *found);
    const qint64 end = last.end();
    file.insert(TagLibText::toByteVector(pages), first.offset, std::size_t(end - first.offset));

    if (tables.size() == found->pages.size())
        return true;
    const auto difference = static_cast<quint32>(tables.size() - found->pages.size());
    Page newLast = last;
    newLast.offset += first.offset + pages.size() - end;
    renumberPages(file, newLast, difference);
    return true;
}
