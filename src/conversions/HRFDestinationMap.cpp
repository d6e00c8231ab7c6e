#include "conversions/HRFDestinationMap.h"

#include "operations/HRFFileReference+Locations.h"

#include <climits>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

bool isOverlong(const QByteArray &path)
{
    return path.size() >= PATH_MAX || path.size() - path.lastIndexOf('/') - 1 > NAME_MAX;
}

/// 0, or why nothing can be made in a folder. One of the user's own is made writable for it.
int obstacleIn(const HRFFileReference &folder, const struct stat &status)
{
    if (!S_ISDIR(status.st_mode))
        return ENOTDIR;
    if (::faccessat(AT_FDCWD, folder.nativePath().constData(), W_OK | X_OK, AT_EACCESS) == 0)
        return 0;
    return errno == EACCES && status.st_uid == ::geteuid() ? 0 : errno;
}

/// 0 for a folder, ENOENT for nothing, else the errno of making something below it.
int obstacleBelow(const HRFFileReference &folder)
{
    struct stat status{};
    if (::stat(folder.nativePath().constData(), &status) == 0)
        return obstacleIn(folder, status);
    const int failure = errno;
    if (failure != ENOENT)
        return failure;
    if (::lstat(folder.nativePath().constData(), &status) == 0)
        return ENOTDIR; // a link that leads nowhere
    const HRFFileReference parent = parentURL(folder);
    const int above = parent == folder ? 0 : obstacleBelow(parent);
    return above == 0 ? ENOENT : above;
}

bool isSameItem(const HRFFileReference &one, const struct stat &other)
{
    struct stat status{};
    return ::lstat(one.nativePath().constData(), &status) == 0 && status.st_dev == other.st_dev
        && status.st_ino == other.st_ino;
}

} // namespace

/// As far as the folder exists, without links; the last name stays, be it that of a link.
HRFFileReference HRFDestinationMap::resolved(const HRFFileReference &item)
{
    const HRFFileReference folder = parentURL(item);
    auto found = m_resolvedFolders.constFind(folder.nativePath());
    if (found == m_resolvedFolders.cend()) {
        std::error_code failure;
        const fs::path path = fs::absolute(folder.nativePath().toStdString(), failure);
        const fs::path real = fs::weakly_canonical(path, failure);
        const auto bytes = QByteArray::fromStdString((failure ? path : real).native());
        found =
            m_resolvedFolders.insert(folder.nativePath(), HRFFileReference::fromNativePath(bytes));
    }
    const QByteArray &path = item.nativePath();
    const QByteArray &place = found->nativePath();
    return HRFFileReference::fromNativePath((place.endsWith('/') ? place : place + '/')
                                            + path.sliced(path.lastIndexOf('/') + 1));
}

void HRFDestinationMap::add(const HRFFileReference &file)
{
    m_isTaken.insert(resolved(file).nativePath(), true);
}

bool HRFDestinationMap::areSameButForCase(const HRFFileReference &one,
                                          const HRFFileReference &other)
{
    return differInCaseAtMost(resolved(one), resolved(other));
}

int HRFDestinationMap::obstacleTo(const HRFFileReference &place, const HRFFileReference &file)
{
    if (isOverlong(place.nativePath()))
        return ENAMETOOLONG;
    const HRFFileReference to = resolved(place);
    const HRFFileReference from = resolved(file);
    const bool staysInPlace = m_kind == HRFTransfer::Kind::Move && to == from;
    return staysInPlace ? 0 : obstacleAt(to, from);
}

int HRFDestinationMap::obstacleAt(const HRFFileReference &place, const HRFFileReference &file)
{
    const auto known = m_isTaken.constFind(place.nativePath());
    if (known != m_isTaken.cend())
        return *known ? EEXIST : 0;
    if (m_neededFolders.contains(place.nativePath()))
        return EEXIST;
    if (const int obstacle = obstacleInFolderOf(place); obstacle != 0)
        return obstacle == ENOENT ? 0 : obstacle;
    struct stat status{};
    if (::lstat(place.nativePath().constData(), &status) != 0)
        return errno == ENOENT ? 0 : errno;
    // Where file systems do not tell case apart, a file is in the way of itself.
    const bool isItself = m_kind == HRFTransfer::Kind::Move && differInCaseAtMost(place, file)
        && isSameItem(file, status);
    return isItself ? 0 : EEXIST;
}

int HRFDestinationMap::obstacleInFolderOf(const HRFFileReference &place)
{
    const HRFFileReference folder = parentURL(place);
    for (HRFFileReference above = folder; above.nativePath().size() > 1; above = parentURL(above))
        if (m_isTaken.value(above.nativePath()))
            return ENOTDIR;
    const auto found = m_folders.constFind(folder.nativePath());
    if (found != m_folders.cend())
        return *found;
    return *m_folders.insert(folder.nativePath(), obstacleBelow(folder));
}

bool HRFDestinationMap::isReplaceable(const HRFFileReference &place)
{
    const QByteArray path = resolved(place).nativePath();
    struct stat status{};
    const bool isFolder = ::lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
    return !isFolder && !m_isTaken.contains(path) && !m_neededFolders.contains(path);
}

std::pair<HRFFileReference, int> HRFDestinationMap::numberedPlaceFor(const HRFFileReference &place,
                                                                     const HRFFileReference &file)
{
    const QByteArray path = resolved(place).nativePath();
    // A file that has such a place itself may keep it.
    const bool isOneOfThem = m_numberedPlaces.contains(resolved(file).nativePath());
    const int last = isOneOfThem ? 1 : m_lastNumbers.value(path, 1);
    for (int number = last + 1; number <= HRFLastNumberOfName; ++number) {
        const HRFFileReference numbered = numberedURL(place, number);
        if (const int obstacle = obstacleTo(numbered, file); obstacle != EEXIST)
            return {numbered, obstacle};
        m_lastNumbers.insert(path, number);
        m_numberedPlaces.insert(resolved(numbered).nativePath(), path);
    }
    return {place, EEXIST};
}

void HRFDestinationMap::take(const HRFFileReference &place, const HRFFileReference &file)
{
    if (m_kind == HRFTransfer::Kind::Move)
        leave(resolved(file));
    const HRFFileReference taken = resolved(place);
    m_isTaken.insert(taken.nativePath(), true);
    for (auto folder = parentURL(taken); !m_neededFolders.contains(folder.nativePath());
         folder = parentURL(folder))
        m_neededFolders.insert(folder.nativePath());
}

void HRFDestinationMap::leave(const HRFFileReference &place)
{
    m_isTaken.insert(place.nativePath(), false);
    if (const QByteArray numbered = m_numberedPlaces.take(place.nativePath()); !numbered.isEmpty())
        m_lastNumbers.remove(numbered);
}
