#include "operations/HRFItemMove.h"

#include "kit/HRFDescriptor.h"
#include "operations/HRFExclusiveRename.h"
#include "operations/HRFItemCopy.h"

#include <QString>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr char unfinishedPrefix[] = ".lirra-";
constexpr char unfinishedPlaceholder[] = "XXXXXX";

int removeItem(const QByteArray &path)
{
    std::error_code failure;
    fs::remove_all(path.toStdString(), failure);
    return failure.value();
}

QByteArray folderOf(const QByteArray &path)
{
    return path.first(path.lastIndexOf('/') + 1) + '.';
}

/// An empty folder beside an item, removed with all that is in it at the end of the scope.
class TemporaryFolder
{
public:
    explicit TemporaryFolder(const QByteArray &item)
        : m_path(folderOf(item) + '/' + unfinishedPrefix + unfinishedPlaceholder)
    {
        m_failure = ::mkdtemp(m_path.data()) != nullptr ? 0 : errno;
    }
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;
    ~TemporaryFolder()
    {
        if (m_failure == 0 && removeItem(m_path) != 0)
            qWarning("Failed to remove temp directory after atomic copy: %s", m_path.constData());
    }

    int failure() const { return m_failure; }
    /// Without an extension, so that nobody takes an unfinished file for an audio file.
    QByteArray item() const { return m_path + "/item"; }

private:
    QByteArray m_path;
    int m_failure = 0;
};

bool isFolder(const QByteArray &path)
{
    struct stat status{};
    return ::lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// Whether an item is to be copied into itself.
bool leadsInto(const QByteArray &path, const QByteArray &item)
{
    std::error_code failure;
    const fs::path folder = fs::canonical(folderOf(path).toStdString(), failure);
    const fs::path outer = fs::canonical(item.toStdString(), failure);
    return isFolder(item) && !failure && std::ranges::mismatch(outer, folder).in1 == outer.end();
}

int renameItem(const QByteArray &from, const QByteArray &to, bool replaces)
{
    if (!replaces)
        return HRFExclusiveRename(from, to);
    return ::rename(from.constData(), to.constData()) == 0 ? 0 : errno;
}

int flushFolderOf(const QByteArray &path)
{
    const HRFDescriptor folder(
        ::open(folderOf(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen())
        return errno;
    // Some file systems cannot do it for folders.
    return ::fsync(folder.get()) == 0 || errno == EINVAL ? 0 : errno;
}

int copyAndRename(const QByteArray &from, const QByteArray &to, bool replaces)
{
    const TemporaryFolder temporary(to);
    int failure = temporary.failure();
    if (failure == 0)
        failure = HRFCopyItem(from, temporary.item());
    return failure == 0 ? renameItem(temporary.item(), to, replaces) : failure;
}

/// 0, or an errno: that of a removal that would fail, or EBUSY when the item is another one, or
/// another program has written to it. A file system that is mounted twice may show a new copy at
/// the old path.
int obstacleToRemoving(const QByteArray &path, const struct stat &before)
{
    struct stat now{};
    if (::faccessat(AT_FDCWD, folderOf(path).constData(), W_OK | X_OK, AT_EACCESS) != 0
        || ::lstat(path.constData(), &now) != 0)
        return errno;
    const bool isUnchanged = now.st_dev == before.st_dev && now.st_ino == before.st_ino
        && now.st_size == before.st_size && now.st_mtim.tv_sec == before.st_mtim.tv_sec
        && now.st_mtim.tv_nsec == before.st_mtim.tv_nsec;
    return isUnchanged ? 0 : EBUSY;
}

int moveAcrossFileSystems(const QByteArray &from, const QByteArray &to, bool replaces)
{
    struct stat before{};
    if (::lstat(from.constData(), &before) != 0)
        return errno;
    int failure = obstacleToRemoving(from, before);
    if (failure == 0)
        failure = HRFCopyItemIntoPlace(from, to, replaces);
    if (failure != 0)
        return failure;
    failure = obstacleToRemoving(from, before);
    if (failure == 0)
        failure = removeItem(from);
    // Part of a folder may have gone; its copy is whole, and must stay then. So must a copy that
    // has taken the place of something.
    if (failure != 0 && !replaces && !S_ISDIR(before.st_mode))
        removeItem(to);
    return failure;
}

/// Whether two paths are one entry of a folder. On file systems that do not tell case apart, an
/// item is in the way of itself.
bool isSameEntry(const QByteArray &one, const QByteArray &other)
{
    const auto isSame = [](const QByteArray &first, const QByteArray &second) {
        struct stat a{};
        struct stat b{};
        return ::lstat(first.constData(), &a) == 0 && ::lstat(second.constData(), &b) == 0
            && a.st_dev == b.st_dev && a.st_ino == b.st_ino;
    };
    const auto name = [](const QByteArray &path) {
        return QString::fromUtf8(path.sliced(path.lastIndexOf('/') + 1));
    };
    return name(one).compare(name(other), Qt::CaseInsensitive) == 0 && isSame(one, other)
        && isSame(folderOf(one), folderOf(other));
}

} // namespace

bool HRFIsNameOfUnfinishedWork(const QByteArray &name)
{
    return name.startsWith(unfinishedPrefix)
        && name.size()
        == QByteArrayView(unfinishedPrefix).size() + QByteArrayView(unfinishedPlaceholder).size();
}

int HRFCopyItemIntoPlace(const QByteArray &from, const QByteArray &to, bool replaces)
{
    struct stat status{};
    if (!replaces && ::lstat(to.constData(), &status) == 0)
        return EEXIST;
    if (leadsInto(to, from))
        return EINVAL;
    int failure = copyAndRename(from, to, replaces);
    if (failure != 0)
        return failure;
    failure = flushFolderOf(to);
    if (failure != 0 && !replaces)
        removeItem(to);
    return failure;
}

int HRFMoveItem(const QByteArray &from, const QByteArray &to, bool replaces)
{
    const bool isInPlace = isSameEntry(from, to);
    const int failure = renameItem(from, to, replaces || isInPlace);
    if (failure != EXDEV)
        return failure;
    // A folder may be mounted at two places.
    return isInPlace ? 0 : moveAcrossFileSystems(from, to, replaces);
}
