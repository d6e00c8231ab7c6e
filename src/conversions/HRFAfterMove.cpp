#include "conversions/HRFAfterMove.h"

#include "kit/HRFAssert.h"
#include "kit/HRFFileReferenceTable.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserDefaults.h"
#include "kit/HRFUserInteraction.h"
#include "operations/HRFFileReference+Locations.h"
#include "operations/HRFItemMove.h"
#include "operations/HRFMoveOperation.h"
#include "store/HRFMetaFile.h"
#include "store/HRFPrivateContext.h"
#include "store/HRFSystemFile.h"
#include "tags/HRFTagEngine.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFAfterMove", text);
}

fs::path pathOf(const HRFFileReference &item)
{
    return item.nativePath().toStdString();
}

HRFFileReference referenceOf(const fs::path &item)
{
    return HRFFileReference::fromNativePath(QByteArray::fromStdString(item.native()));
}

/// What cannot be told is no reason to clean up.
bool isEmptyFolder(const HRFFileReference &folder)
{
    std::error_code failure;
    return fs::is_directory(pathOf(folder), failure) && fs::is_empty(pathOf(folder), failure)
        && !failure;
}

/// Also where a folder cannot be looked into: there may be any.
bool mayHoldAudioFiles(const HRFFileReference &folder)
{
    std::error_code failure;
    fs::recursive_directory_iterator item(pathOf(folder), failure);
    for (; !failure && item != fs::recursive_directory_iterator(); item.increment(failure)) {
        const QByteArray extension = referenceOf(item->path()).lowerCaseExtension();
        if (HRFTagEngine::metaDataFileTypes().contains(extension))
            return true;
    }
    return bool(failure);
}

/// What is in a folder, in order; not what a killed move has left.
std::vector<fs::path> itemsIn(const HRFFileReference &folder)
{
    std::vector<fs::path> items;
    std::error_code failure;
    fs::directory_iterator item(pathOf(folder), failure);
    for (; !failure && item != fs::directory_iterator(); item.increment(failure))
        if (!HRFIsNameOfUnfinishedWork(QByteArray::fromStdString(item->path().filename().string())))
            items.push_back(item->path());
    std::ranges::sort(items);
    return items;
}

/// A folder that files were moved out of, and the one that all of them went to; null when they went
/// to several.
struct SourceFolder
{
    HRFFileReference folder;
    HRFFileReference destination;
};

/// Each folder once, in the order of the files.
std::vector<SourceFolder>
sourceFoldersOf(const std::vector<std::shared_ptr<HRFMoveOperation>> &operations)
{
    std::vector<SourceFolder> folders;
    QHash<QByteArray, std::size_t> places;
    for (const auto &operation : operations) {
        const HRFFileReference source = parentURL(operation->srcURL());
        const HRFFileReference destination = parentURL(operation->dstURL());
        const auto place = places.constFind(source.nativePath());
        if (place == places.cend()) {
            places.insert(source.nativePath(), folders.size());
            folders.push_back({source, destination});
        } else if (folders[*place].destination != destination) {
            folders[*place].destination = {};
        }
    }
    return folders;
}

/// The folder that all items are in, be it not directly.
fs::path commonParent(const std::vector<std::shared_ptr<HRFMoveOperation>> &operations)
{
    fs::path common = pathOf(parentURL(operations.front()->dstURL()));
    for (const auto &operation : operations) {
        const fs::path folder = pathOf(parentURL(operation->dstURL()));
        const auto end = std::ranges::mismatch(common, folder).in1;
        fs::path shared;
        for (auto part = common.begin(); part != end; ++part)
            shared /= *part;
        common = shared;
    }
    return common;
}

/// Where the folder for the user's Trash cannot be made, Qt takes the working folder for it. It
/// cannot name items whose paths are not UTF-8, and might take others for them.
bool moveToTrash(const HRFFileReference &item)
{
    const QString dataFolder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QFileInfo trash(dataFolder + u"/Trash"_s);
    const bool hasTrash =
        QDir().mkpath(dataFolder) && (trash.isDir() || QFileInfo(dataFolder).isWritable());
    return hasTrash && item.isValidUtf8() && QFile::moveToTrash(item.displayPath());
}

bool userWantsToRemove(const std::vector<HRFFileReference> &folders, HRFInteractionOwner owner)
{
    const QString suppression = u"lirra.suppressed.removeEmptyDirectories"_s;
    if (HRFUserDefaults::standard().boolForKey(suppression))
        return true;
    QStringList names;
    for (const HRFFileReference &folder : folders)
        names += folder.displayName();
    const HRFAlertAnswer answer = HRFUserInteraction::current().runAlert(
        {.title = tr("Remove Empty Directories"),
         .message = tr("Remove following empty directories?"),
         .informativeText = names.join(u'\n'),
         .buttons = {{.title = tr("Remove"), .role = HRFAnswerRole::Accept, .isDestructive = true},
                     {.title = tr("Keep"), .role = HRFAnswerRole::Cancel}},
         .suppressionTitle = tr("Do not ask again"),
         .isQuestion = true,
         .owner = owner});
    // Whoever does not want to be asked wants folders removed from then on, whatever the answer.
    HRFUserDefaults::standard().setValueForKey(answer.isSuppressed, suppression);
    return answer.button == 0;
}

} // namespace

