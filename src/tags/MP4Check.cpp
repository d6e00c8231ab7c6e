#include "tags/MP4Check.h"

#include "tags/MP4FragmentIndex.h"

#include <QCoreApplication>
#include <taglib/mp4atom.h>

#include <algorithm>

// <mp4atom.h> takes File for TagLib::File only where TagLib::MP4::File is not declared.
using namespace TagLib;

namespace {

constexpr int entriesOffset = 16; ///< size, name, version and flags, number of entries

/// What an atom's size field of 32 bits holds instead of a size (ISO/IEC 14496-12 §4.2).
constexpr unsigned int sizeToEndOfFile = 0;
constexpr unsigned int sizeIn64Bits = 1;

QString tr(const char *text)
{
    return QCoreApplication::translate("MP4Check", text);
}

unsigned int numberAt(File &file, offset_t offset)
{
    file.seek(offset);
    return file.readBlock(4).toUInt();
}

bool hasSize(File &file, const MP4::Atom *atom, unsigned int size)
{
    return atom && numberAt(file, atom->offset()) == size;
}

bool childrenFit(const MP4::Atom &atom)
{
    const offset_t end = atom.offset() + atom.length();
    return std::ranges::all_of(atom.children(), [end](const MP4::Atom *child) {
        return child->offset() + child->length() <= end && childrenFit(*child);
    });
}

/// TagLib takes what runs past its parent for a part of it, and overlooks what follows: the zero
/// that ends a list of user data in QuickTime files hides the tracks behind it.
bool atomsAreNested(File &, const MP4::Atoms &atoms)
{
    return std::ranges::all_of(atoms.atoms(),
                               [](const MP4::Atom *atom) { return childrenFit(*atom); });
}

/// Whether every table of the given kind has room for the entries that it states.
bool tablesAreWhole(File &file, const MP4::Atom &movie, const char *name, qint64 entrySize)
{
    return std::ranges::all_of(movie.findall(name, true), [&](const MP4::Atom *table) {
        const qint64 count = numberAt(file, table->offset() + entriesOffset - 4);
        return entriesOffset + count * entrySize <= table->length()
            && table->offset() + table->length() <= file.length();
    });
}

/// With a chunk offset table (stco, co64: ISO/IEC 14496-12 §8.7.5) that states more entries than it
/// has room for, TagLib writes over what follows.
bool offsetsAreWhole(File &file, const MP4::Atoms &atoms)
{
    const MP4::Atom *movie = atoms.find("moov");
    return !movie
        || (tablesAreWhole(file, *movie, "stco", 4) && tablesAreWhole(file, *movie, "co64", 8));
}

/// TagLib adds to size fields, which makes a size of what is none.
bool sizesAreStated(File &file, const MP4::Atoms &atoms)
{
    return !hasSize(file, atoms.find("moov"), sizeToEndOfFile)
        && !hasSize(file, atoms.find("moov", "udta"), sizeToEndOfFile)
        && !hasSize(file, atoms.find("moov", "udta", "meta"), sizeToEndOfFile);
}

/// TagLib puts a new list behind the 8 bytes of a short header, and reads items behind these.
bool headersAreShort(File &file, const MP4::Atoms &atoms)
{
    const MP4::Atom *list = atoms.find("moov", "udta", "meta", "ilst");
    const auto isLong = [&file](const MP4::Atom *item) {
        return hasSize(file, item, sizeIn64Bits);
    };
    if (list)
        return std::ranges::none_of(list->children(), isLong);
    const MP4::Atom *userData = atoms.find("moov", "udta");
    return !isLong(userData ? userData : atoms.find("moov"));
}

/// The names of items may be numbers of keys instead (handler “mdta”: QuickTime File Format,
/// "Metadata"); TagLib neither reads nor writes those.
bool itemsAreNamed(File &file, const MP4::Atoms &atoms)
{
    MP4::Atom *meta = atoms.find("moov", "udta", "meta");
    if (!meta)
        return true;
    const MP4::Atom *handler = meta->find("hdlr");
    constexpr int kindOffset = 16; // ISO/IEC 14496-12 §8.4.3
    return !meta->find("keys")
        && (!handler
            || numberAt(file, handler->offset() + kindOffset) == ByteVector("mdir").toUInt());
}

constexpr struct
{
    bool (*isPassed)(File &file, const MP4::Atoms &atoms);
    const char *obstacle;
} checks[] = {
    {atomsAreNested,
     QT_TRANSLATE_NOOP("MP4Check", "One of its atoms runs past the end of the enclosing atom.")},
    {offsetsAreWhole, QT_TRANSLATE_NOOP("MP4Check", "Its table of chunk offsets is damaged.")},
    {sizesAreStated,
     QT_TRANSLATE_NOOP("MP4Check", "It does not state the size of the atom that holds the tags.")},
    {headersAreShort,
     QT_TRANSLATE_NOOP("MP4Check", "It states a size around the tags in 64 bits.")},
    {itemsAreNamed,
     QT_TRANSLATE_NOOP("MP4Check", "Its tags are of another kind, which cannot be changed.")},
};

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

/// Whether offsets in movie fragments are wrong once these have moved: TagLib corrects those in the
/// first one only (moof, tfhd: ISO/IEC 14496-12 §8.8.4, §8.8.7).
bool fragmentsAreFixed(File &file)
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
    return fragments > 1 && isPinned;
}

qint64 roomForMoving(File &file, const MP4::Atoms &atoms)
{
    const MP4::Atom *movie = atoms.find("moov");
    if (!movie)
        return INT64_MAX;
    qint64 last = 0;
    for (const MP4::Atom *table : movie->findall("stco", true)) {
        const unsigned int count = numberAt(file, table->offset() + entriesOffset - 4);
        const ByteVector entries = file.readBlock(std::size_t(count) * 4);
        for (unsigned int i = 0; i < entries.size(); i += 4)
            last = std::max<qint64>(last, entries.toUInt(i));
    }
    // What stands before the tags does not move.
    return last > movie->offset() ? UINT32_MAX - last : INT64_MAX;
}

} // namespace

MP4Layout MP4LayoutBeforeSaving(File &file)
{
    const MP4::Atoms atoms(&file);
    for (const auto &check : checks)
        if (!check.isPassed(file, atoms))
            return {.obstacle = tr(check.obstacle)};
    return {.obstacle = {}, .roomForMoving = roomForMoving(file, atoms)};
}

QString MP4FinishMoving(File &file, qint64 distance, qint64 room)
{
    if (distance > room)
        return tr("Its audio would move to where its chunk offsets of 32 bits do not reach.");
    if (distance != 0 && (fragmentsAreFixed(file) || !MP4MoveFragmentIndex(file, distance)))
        return tr("Its audio is in fragments that cannot be moved to make room for the tags.");
    return {};
}
