#include "operations/HRFItemCopy.h"

#include "kit/HRFDescriptor.h"
#include "kit/HRFItemAttributes.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

namespace {

int resultOf(int status)
{
    return status == 0 ? 0 : errno;
}

int writeAll(int copy, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t count = ::write(copy, bytes.data(), std::size_t(bytes.size()));
        if (count < 0 && errno != EINTR)
            return errno;
        bytes = bytes.sliced(std::max<ssize_t>(count, 0));
    }
    return 0;
}

int copyBytes(int original, int copy)
{
    // Some file systems let files share their bytes until one of them is changed.
    if (::ioctl(copy, FICLONE, original) == 0)
        return 0;
    constexpr qsizetype pieceSize = 1 << 17;
    QByteArray piece(pieceSize, Qt::Uninitialized);
    for (;;) {
        const ssize_t count = ::read(original, piece.data(), std::size_t(pieceSize));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0 ? 0 : errno;
        const int failure = writeAll(copy, QByteArrayView(piece).first(count));
        if (failure != 0)
            return failure;
    }
}

bool hasChanged(int original, const struct stat &before)
{
    struct stat now{};
    return ::fstat(original, &now) != 0 || now.st_size != before.st_size
        || now.st_mtim.tv_sec != before.st_mtim.tv_sec
        || now.st_mtim.tv_nsec != before.st_mtim.tv_nsec;
}

int copyFile(const QByteArray &from, const QByteArray &to, const struct stat &status)
{
    constexpr mode_t onlyForOwner = 0600;
    const HRFDescriptor original(
        ::open(from.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    if (!original.isOpen())
        return errno;
    const HRFDescriptor copy(
        ::open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, onlyForOwner));
    if (!copy.isOpen())
        return errno;
    int failure = copyBytes(original.get(), copy.get());
    if (failure == 0 && hasChanged(original.get(), status))
        failure = EBUSY;
    if (failure == 0)
        failure = HRFKeepAttributes(original.get(), status, copy.get());
    return failure == 0 ? resultOf(::fsync(copy.get())) : failure;
}

int copyLink(const QByteArray &from, const QByteArray &to, const struct stat &status)
{
    QByteArray target(PATH_MAX, '\0');
    if (::readlink(from.constData(), target.data(), PATH_MAX - 1) < 0)
        return errno;
    if (::symlink(target.constData(), to.constData()) != 0)
        return errno;
    const std::array times{status.st_atim, status.st_mtim};
    // It is the same link without them.
    if (::lchown(to.constData(), status.st_uid, status.st_gid) != 0
        || ::utimensat(AT_FDCWD, to.constData(), times.data(), AT_SYMLINK_NOFOLLOW) != 0)
        qInfo("Owner or times of the link %s were not kept", from.constData());
    return 0;
}

int copyContents(const QByteArray &from, const QByteArray &to)
{
    using Iterator = std::filesystem::directory_iterator;
    std::error_code listing;
    for (auto entry = Iterator(from.toStdString(), listing); !listing && entry != Iterator();
         entry.increment(listing)) {
        const QByteArray name = '/' + QByteArray::fromStdString(entry->path().filename().string());
        const int failure = HRFCopyItem(from + name, to + name);
        if (failure != 0)
            return failure;
    }
    return listing.value();
}

int copyFolder(const QByteArray &from, const QByteArray &to, const struct stat &status)
{
    constexpr mode_t onlyForOwner = 0700;
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NOFOLLOW;
    const HRFDescriptor original(::open(from.constData(), flags));
    if (!original.isOpen() || ::mkdir(to.constData(), onlyForOwner) != 0)
        return errno;
    const HRFDescriptor copy(::open(to.constData(), flags));
    if (!copy.isOpen())
        return errno;
    int failure = copyContents(from, to);
    if (failure == 0)
        failure = HRFKeepAttributes(original.get(), status, copy.get());
    return failure == 0 ? resultOf(::fsync(copy.get())) : failure;
}

struct CopyByKind
{
    mode_t kind;
    int (*copy)(const QByteArray &, const QByteArray &, const struct stat &);
};

constexpr std::array copies{
    CopyByKind{S_IFREG, copyFile},
    CopyByKind{S_IFLNK, copyLink},
    CopyByKind{S_IFDIR, copyFolder},
};

} // namespace

int HRFCopyItem(const QByteArray &from, const QByteArray &to)
{
    struct stat status{};
    if (::lstat(from.constData(), &status) != 0)
        return errno;
    const auto *row = std::ranges::find(copies, status.st_mode & S_IFMT, &CopyByKind::kind);
    return row == copies.end() ? EOPNOTSUPP : row->copy(from, to, status);
}
