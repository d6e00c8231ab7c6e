#include "kit/HRFDescriptor.h"
#include "operations/HRFFileReference+Access.h"

#include <cerrno>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

namespace {

constexpr int protections = FS_IMMUTABLE_FL | FS_APPEND_FL | FS_NODUMP_FL;

std::unexpected<HRFError> lastError()
{
    return std::unexpected(HRFError::fromErrno(errno));
}

bool isAccessible(const HRFFileReference &file, int right)
{
    return ::faccessat(AT_FDCWD, file.nativePath().constData(), right, AT_EACCESS) == 0;
}

} // namespace

bool isLocked(const HRFFileReference &file)
{
    struct statx status{};
    const int failure =
        ::statx(AT_FDCWD, file.nativePath().constData(), AT_SYMLINK_NOFOLLOW, 0, &status);
    return failure == 0 && (status.stx_attributes & STATX_ATTR_IMMUTABLE) != 0;
}

HRFResult<void> setLocked(const HRFFileReference &file, bool isLocked)
{
    const HRFDescriptor opened(
        ::open(file.nativePath().constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    int flags = 0;
    if (!opened.isOpen() || ::ioctl(opened.get(), FS_IOC_GETFLAGS, &flags) != 0)
        return lastError();
    flags = (flags & ~protections) | (isLocked ? FS_IMMUTABLE_FL : 0);
    if (::ioctl(opened.get(), FS_IOC_SETFLAGS, &flags) != 0)
        return lastError();
    return {};
}

bool isAccessibleForReading(const HRFFileReference &file)
{
    return isAccessible(file, R_OK);
}

bool isAccessibleForWriting(const HRFFileReference &file)
{
    return isAccessible(file, W_OK);
}
