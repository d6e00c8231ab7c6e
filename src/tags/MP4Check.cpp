#include "tags/MP4Check.h"

#include <QCoreApplication>
#include <taglib/mp4atom.h>

// <mp4atom.h> takes File for TagLib::File only where TagLib::MP4::File is not declared.
using namespace TagLib;

namespace {

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
