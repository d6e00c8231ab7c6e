#include "tags/HRFFileReplacement.h"

#include "kit/HRFFileReferenceTable.h"
#include "kit/HRFItemAttributes.h"

#include <QRandomGenerator>

#include <array>
#include <cstdlib>
#include <fcntl.h>
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

/// Lets the contents reach the disk before the name does: else a power failure could leave the name
/// without them. Waiting for the file system's journal as well would take many times as long.
bool flush(int descriptor)
{
    constexpr unsigned int writeAndWait =
        SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER;
    return ::sync_file_range(descriptor, 0, 0, writeAndWait) == 0 || ::fsync(descriptor) == 0;
}

} // namespace

std::unique_ptr<HRFFileReplacement> HRFFileReplacement::begin(const QByteArray &path, int original)
{
    struct stat status{};
    if (::fstat(original, &status) != 0 || status.st_nlink != 1)
        return nullptr;
    std::unique_ptr<HRFFileReplacement> replacement(
        new HRFFileReplacement(pathWithoutLinks(path), original, status));
    return replacement->isOriginalUnchanged() && replacement->open() ? std::move(replacement)
                                                                     : nullptr;
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

bool HRFFileReplacement::isOriginalUnchanged() const
{
    struct stat now{};
    return ::stat(m_path.constData(), &now) == 0 && isSameVersion(now, m_status);
}

bool HRFFileReplacement::keepAttributes()
{
    struct stat kept{};
    if (HRFKeepAttributes(m_original, m_status, m_descriptor) != 0
        || ::fstat(m_descriptor, &kept) != 0)
        return false;
    const std::array changedNow{timespec{.tv_sec = 0, .tv_nsec = UTIME_OMIT},
                                timespec{.tv_sec = 0, .tv_nsec = UTIME_NOW}};
    return kept.st_uid == m_status.st_uid && kept.st_gid == m_status.st_gid
        && kept.st_mode == m_status.st_mode && ::futimens(m_descriptor, changedNow.data()) == 0;
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

bool HRFFileReplacement::takePlace()
{
    if (!keepAttributes() || !flush(m_descriptor) || !giveName() || !isOriginalUnchanged()
        || HRFFileReferenceTable::replaceFile(m_temporaryPath, m_path) != 0)
        return false;
    m_hasName = false;
    return true;
}

int HRFFileReplacement::releaseDescriptor()
{
    return std::exchange(m_descriptor, -1);
}
