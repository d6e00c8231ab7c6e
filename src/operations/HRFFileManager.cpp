#include "operations/HRFFileManager.h"

#include "kit/HRFFileReferenceTable.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserInteraction.h"
#include "operations/HRFFileReference+Access.h"
#include "operations/HRFFileReference+Locations.h"
#include "operations/HRFItemMove.h"

#include <QCoreApplication>
#include <climits>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <sys/stat.h>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFFileManager", text);
}

/// To be known before anything is touched.
bool hasOverlongName(const HRFFileReference &file)
{
    const QList<QByteArray> names = file.nativePath().split('/');
    return std::ranges::any_of(names,
                               [](const QByteArray &name) { return name.size() > NAME_MAX; });
}

/// 0, or an errno.
int runOnce(const HRFTransfer &transfer, bool replaces)
{
    const auto run = transfer.kind == HRFTransfer::Kind::Move ? HRFMoveItem : HRFCopyItemIntoPlace;
    return run(transfer.source.nativePath(), transfer.destination.nativePath(), replaces);
}

/// 0, or the failure that made it necessary.
int makeWritable(int failure, const HRFFileReference &folder)
{
    constexpr mode_t mode = 0755;
    return ::chmod(folder.nativePath().constData(), mode) == 0 ? 0 : failure;
}

void tellOfMove(const HRFTransfer &transfer)
{
    if (transfer.sourceURL.isEmpty())
        HRFFileReferenceTable::fileDidMove(transfer.source, transfer.destination);
    else
        HRFFileReferenceTable::fileWithURLDidMove(transfer.sourceURL, transfer.destination);
}

} // namespace

HRFResult<HRFFileReference> HRFFileManager::moveItemAtURL(const HRFFileReference &source,
                                                          const HRFFileReference &destination,
                                                          const QString &sourceURL)
{
    return perform({HRFTransfer::Kind::Move, source, destination, sourceURL});
}

HRFResult<HRFFileReference> HRFFileManager::copyItemAtURL(const HRFFileReference &source,
                                                          const HRFFileReference &destination)
{
    return perform({HRFTransfer::Kind::Copy, source, destination});
}

HRFResult<HRFFileReference> HRFFileManager::atomicCopyItemAtURL(const HRFFileReference &source,
                                                                const HRFFileReference &destination)
{
    const HRFTransfer transfer{HRFTransfer::Kind::Copy, source, destination};
    const int failure = hasOverlongName(destination) ? ENAMETOOLONG : runOnce(transfer, true);
    if (failure != 0)
        return std::unexpected(HRFErrorForTransfer(transfer, failure));
    return destination;
}

HRFResult<HRFFileReference> HRFFileManager::perform(const HRFTransfer &transfer)
{
    const HRFResult<HRFFileReference> done = attempt(transfer, false);
    if (done || !HRFIsFileExistsError(done.error()))
        return done;
    return attemptFixingFileExistsError(done.error(), m_fileExistsRecovery, transfer);
}

HRFResult<HRFFileReference> HRFFileManager::attempt(const HRFTransfer &transfer, bool replaces)
{
    // Enough for a file, its folder and a new folder; what is barred after that stays so.
    constexpr int mostFixes = 6;
    int failure =
        hasOverlongName(transfer.destination) ? ENAMETOOLONG : runOnce(transfer, replaces);
    for (int fixes = 0; failure != 0 && fixes < mostFixes; ++fixes) {
        failure = fix(failure, transfer);
        if (failure != 0)
            break;
        failure = runOnce(transfer, replaces);
    }
    if (failure != 0)
        return std::unexpected(HRFErrorForTransfer(transfer, failure));
    if (transfer.kind == HRFTransfer::Kind::Move)
        tellOfMove(transfer);
    return transfer.destination;
}

HRFResult<HRFFileReference>
HRFFileManager::attemptFixingFileExistsError(const HRFError &error, HRFFileExistsRecovery recovery,
                                             const HRFTransfer &transfer)
{
    struct Fix
    {
        HRFFileExistsRecovery recovery;
        HRFResult<HRFFileReference> (HRFFileManager::*run)(const HRFTransfer &);
    };
    static constexpr std::array fixes{
        Fix{HRFFileExistsRecovery::KeepBoth, &HRFFileManager::keepBoth},
        Fix{HRFFileExistsRecovery::Replace, &HRFFileManager::replace},
    };
    const auto *row = std::ranges::find(fixes, recovery, &Fix::recovery);
    if (row == fixes.end())
        return std::unexpected(error);
    return (this->*row->run)(transfer);
}

HRFResult<HRFFileReference> HRFFileManager::keepBoth(const HRFTransfer &transfer)
{
    for (int number = 2;; ++number) {
        const auto place = numberedURL(transfer.destination, number);
        const auto done =
            attempt({transfer.kind, transfer.source, place, transfer.sourceURL}, false);
        if (done || !HRFIsFileExistsError(done.error()) || number == HRFLastNumberOfName)
            return done;
    }
}

