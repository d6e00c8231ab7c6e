#include "operations/HRFFileManager.h"

#include "kit/HRFFileReferenceTable.h"
#include "operations/HRFExclusiveRename.h"

#include <QCoreApplication>

#include <array>
#include <cerrno>
#include <cstdio>
#include <sys/stat.h>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFFileManager", text);
}

struct FileCode
{
    int failure;
    int code;
};

constexpr std::array fileCodes{
    FileCode{EEXIST, HRFFileErrorCode::writeFileExists},
    FileCode{EACCES, HRFFileErrorCode::writeNoPermission},
    FileCode{EPERM, HRFFileErrorCode::writeNoPermission},
    FileCode{EROFS, HRFFileErrorCode::writeNoPermission},
    FileCode{ENOENT, HRFFileErrorCode::noSuchFile},
};

QString reasonFor(int failure, const HRFFileReference &destination)
{
    if (failure == EEXIST)
        return tr("An item named “%1” already exists in this location.")
            .arg(destination.displayName());
    if (failure == ENAMETOOLONG)
        return tr("The name is too long.");
    return HRFError::fromErrno(failure).description;
}

HRFError moveError(int failure, const HRFFileReference &source, const HRFFileReference &destination)
{
    HRFError error = HRFError::fromErrno(failure);
    for (const FileCode &row : fileCodes) {
        if (row.failure != failure)
            continue;
        error.underlying = std::make_shared<const HRFError>(error);
        error.domain = QString::fromLatin1(HRFFileErrorDomain);
        error.code = row.code;
    }
    error.description =
        tr("“%1” could not be moved to “%2”").arg(source.displayName(), destination.displayName());
    error.recoverySuggestion = reasonFor(failure, destination);
    error.path = source.displayPath();
    return error;
}

/// Whether two paths differ in letter case at most and lead to one item: on file systems that do
/// not tell case apart, an item is in the way of itself.
bool isSameItem(const HRFFileReference &one, const HRFFileReference &other)
{
    struct stat first{};
    struct stat second{};
    return one.displayPath().compare(other.displayPath(), Qt::CaseInsensitive) == 0
        && ::lstat(one.nativePath().constData(), &first) == 0
        && ::lstat(other.nativePath().constData(), &second) == 0 && first.st_dev == second.st_dev
        && first.st_ino == second.st_ino;
}

/// 0, or an errno.
int rename(const HRFFileReference &source, const HRFFileReference &destination, bool replaces)
{
    const QByteArray &from = source.nativePath();
    const QByteArray &to = destination.nativePath();
    if (!replaces)
        return HRFExclusiveRename(from, to);
    return ::rename(from.constData(), to.constData()) == 0 ? 0 : errno;
}

/// The path with a number behind the base name: "a 2.mp3".
HRFFileReference numbered(const HRFFileReference &file, int number)
{
    const QByteArray &path = file.nativePath();
    const qsizetype name = path.lastIndexOf('/') + 1;
    const qsizetype dot = path.lastIndexOf('.');
    const qsizetype baseEnd = dot > name ? dot : path.size();
    return HRFFileReference::fromNativePath(path.first(baseEnd) + ' ' + QByteArray::number(number)
                                            + '.'
                                            + path.sliced(std::min(baseEnd + 1, path.size())));
}

} // namespace

HRFResult<HRFFileReference> HRFFileManager::moveItemAtURL(const HRFFileReference &source,
                                                          const HRFFileReference &destination)
{
    const bool replaces =
        m_fileExistsRecovery == HRFFileExistsRecovery::Replace || isSameItem(source, destination);
    HRFFileReference place = destination;
    int failure = rename(source, place, replaces);
    if (m_fileExistsRecovery == HRFFileExistsRecovery::KeepBoth) {
        constexpr int lastNumber = 999;
        for (int number = 2; failure == EEXIST && number <= lastNumber; ++number) {
            place = numbered(destination, number);
            failure = rename(source, place, false);
        }
    }
    if (failure != 0)
        return std::unexpected(moveError(failure, source, place));
    HRFFileReferenceTable::fileDidMove(source, place);
    return place;
}