HRFAfterMove::HRFAfterMove(Operations operations, const HRFConversionContext &context,
                           std::shared_ptr<HRFProgress> progress)
    : m_operations(std::move(operations)), m_context(context), m_progress(std::move(progress))
{
}

HRFAfterMove::Operations HRFAfterMove::succeeded() const
{
    Operations found;
    std::ranges::copy_if(m_operations, std::back_inserter(found),
                         [](const auto &operation) { return operation->succeeded(); });
    return found;
}

void HRFAfterMove::postProcessSuccessfulOperations() const
{
    HRFRequire(!HRFMainThread::isCurrent(), "!HRFMainThread::isCurrent()");
    if (m_context.fileOperationCopy
        || (!m_context.moveNonAudioFiles && !m_context.removeEmptyDirectories))
        return;
    std::vector<HRFFileReference> emptyFolders;
    for (const auto &[folder, destination] : sourceFoldersOf(succeeded())) {
        if (m_progress->isCancelled())
            return;
        if (!isSafeURL(folder))
            continue;
        if (m_context.moveNonAudioFiles && !destination.isNull() && !mayHoldAudioFiles(folder))
            moveAccompanyingFiles(folder, destination);
        if (m_context.removeEmptyDirectories && isEmptyFolder(folder))
            emptyFolders.push_back(folder);
    }
    if (!emptyFolders.empty() && !m_progress->isCancelled())
        HRFMainThread::run([&] { HRFRemoveEmptyDirectories(emptyFolders, *m_progress); },
                           HRFMainThread::Wait::Yes);
}

/// What is in the way at the destination stays, and so does the file that would have come there.
void HRFAfterMove::moveAccompanyingFiles(const HRFFileReference &from,
                                         const HRFFileReference &to) const
{
    m_progress->setTotalUnitCount(0);
    m_progress->setLocalizedAdditionalDescription(tr("Moving accompanying files…"));
    HRFFileManager manager;
    for (const fs::path &item : itemsIn(from)) {
        if (m_progress->isCancelled())
            return;
        const auto moved =
            manager.moveItemAtURL(referenceOf(item), referenceOf(pathOf(to) / item.filename()));
        if (!moved)
            HRFUserInteraction::presentErrorLater(moved.error(), m_progress->owner());
    }
    m_progress->setLocalizedAdditionalDescription(tr("Done"));
}

void HRFAfterMove::updateRecords(HRFPrivateContext &context) const
{
    if (m_context.fileOperationCopy)
        return;
    for (const auto &operation : succeeded()) {
        const HRFFileReference place = operation->dstURL();
        auto *file = context.object<HRFMetaFile>(operation->objectID());
        const auto url = HRFFileReferenceTable::referenceURLForFile(place);
        if (!file || !url)
            continue;
        file->setFileURL(*url);
        file->fileInfo().updateAttributesForItemAtURL(place);
    }
}

void HRFAfterMove::revealItems() const
{
    const Operations operations = succeeded();
    if (!m_context.revealOnSuccess || operations.empty())
        return;
    const fs::path parent = commonParent(operations);
    std::vector<HRFFileReference> items;
    QSet<QByteArray> seen;
    for (const auto &operation : operations) {
        const fs::path below = pathOf(operation->dstURL()).lexically_relative(parent);
        const HRFFileReference item = referenceOf(parent / *below.begin());
        if (!seen.contains(item.nativePath()))
            items.push_back(item);
        seen.insert(item.nativePath());
    }
    HRFUserInteraction::current().revealFiles(items);
}

void HRFRemoveEmptyDirectories(const std::vector<HRFFileReference> &folders,
                               const HRFProgress &progress)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    if (!userWantsToRemove(folders, progress.owner()))
        return;
    for (const HRFFileReference &folder : folders) {
        // Something may have come into it while the question was on the screen.
        if (isEmptyFolder(folder) && !moveToTrash(folder)) {
            HRFUserInteraction::presentErrorLater(
                {.domain = QString::fromLatin1(HRFFileErrorDomain),
                 .code = HRFFileErrorCode::writeUnknown,
                 .description = tr("The empty folder “%1” could not be moved to the Trash")
                                    .arg(folder.displayPath())},
                progress.owner());
        }
    }
}
