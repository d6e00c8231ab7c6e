#include "tags/MP4FragmentIndex.h"

#include <taglib/mp4atom.h>

#include <algorithm>

using namespace TagLib;

namespace {

constexpr unsigned int headerSize = 8;

/// The atom is a tfra: ISO/IEC 14496-12 §8.8.10.
bool moveTable(ByteVector &table, qint64 distance)
{
    constexpr unsigned int entriesOffset = 24;
    if (table.size() < entriesOffset)
        return false;
    const unsigned int numberSize = table[headerSize] == 1 ? 8 : 4; // by version
    const unsigned int sizes = table.toUInt(16U);
    const unsigned int entrySize =
        2 * numberSize + 3 + ((sizes >> 4) & 3) + ((sizes >> 2) & 3) + (sizes & 3);
    const unsigned int count = table.toUInt(20U);
    if (count > (table.size() - entriesOffset) / entrySize)
        return false;
    for (unsigned int i = 0; i < count; ++i) {
        const unsigned int position = entriesOffset + i * entrySize + numberSize; // behind the time
        const bool isWide = numberSize == 8;
        const qint64 offset =
            (isWide ? table.toLongLong(position) : qint64(table.toUInt(position))) + distance;
        if (offset < 0 || (!isWide && offset > UINT32_MAX))
            return false;
        const ByteVector bytes = isWide ? ByteVector::fromLongLong(offset)
                                        : ByteVector::fromUInt(static_cast<unsigned int>(offset));
        std::ranges::copy(bytes, table.begin() + position);
    }
    return true;
}

} // namespace

bool MP4MoveFragmentIndex(File &file, qint64 distance)
{
    const MP4::Atoms atoms(&file);
    const MP4::Atom *index = atoms.find("mfra");
    if (!index)
        return true;
    const offset_t end = index->offset() + index->length();
    unsigned int size = 0;
    for (offset_t offset = index->offset() + headerSize; offset < end; offset += size) {
        file.seek(offset);
        const ByteVector header = file.readBlock(headerSize);
        size = header.toUInt();
        if (size < headerSize || offset + size > end)
            return false;
        if (!header.endsWith("tfra"))
            continue;
        file.seek(offset);
        ByteVector table = file.readBlock(size);
        if (!moveTable(table, distance))
            return false;
        file.seek(offset);
        file.writeBlock(table);
    }
    return true;
}
