#include "operations/HRFTransfer.h"

#include "operations/HRFFileReference+Locations.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cerrno>

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

/// An item keeps its name on the way to another folder, or gets another one.
QString description(const HRFTransfer &transfer)
{
    const bool isCopy = transfer.kind == HRFTransfer::Kind::Copy;
    const QString name = transfer.source.displayName();
    const QString newName = transfer.destination.displayName();
    if (name != newName) {
        const QString text =
            isCopy ? tr("“%1” could not be copied to “%2”") : tr("“%1” could not be moved to “%2”");
        return text.arg(name, newName);
    }
    const QString text = isCopy ? tr("“%1” could not be copied to the folder “%2”")
                                : tr("“%1” could not be moved to the folder “%2”");
    return text.arg(name, parentURL(transfer.destination).displayPath());
}

QString reason(const HRFTransfer &transfer, int failure)
{
    switch (failure) {
    case EEXIST:
        return tr("An item named “%1” already exists in this location.")
            .arg(transfer.destination.displayName());
    case ENAMETOOLONG:
        return tr("The name is too long.");
    case EBUSY:
        return tr("Another program uses or changes the item.");
    default:
        return HRFError::fromErrno(failure).description;
    }
}

} // namespace

int HRFFileErrorCodeForErrno(int failure)
{
    const auto *row = std::ranges::find(fileCodes, failure, &FileCode::failure);
    return row == fileCodes.end() ? 0 : row->code;
}

HRFError HRFErrorForTransfer(const HRFTransfer &transfer, int failure)
{
    HRFError error = HRFError::fromErrno(failure);
    if (const int code = HRFFileErrorCodeForErrno(failure); code != 0) {
        error.underlying = std::make_shared<const HRFError>(error);
        error.domain = QString::fromLatin1(HRFFileErrorDomain);
        error.code = code;
    }
    error.description = description(transfer);
    error.recoverySuggestion = reason(transfer, failure);
    error.path = transfer.source.displayPath();
    return error;
}

bool HRFIsFileExistsError(const HRFError &error)
{
    return error.domain == QLatin1StringView(HRFFileErrorDomain)
        && error.code == HRFFileErrorCode::writeFileExists;
}
