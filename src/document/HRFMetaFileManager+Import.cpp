#include "document/HRFMetaFileManager.h"
#include "document/HRFPlaylist.h"
#include "document/HRFReadAhead.h"
#include "kit/HRFFileReferenceTable.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserDefaults.h"
#include "kit/HRFUserInteraction.h"
#include "operations/HRFErrorSolver.h"
#include "operations/HRFProgressWindowController.h"
#include "store/HRFMetaFile.h"
#include "store/HRFUndoSuspension.h"
#include "tags/HRFTagEngine.h"

#include <algorithm>
#include <semaphore>

using namespace Qt::StringLiterals;
using Wait = HRFMainThread::Wait;

namespace {

QSet<QString> urlsOf(const std::vector<HRFFoundFile> &files)
{
    QSet<QString> urls;
    for (const HRFFoundFile &file : files)
        urls.insert(file.fileURL);
    return urls;
}

/// Whether a search has found anything, as the one who waits for it learns.
struct FirstAnswer
{
    std::atomic<bool> hasFiles = false;
    std::binary_semaphore isGiven{0};
};

} // namespace

bool HRFMetaFileManager::parseFiles(const std::vector<HRFFileReference> &paths)
{
    // So long may the window stand still.
    constexpr std::chrono::milliseconds patience(100);
    if (m_hasStopped)
        return false;
    const auto answer = std::make_shared<FirstAnswer>();
    m_imports.run([this, paths, answer] {
        runImport([this, &paths, &answer](const HRFProgress &progress) {
            HRFFoundFiles found = HRFFileWalker::find(
                paths, [&] { return m_hasStopped || progress.isCancelled(); },
                [&answer] {
                    answer->hasFiles = true;
                    answer->isGiven.release();
                });
            if (found.files.empty())
                answer->isGiven.release();
            return found;
        });
    });
    return m_importProgress || !answer->isGiven.try_acquire_for(patience) || answer->hasFiles;
}

bool HRFMetaFileManager::importFoundFiles(HRFFoundFiles found)
{
    if (found.files.empty() || m_hasStopped) {
        tellProblems(found.problems);
        return false;
    }
    m_imports.run([this, found = std::move(found)] {
        runImport([&found](const HRFProgress &) { return found; });
    });
    return true;
}

void HRFMetaFileManager::stopImports()
{
    m_hasStopped = true;
    if (m_importProgress)
        m_importProgress->cancel();
    m_imports.waitUntilIdle();
}

void HRFMetaFileManager::runImport(const Search &search)
{
    const std::lock_guard turn(m_importTurn);
    const auto progress = HRFMainThread::makeShared<HRFProgress>();
    HRFMainThread::run([this, progress] { beginProgress(progress); }, Wait::No);
    HRFFoundFiles found;
    HRFUserInteraction::presentFailures([&] { found = search(*progress); });
    tellProblems(found.problems);
    if (found.files.empty())
        HRFMainThread::run([this] { endProgress(); }, Wait::Yes);
    else
        importFound(found.files, progress);
}

void HRFMetaFileManager::tellProblems(const std::vector<HRFFileProblem> &problems)
{
    if (!problems.empty())
        HRFMainThread::run([&] { Q_EMIT filesWereNotImported(problems); }, Wait::Yes);
}

void HRFMetaFileManager::importFound(const std::vector<HRFFoundFile> &files,
                                     const std::shared_ptr<HRFProgress> &progress)
{
    QSet<QString> imported;
    {
        const HRFUndoSuspension noUndo(managedObjectContext());
        HRFUserInteraction::presentFailures([&] {
            if (importFiles(files, progress, imported))
                saveImport();
        });
    }
    HRFMainThread::run(
        [&] {
            endProgress();
            Q_EMIT importDidEnd({});
            if (!imported.isEmpty()
                && HRFUserDefaults::standard().boolForKey(u"lirra.general.selectsInserted"_s))
                Q_EMIT importDidEnd(imported);
        },
        Wait::Yes);
}

