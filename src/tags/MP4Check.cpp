#include "tags/MP4Check.h"

#include "tags/HRFTagStream.h"

#include <QCoreApplication>
#include <taglib/mp4atom.h>

#include <algorithm>
#include <array>
#include <vector>

// <mp4atom.h> takes File for TagLib::File only where TagLib::MP4::File is not declared.
using namespace TagLib;

namespace {

constexpr std::size_t deepestLevel = 32; ///< "moov.trak.mdia.minf.stbl.stsd" is deep already
constexpr int largestCount = 1 << 19; ///< a day of audio in fragments of one second

/// Walks through the atoms in the order in which TagLib reads them.
class AtomWalk
{
public:
    explicit AtomWalk(HRFTagStream &stream) : m_stream(stream), m_length(stream.length()) { }

    /// Goes to the next atom, within the present one if that is a container; answers whether there
    /// is one.
    bool next();
    std::size_t level() const { return m_ends.size(); }

private:
    ByteVector read(qint64 offset);
    /// How far behind the header the first atom in a container begins; negative for other atoms.
    int childrenOffset(const ByteVector &name, qint64 offset);

    HRFTagStream &m_stream;
    const qint64 m_length;
    qint64 m_offset = 0;
    std::vector<qint64> m_ends; ///< of the containers around the offset
};

bool AtomWalk::next()
{
    while (!m_ends.empty() && m_offset >= m_ends.back())
        m_ends.pop_back();
    const ByteVector header = read(m_offset);
    if (header.size() < 8)
        return false;
    qint64 headerSize = 8;
    qint64 size = header.toUInt();
    if (size == 0) {
        size = m_length - m_offset;
    } else if (size == 1) {
        size = read(m_offset + headerSize).toLongLong();
        headerSize = 16;
    }
    if (size < 8 || size > m_length - m_offset)
        return false;
    const int children = childrenOffset(header.mid(4, 4), m_offset + headerSize);
    if (children >= 0)
        m_ends.push_back(m_offset + size);
    m_offset += children >= 0 ? headerSize + children : size;
    return true;
}

ByteVector AtomWalk::read(qint64 offset)
{
    m_stream.seek(offset, HRFTagStream::Beginning);
    return m_stream.readBlock(8);
}

int AtomWalk::childrenOffset(const ByteVector &name, qint64 offset)
{
    constexpr std::array containers = {"moov", "udta", "mdia", "ilst", "stbl",
                                       "minf", "moof", "traf", "trak"};
    // Without version and flags, which it should have, a "meta" atom begins with one of these.
    constexpr std::array firstInMeta = {"hdlr", "ilst", "mhdr", "ctry", "lang"};
    const auto isOneOf = [](const ByteVector &atom, const auto &names) {
        return std::ranges::any_of(names, [&atom](const char *each) { return atom == each; });
    };
    if (isOneOf(name, containers))
        return 0;
    if (name == "meta")
        return isOneOf(read(offset).mid(4, 4), firstInMeta) ? 0 : 4;
    return name == "stsd" ? 8 : -1;
}

constexpr int entriesOffset = 16; ///< size, name, version and flags, number of entries

/// Whether every table of the given kind has room for the entries that it states.
bool tablesAreWhole(File &file, const MP4::Atom &movie, const char *name, qint64 entrySize)
{
    for (const MP4::Atom *table : movie.findall(name, true)) {
        file.seek(table->offset() + entriesOffset - 4);
        const qint64 count = file.readBlock(4).toUInt();
        if (entriesOffset + count * entrySize > table->length()
            || table->offset() + table->length() > file.length())
            return false;
    }
    return true;
}

bool hasBaseDataOffset(File &file, const MP4::Atom &fragment)
{
    for (const MP4::Atom *header : fragment.findall("tfhd", true)) {
        constexpr int flagsOffset = 9;
        file.seek(header->offset() + flagsOffset);
        if ((file.readBlock(3).toUInt(0, 3, true) & 1) != 0)
            return true;
    }
    return false;
}

} // namespace

QString MP4ObstacleToOpening(HRFTagStream &stream)
{
    AtomWalk walk(stream);
    for (int count = 0; walk.next(); ++count)
        if (count == largestCount || walk.level() > deepestLevel)
            return QCoreApplication::translate("MP4Check", "It has too many atoms.");
    return {};
}

QString MP4ObstacleToSaving(File &file)
{
    const MP4::Atoms atoms(&file);
    const MP4::Atom *movie = atoms.find("moov");
    if (!movie
        || (tablesAreWhole(file, *movie, "stco", 4) && tablesAreWhole(file, *movie, "co64", 8)))
        return {};
    return QCoreApplication::translate("MP4Check", "Its table of chunk offsets is damaged.");
}

QString MP4ObstacleToMoving(File &file)
{
    const MP4::Atoms atoms(&file);
    int fragments = 0;
    bool isPinned = false;
    for (const MP4::Atom *atom : atoms.atoms()) {
        if (atom->name() != "moof")
            continue;
        ++fragments;
        isPinned = isPinned || hasBaseDataOffset(file, *atom);
    }
    if (fragments < 2 || !isPinned)
        return {};
    return QCoreApplication::translate(
        "MP4Check", "Its audio is in fragments that cannot be moved to make room for the tags.");
}
