#include "tags/MP4Nesting.h"

#include "tags/HRFTagStream.h"

#include <QCoreApplication>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <vector>

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
    std::span<const char> read(qint64 offset);
    /// How far behind the header the first atom in a container begins; negative for other atoms.
    int childrenOffset(std::string_view name, qint64 offset);

    HRFTagStream &m_stream;
    const qint64 m_length;
    qint64 m_offset = 0;
    std::array<char, 8> m_header{}; ///< read last
    std::vector<qint64> m_ends; ///< of the containers around the offset
};

/// The name in an atom's header; empty when that is cut off.
std::string_view nameInHeader(std::span<const char> header)
{
    return header.size() < 8 ? std::string_view() : std::string_view(header.data() + 4, 4);
}

bool contains(std::span<const std::string_view> names, std::string_view name)
{
    return std::ranges::find(names, name) != names.end();
}

bool AtomWalk::next()
{
    while (!m_ends.empty() && m_offset >= m_ends.back())
        m_ends.pop_back();
    const std::span<const char> header = read(m_offset);
    if (header.size() < 8)
        return false;
    std::array<char, 4> name{};
    std::ranges::copy(nameInHeader(header), name.begin());
    qint64 headerSize = 8;
    qint64 size = qFromBigEndian<quint32>(header.data());
    if (size == 0) {
        size = m_length - m_offset;
    } else if (size == 1) {
        const std::span<const char> bytes = read(m_offset + headerSize);
        size = bytes.size() < 8 ? 0 : qFromBigEndian<qint64>(bytes.data());
        headerSize = 16;
    }
    if (size < 8 || size > m_length - m_offset)
        return false;
    const int children = childrenOffset({name.data(), name.size()}, m_offset + headerSize);
    if (children >= 0)
        m_ends.push_back(m_offset + size);
    m_offset += children >= 0 ? headerSize + children : size;
    return true;
}

std::span<const char> AtomWalk::read(qint64 offset)
{
    return std::span(m_header).first(m_stream.readAt(offset, m_header));
}

int AtomWalk::childrenOffset(std::string_view name, qint64 offset)
{
    static constexpr std::string_view containers[] = {"moov", "udta", "mdia", "ilst", "stbl",
                                                      "minf", "moof", "traf", "trak"};
    // Without version and flags, which it should have, a "meta" atom begins with one of these.
    static constexpr std::string_view firstInMeta[] = {"hdlr", "ilst", "mhdr", "ctry", "lang"};
    if (contains(containers, name))
        return 0;
    if (name == "meta")
        return contains(firstInMeta, nameInHeader(read(offset))) ? 0 : 4;
    return name == "stsd" ? 8 : -1;
}

} // namespace

QString MP4ObstacleToOpening(HRFTagStream &stream)
{
    AtomWalk walk(stream);
    for (int count = 0; walk.next(); ++count)
        if (count == largestCount || walk.level() > deepestLevel)
            return QCoreApplication::translate("MP4Nesting", "It has too many atoms.");
    return {};
}