void HRFMetaFileManager::saveImport()
{
    HRFMainThread::run(
        [this] {
            if (const auto saved = managedObjectContext()->save(); !saved)
                HRFUserInteraction::presentErrorLater(saved.error(), &m_document);
        },
        Wait::Yes);
}

bool HRFMetaFileManager::importFiles(const std::vector<HRFFoundFile> &files,
                                     const std::shared_ptr<HRFProgress> &progress,
                                     QSet<QString> &imported)
{
    if (progress->isCancelled())
        return false;
    const std::vector<HRFFoundFile> newFiles = filesNotInList(files);
    if (newFiles.empty()) {
        HRFMainThread::run([&] { Q_EMIT importDidEnd(urlsOf(files)); }, Wait::Yes);
        return false;
    }
    HRFMainThread::run([&] { countFiles(newFiles.size()); }, Wait::Yes);
    const Operations operations = makeOperations(newFiles, progress);
    read(operations);
    bool isCancelled = false; // cancelling later has no effect
    HRFMainThread::run(
        [&] {
            isCancelled = progress->isCancelled();
            endProgress();
        },
        Wait::Yes);
    const QSet<QString> succeeded = sortOutcomes(operations, isCancelled);
    if (isCancelled) {
        discardRecords(operations);
        return false;
    }
    if (progress->completedUnitCount() == 0 || !saveBackgroundContextAndPresentErrors())
        return false;
    imported = succeeded;
    return true;
}

std::vector<HRFFoundFile>
HRFMetaFileManager::filesNotInList(const std::vector<HRFFoundFile> &files) const
{
    QSet<QString> present;
    m_backgroundContext->performBlockAndWait([&] {
        present = m_backgroundContext->fetchTexts(HRFMetaFile::entityName(), u"fileURL"_s);
    });
    std::vector<HRFFoundFile> missing;
    std::ranges::copy_if(files, std::back_inserter(missing),
                         [&](const HRFFoundFile &file) { return !present.contains(file.fileURL); });
    return missing;
}

void HRFMetaFileManager::beginProgress(const std::shared_ptr<HRFProgress> &progress)
{
    constexpr std::chrono::milliseconds delay(1000);
    progress->setLocalizedDescription(tr("Reading Metadata…"));
    progress->setOwner(&m_document);
    m_progressWindow = std::make_unique<HRFProgressWindowController>(progress);
    m_progressWindow->setTitleShowsProcessing(false);
    m_progressWindow->showAsSheet(delay);
    m_importProgress = progress;
    if (m_hasStopped)
        progress->cancel();
}

void HRFMetaFileManager::countFiles(std::size_t fileCount)
{
    constexpr std::size_t quickImport = 100;
    m_importProgress->setTotalUnitCount(qlonglong(fileCount));
    m_importProgress->setCancellationHandler([this] { m_fileReadQueue.cancelAllOperations(); });
    if (fileCount > quickImport)
        m_progressWindow->showAsSheet();
}

void HRFMetaFileManager::endProgress()
{
    if (!m_importProgress)
        return;
    m_importProgress->setCancellationHandler({});
    m_progressWindow->dismiss();
    m_progressWindow.reset();
    m_importProgress.reset();
}

HRFMetaFileManager::Operations
HRFMetaFileManager::makeOperations(const std::vector<HRFFoundFile> &files,
                                   const std::shared_ptr<HRFProgress> &progress)
{
    QHash<QString, std::vector<std::shared_ptr<HRFOperation>>> pending;
    for (const auto &operation : fileOperationQueue().operations())
        if (const auto onFile = std::dynamic_pointer_cast<HRFFileOperation>(operation))
            pending[onFile->fileKey()].push_back(operation);
    const auto batch =
        std::make_shared<const HRFImportBatch>(m_backgroundContext, progress, m_inspector, [this] {
            // In parts: all at once would keep the window
            // from answering.
            if (saveBackgroundContextAndPresentErrors())
                saveImport();
        });
    Operations operations;
    for (const HRFFoundFile &file : files) {
        if (progress->isCancelled())
            break;
        auto operation = std::make_shared<HRFFileImportOperation>(
            file.file, file.fileURL, qlonglong(operations.size()), batch);
        operation->setLast(operations.size() + 1 == files.size());
        for (const auto &earlier : pending.value(file.fileURL))
            operation->waitFor(earlier);
        operations.push_back(std::move(operation));
    }
    return operations;
}

