#include "tags/HRFFileReplacement.h"

#include "kit/HRFFileReferenceTable.h"
#include "kit/HRFItemAttributes.h"

#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <linux/limits.h>
#include <linux/magic.h>
#include <sys/vfs.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr mode_t onlyForOwner = 0600;

QByteArray pathWithoutLinks(const QByteArray &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.constData(), nullptr),
                                                           &std::free);
    return real.get();
}

/// A hidden name that nothing else has, beside a file.
QByteArray temporaryPathBeside(const QByteArray &path)
{
    constexpr int base = 36;
    return path.first(path.lastIndexOf('/') + 1) + ".lirra-"
        + QByteArray::number(QRandomGenerator::system()->generate64(), base);
}

bool isSameVersion(const struct stat &left, const struct stat &right)
{
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino
        && left.st_size == right.st_size && left.st_mtim.tv_sec == right.st_mtim.tv_sec
        && left.st_mtim.tv_nsec == right.st_mtim.tv_nsec && left.st_nlink == right.st_nlink;
}

/// Whether what is written to a file system reaches the disk before a later change of names,
/// without waiting for the journal, which would take many times as long.
bool keepsOrder(int descriptor)
{
    constexpr std::array journals{EXT4_SUPER_MAGIC, XFS_SUPER_MAGIC};
    struct statfs system{};
    return ::fstatfs(descriptor, &system) == 0
        && std::ranges::find(journals, system.f_type) != journals.end();
}

/// Without this, a power failure could leave the new file without its contents.
bool flush(int descriptor)
{
    constexpr unsigned int writeAndWait =
        SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER;
    if (keepsOrder(descriptor))
        return ::sync_file_range(descriptor, 0, 0, writeAndWait) == 0;
    // Network file systems report some failures only when a descriptor is closed.
    return ::fsync(descriptor) == 0 && ::close(::dup(descriptor)) == 0;
}

QByteArrayList extendedAttributesOf(int descriptor)
{
    QByteArray names(XATTR_LIST_MAX, Qt::Uninitialized);
    const ssize_t size = ::flistxattr(descriptor, names.data(), std::size_t(names.size()));
    return names.first(std::max<ssize_t>(size, 0)).split('\0');
}

} // namespace

std::unique_ptr<HRFFileReplacement> HRFFileReplacement::begin(const QByteArray &path, int original)
{
    struct stat status{};
    if (::fstat(original, &status) != 0 || status.st_nlink != 1)
        return nullptr;
    std::unique_ptr<HRFFileReplacement> replacement(
        new HRFFileReplacement(pathWithoutLinks(path), original, status));
    const bool isReady = replacement->isOriginalAt(replacement->m_path) && replacement->open()
        && replacement->keepAttributes();
    return isReady ? std::move(replacement) : nullptr;
}

HRFFileReplacement::HRFFileReplacement(QByteArray path, int original, const struct stat &status)
    : m_path(std::move(path))
    , m_original(original)
    , m_status(status)
    , m_temporaryPath(temporaryPathBeside(m_path))
{
}

HRFFileReplacement::~HRFFileReplacement()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    if (m_hasName)
        ::unlink(m_temporaryPath.constData());
}

/// A file without a name leaves nothing when the program is killed. Not every file system has such.
bool HRFFileReplacement::open()
{
    const QByteArray folder = m_path.first(m_path.lastIndexOf('/') + 1);
    m_descriptor = ::open(folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, onlyForOwner);
    if (m_descriptor >= 0)
        return true;
    m_descriptor =
        ::open(m_temporaryPath.constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, onlyForOwner);
    m_hasName = m_descriptor >= 0;
    return m_hasName;
}

bool HRFFileReplacement::keepAttributes()
{
    struct stat kept{};
    if (HRFKeepAttributes(m_original, m_status, m_descriptor) != 0
        || ::fstat(m_descriptor, &kept) != 0)
        return false;
    const QByteArrayList names = extendedAttributesOf(m_descriptor);
    return kept.st_uid == m_status.st_uid && kept.st_gid == m_status.st_gid
        && kept.st_mode == m_status.st_mode
        && std::ranges::all_of(extendedAttributesOf(m_original),
                               [&names](const QByteArray &name) { return names.contains(name); });
}

bool HRFFileReplacement::isOriginalAt(const QByteArray &path) const
{
    struct stat now{};
    return ::lstat(path.constData(), &now) == 0 && isSameVersion(now, m_status);
}

bool HRFFileReplacement::giveName()
{
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(m_descriptor);
    m_hasName = m_hasName
        || ::linkat(AT_FDCWD, self.constData(), AT_FDCWD, m_temporaryPath.constData(),
                    AT_SYMLINK_FOLLOW)
            == 0;
    return m_hasName;
}

/// Unlike a plain renaming, an exchange shows what it has replaced: somebody may have renamed the
/// old file, or put another in its place, since the last look.
bool HRFFileReplacement::exchange()
{
    const auto swapNames = [this] {
        return ::renameat2(AT_FDCWD, m_temporaryPath.constData(), AT_FDCWD, m_path.constData(),
                           RENAME_EXCHANGE)
            == 0;
    };
    if (!swapNames())
        return false;
    if (isOriginalAt(m_temporaryPath)) {
        ::unlink(m_temporaryPath.constData());
        m_hasName = false;
        return true;
    }
    m_hasName = swapNames(); // else the temporary name is that of what was found
    return false;
}

bool HRFFileReplacement::takePlace()
{
    if (!flush(m_descriptor) || !isOriginalAt(m_path) || !giveName())
        return false;
    HRFFileReferenceTable::fileWillReplace(m_descriptor, m_original);
    const bool hasReplaced = exchange();
    HRFFileReferenceTable::fileDidReplace(m_descriptor, m_original, hasReplaced);
    return hasReplaced;
}

int HRFFileReplacement::releaseDescriptor()
{
    return std::exchange(m_descriptor, -1);
}
