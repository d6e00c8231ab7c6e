#include "kit/HRFItemAttributes.h"

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <array>
#include <cerrno>
#include <linux/limits.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr const char *accessControlList = "system.posix_acl_access";
/// Others describe the place of a file rather than the file.
constexpr std::array keptPrefixes{"user.", "system.posix_acl_"};
/// Told of what a file system does not know, and of what a user may not set.
constexpr std::array refusals{EPERM, EACCES, EOPNOTSUPP, ENOSYS, EINVAL};

int unlessRefused(int status)
{
    const bool isRefused = std::ranges::find(refusals, errno) != refusals.end();
    return status == 0 || isRefused ? 0 : errno;
}

bool isKept(const QByteArray &name)
{
    return std::ranges::any_of(keptPrefixes,
                               [&name](const char *prefix) { return name.startsWith(prefix); });
}

int keepExtendedAttribute(int original, int copy, const QByteArray &name)
{
    QByteArray value(XATTR_SIZE_MAX, Qt::Uninitialized);
    const ssize_t size =
        ::fgetxattr(original, name.constData(), value.data(), std::size_t(value.size()));
    if (size < 0)
        return errno;
    return unlessRefused(
        ::fsetxattr(copy, name.constData(), value.constData(), std::size_t(size), 0));
}

int keepExtendedAttributes(int original, int copy)
{
    // The copy may have got a list from its folder; there often is none to remove.
    ::fremovexattr(copy, accessControlList);
    QByteArray names(XATTR_LIST_MAX, Qt::Uninitialized);
    const ssize_t size = ::flistxattr(original, names.data(), std::size_t(names.size()));
    if (size < 0)
        return unlessRefused(-1);
    for (const QByteArray &name : names.first(size).split('\0')) {
        const int failure = isKept(name) ? keepExtendedAttribute(original, copy, name) : 0;
        if (failure != 0)
            return failure;
    }
    return 0;
}

/// Whether the copy belongs to the owner of the original now; else perhaps to its group.
bool keepOwner(const struct stat &status, int copy)
{
    if (::fchown(copy, status.st_uid, status.st_gid) == 0)
        return true;
    constexpr auto asItIs = uid_t(-1);
    return ::fchown(copy, asItIs, status.st_gid) == 0 && status.st_uid == ::geteuid();
}

} // namespace

int HRFKeepAttributes(int original, const struct stat &status, int copy)
{
    // A change of the owner takes away rights, a list of access rights changes the mode, and every
    // change touches the times.
    constexpr mode_t rights = 0777;
    constexpr mode_t rightsAndIdentity = 07777;
    const mode_t mode = status.st_mode & (keepOwner(status, copy) ? rightsAndIdentity : rights);
    const std::array times{status.st_atim, status.st_mtim};
    int failure = keepExtendedAttributes(original, copy);
    if (failure == 0)
        failure = unlessRefused(::fchmod(copy, mode));
    if (failure == 0)
        failure = unlessRefused(::futimens(copy, times.data()));
    return failure;
}