HRFResult<HRFFileReference> HRFFileManager::replace(const HRFTransfer &transfer)
{
    if (isProtected(transfer.destination))
        return std::unexpected(HRFErrorForTransfer(transfer, EEXIST));
    return attempt(transfer, true);
}

void HRFFileManager::protectItem(const HRFFileReference &item)
{
    struct stat status{};
    if (::lstat(item.nativePath().constData(), &status) == 0)
        m_protectedItems.emplace(status.st_dev, status.st_ino);
}

bool HRFFileManager::isProtected(const HRFFileReference &item) const
{
    struct stat status{};
    return ::lstat(item.nativePath().constData(), &status) == 0
        && m_protectedItems.contains({status.st_dev, status.st_ino});
}

int HRFFileManager::fix(int failure, const HRFTransfer &transfer) const
{
    struct Fix
    {
        int code;
        int (HRFFileManager::*run)(int, const HRFTransfer &) const;
    };
    static constexpr std::array fixes{
        Fix{HRFFileErrorCode::writeNoPermission, &HRFFileManager::fixPermissions},
        Fix{HRFFileErrorCode::noSuchFile, &HRFFileManager::fixMissingFolder},
    };
    const auto *row = std::ranges::find(fixes, HRFFileErrorCodeForErrno(failure), &Fix::code);
    return row == fixes.end() ? failure : (this->*row->run)(failure, transfer);
}

int HRFFileManager::fixPermissions(int failure, const HRFTransfer &transfer) const
{
    if (transfer.kind == HRFTransfer::Kind::Copy)
        return fixDestinationPermissions(failure, transfer.destination);
    if (isLocked(transfer.source))
        return m_unlockFiles && setLocked(transfer.source, false) ? 0 : failure;
    const HRFFileReference folder = parentURL(transfer.source);
    if (!isAccessibleForReading(folder))
        return failure;
    if (isAccessibleForWriting(folder))
        return fixDestinationPermissions(failure, transfer.destination);
    return m_fixPermissions ? makeWritable(failure, folder) : failure;
}

int HRFFileManager::fixDestinationPermissions(int failure,
                                              const HRFFileReference &destination) const
{
    const HRFFileReference folder = firstExistingAncestorURL(parentURL(destination));
    const bool isBarred = isAccessibleForReading(folder) && !isAccessibleForWriting(folder);
    return m_fixPermissions && isBarred ? makeWritable(failure, folder) : failure;
}

int HRFFileManager::fixMissingFolder(int failure, const HRFTransfer &transfer) const
{
    struct stat status{};
    if (!m_createMissingDirectories
        || ::lstat(transfer.source.nativePath().constData(), &status) != 0)
        return failure;
    const HRFFileReference folder = parentURL(transfer.destination);
    std::error_code creation;
    std::filesystem::create_directories(folder.nativePath().toStdString(), creation);
    if (HRFFileErrorCodeForErrno(creation.value()) == HRFFileErrorCode::writeNoPermission)
        return fixDestinationPermissions(creation.value(), folder);
    // Told of a link that leads nowhere: what is in the way is not the destination.
    return creation.value() == EEXIST ? ENOTDIR : creation.value();
}

HRFFileExistsRecovery HRFFileManager::userRequestedRecoveryForFileExistsError(
    const HRFFileReference &destination, bool showSuppression, HRFInteractionOwner owner)
{
    auto recovery = HRFFileExistsRecovery::Stop;
    const auto decide = [&] {
        recovery = m_appliedToAllRecovery ? *m_appliedToAllRecovery
                                          : ask(destination, showSuppression, owner);
    };
    HRFMainThread::run(decide, HRFMainThread::Wait::Yes);
    return recovery;
}

HRFFileExistsRecovery HRFFileManager::ask(const HRFFileReference &destination, bool showSuppression,
                                          HRFInteractionOwner owner)
{
    const std::array recoveries{HRFFileExistsRecovery::KeepBoth, HRFFileExistsRecovery::Replace,
                                HRFFileExistsRecovery::Stop};
    HRFAlert alert;
    alert.message = tr("An item named “%1” already exists in this location.")
                        .arg(destination.displayName().replace(u':', u'/'));
    alert.informativeText = tr("Do you want to replace it with the one you’re moving?");
    alert.icon = destination;
    alert.isQuestion = true;
    alert.owner = owner;
    alert.buttons = {
        {.title = tr("Keep Both")},
        {.title = tr("Replace"), .isDestructive = true},
        {.title = tr("Stop"), .role = HRFAnswerRole::Cancel, .alternateTitle = tr("Skip")}};
    if (showSuppression)
        alert.suppressionTitle = tr("Apply to All");
    const HRFAlertAnswer answer = HRFUserInteraction::current().runAlert(alert);
    HRFFileExistsRecovery recovery = recoveries.at(answer.button);
    if (recovery == HRFFileExistsRecovery::Stop && answer.isAlternate)
        recovery = HRFFileExistsRecovery::Skip;
    if (answer.isSuppressed && recovery != HRFFileExistsRecovery::Stop)
        m_appliedToAllRecovery = recovery;
    return recovery;
}