void HRFMetaFileManager::read(const Operations &operations)
{
    const HRFReadAhead readAhead(operations);
    m_fileReadQueue.addOperations({operations.begin(), operations.end()}, true);
}

/// An interrupted import leaves nothing behind.
void HRFMetaFileManager::discardRecords(const Operations &operations)
{
    m_backgroundContext->performBlockAndWait([&] {
        for (const auto &operation : operations)
            if (HRFManagedObject *record = operation->succeeded()
                    ? m_backgroundContext->object(operation->objectID())
                    : nullptr)
                m_backgroundContext->deleteObject(*record);
        saveBackgroundContextAndPresentErrors();
    });
}

bool HRFMetaFileManager::saveBackgroundContextAndPresentErrors()
{
    HRFResult<void> saved;
    m_backgroundContext->performBlockAndWait([&] {
        saved = m_backgroundContext->save();
        if (!saved)
            m_backgroundContext->rollback();
    });
    if (saved)
        return true;
    HRFUserInteraction::presentErrorLater(
        {.domain = saved.error().domain,
         .code = saved.error().code,
         .description = tr("Files couldn't be opened because of core data related issues."),
         .underlying = std::make_shared<HRFError>(saved.error())},
        &m_document);
    return false;
}

/// Reports the files that could not be read; answers those that could. Whoever has cancelled the
/// import is not bothered with an alert.
QSet<QString> HRFMetaFileManager::sortOutcomes(const Operations &operations, bool isCancelled)
{
    QSet<QString> succeeded;
    std::vector<HRFFileProblem> problems;
    std::vector<HRFFileReference> invalid;
    for (const auto &operation : operations) {
        if (operation->succeeded())
            succeeded.insert(operation->referenceURL());
        const auto error = operation->error();
        if (!error)
            continue;
        problems.push_back({operation->fileURL(), *error});
        if (HRFIsUnreadableFile(*error))
            invalid.push_back(operation->fileURL());
    }
    HRFMainThread::run(
        [reference = m_weakSelf.reference(), problems, invalid, isCancelled] {
            HRFMetaFileManager *self = reference.get();
            if (self && !problems.empty())
                Q_EMIT self->filesWereNotImported(problems);
            if (self && !invalid.empty() && !isCancelled)
                self->showInvalidFilesError(invalid);
        },
        Wait::No);
    return succeeded;
}

bool HRFIsUnreadableFile(const HRFError &error)
{
    return error.domain == QLatin1StringView(HRFTagEngineErrorDomain)
        && error.code == HRFTagEngineErrorCode::unreadable;
}

void HRFMetaFileManager::showInvalidFilesError(const std::vector<HRFFileReference> &files)
{
    const HRFError error{.domain = QString::fromLatin1(HRFTagEngineErrorDomain),
                         .code = HRFTagEngineErrorCode::unreadable,
                         .description = tr("Could not add %1 invalid file(s).").arg(files.size()),
                         .recoverySuggestion =
                             tr("You may want to try re-encoding these audio files.")};
    const auto solver = HRFErrorSolver::solverWithError(error);
    solver->addRecoveryOptionWithLocalizedTitle(
        tr("OK"), [] { return false; }, HRFAnswerRole::Continue);
    solver->addRecoveryOptionWithLocalizedTitle(tr("Show Files"), [files] {
        HRFUserInteraction::current().revealFiles(files);
        return false;
    });
    HRFUserInteraction::current().presentError(solver->error(), &m_document);
}
