#include "operations/HRFExclusiveRename.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Told of a file system without hard links, and of an item that must not have two names.
constexpr std::array cannotLink{EPERM, EOPNOTSUPP, ENOSYS, EMLINK};

int resultOf(int status)
{
    return status == 0 ? 0 : errno;
}

/// Another program may take the new name between the look and the renaming.
int renameAfterLooking(const QByteArray &from, const QByteArray &to)
{
    struct stat status{};
    if (::lstat(to.constData(), &status) == 0)
        return EEXIST;
    return resultOf(::rename(from.constData(), to.constData()));
}

} // namespace

int HRFExclusiveRename(const QByteArray &from, const QByteArray &to)
{
    const int failure = resultOf(
        ::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE));
    return failure == EINVAL || failure == ENOSYS ? HRFExclusiveRenameInSteps(from, to) : failure;
}

int HRFExclusiveRenameInSteps(const QByteArray &from, const QByteArray &to)
{
    // Unlike a renaming, a link never takes the place of something.
    const int failure = resultOf(::link(from.constData(), to.constData()));
    if (std::ranges::find(cannotLink, failure) != cannotLink.end())
        return renameAfterLooking(from, to);
    if (failure != 0)
        return failure;
    const int secondFailure = resultOf(::unlink(from.constData()));
    if (secondFailure != 0)
        ::unlink(to.constData()); // the old name is still there
    return secondFailure;
}
