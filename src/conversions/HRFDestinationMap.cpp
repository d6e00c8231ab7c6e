#include "conversions/HRFDestinationMap.h"

#include "operations/HRFFileReference+Locations.h"

#include <climits>

#include <cerrno>
#include <sys/stat.h>

namespace {

bool hasOverlongName(const QByteArray &path)
{
    return path.size() - path.lastIndexOf('/') - 1 > NAME_MAX;
}

/// 0 for a folder, ENOENT for nothing, else the errno of making something below it.
int obstacleBelow(const HRFFileReference &folder)
{
    struct stat status{};
    if (::stat(folder.nativePath().constData(), &status) == 0)
        return S_ISDIR(status.st_mode) ? 0 : ENOTDIR;
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

int HRFDestinationMap::obstacleTo(const HRFFileReference &place, const HRFFileReference &file)
{
    if (hasOverlongName(place.nativePath()))
        return ENAMETOOLONG;
    const bool staysInPlace = m_kind == HRFTransfer::Kind::Move && place == file;
    return staysInPlace ? 0 : obstacleAt(place, file);
}

int HRFDestinationMap::obstacleAt(const HRFFileReference &place, const HRFFileReference &file)
{
    const auto known = m_isTaken.constFind(place.nativePath());
    if (known != m_isTaken.cend())
        return *known ? EEXIST : 0;
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
    const auto found = m_folders.constFind(folder.nativePath());
    if (found != m_folders.cend())
        return *found;
    return *m_folders.insert(folder.nativePath(), obstacleBelow(folder));
}

std::pair<HRFFileReference, int> HRFDestinationMap::numberedPlaceFor(const HRFFileReference &place,
                                                                     const HRFFileReference &file)
{
    for (int number = 2; number <= HRFLastNumberOfName; ++number) {
        const HRFFileReference numbered = numberedURL(place, number);
        if (const int obstacle = obstacleTo(numbered, file); obstacle != EEXIST)
            return {numbered, obstacle};
    }
    return {place, EEXIST};
}

void HRFDestinationMap::take(const HRFFileReference &place, const HRFFileReference &file,
                             bool replaces)
{
    if (m_kind == HRFTransfer::Kind::Move)
        m_isTaken.insert(file.nativePath(), false);
    m_isTaken.insert(place.nativePath(), true);
    if (replaces)
        m_replaced.insert(place.nativePath());
}
