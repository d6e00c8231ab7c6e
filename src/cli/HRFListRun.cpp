#include "cli/HRFListRun.h"

#include "cli/HRFCommandLine.h"
#include "document/HRFSortDescriptor.h"
#include "kit/HRFBackground.h"
#include "kit/HRFInterruption.h"
#include "kit/HRFUserDefaults.h"
#include "store/HRFAttributeManager.h"
#include "store/HRFDataFolder.h"
#include "store/HRFMetaFile.h"

#include <QFile>

using namespace Qt::StringLiterals;
using Named = HRFTerminalInteraction::Named;

namespace {

HRFResult<std::unique_ptr<HRFDataFolder>> takeDataFolder(const HRFCommandOptions &options)
{
    if (options.dataFolder.empty())
        return HRFDataFolder::temporary();
    return HRFDataFolder::take(QFile::decodeName(QByteArray::fromStdString(options.dataFolder)));
}

/// The catalogue keeps its store in the data folder, and has to be closed before that goes.
struct CatalogueCloser
{
    ~CatalogueCloser() { HRFAttributeManager::releaseSharedManager(); }
};

/// A list that stays in the order of its files, whatever the windows are sorted by.
HRFPlaylist &makeUnsortedList(HRFDocumentController &documents)
{
    HRFUserDefaults::standard().setOverride(HRFArchivedSortDescriptors({}),
                                            u"lirra.display.sortDescriptors"_s);
    return documents.newDocument();
}

} // namespace

int HRFListRun::run(const HRFCommandOptions &options,
                    const std::function<void(HRFListRun &)> &command)
{
    HRFConsole console(options.isQuiet);
    const auto folder = takeDataFolder(options);
    if (!folder) {
        console.report(u"%1: %2"_s.arg(folder.error().path, folder.error().fullText()));
        return HRFExitStatus::wrongUsage;
    }
    const CatalogueCloser closer;
    HRFListRun run(options, console);
    command(run);
    return run.exitStatus();
}

HRFListRun::HRFListRun(const HRFCommandOptions &options, HRFConsole &console)
    : m_options(options)
    , m_console(console)
    , m_interaction(console, options.onError, [this] { return nameRunningFailure(); })
    , m_list(makeUnsortedList(m_documents))
{
    QObject::connect(&m_list.fileManager(), &HRFMetaFileManager::filesWereNotImported,
                     [this](const std::vector<HRFFileProblem> &problems) {
                         for (const auto &[file, error] : problems)
                             fail(file, error);
                     });
    QObject::connect(&m_list.fileManager(), &HRFMetaFileManager::importDidEnd,
                     [this](const std::optional<QSet<QString>> &selected) {
                         if (!selected)
                             m_loop.quit();
                     });
    QObject::connect(&m_list, &HRFPlaylist::fileOperationsDidEnd,
                     [this](const HRFPlaylist::Operations &operations) {
                         takeOutcomes(operations);
                         m_loop.quit();
                     });
    constexpr std::chrono::milliseconds betweenLooks(100);
    QObject::connect(&m_timer, &QTimer::timeout, [this] { look(); });
    m_timer.start(betweenLooks);
    QObject::connect(&m_interruption, &QSocketNotifier::activated, [this] {
        m_interruption.setEnabled(false);
        look();
    });
}

HRFListRun::~HRFListRun()
{
    HRFBackground::waitUntilIdle();
    m_list.fileManager().resetDatabase();
}

void HRFListRun::visitFiles(const HRFEngineInspector &inspector, const Visitor &visitor)
{
    const auto visitNewRecords = [&](const HRFContextChanges &changes) {
        for (const HRFManagedObject *object : changes.inserted) {
            const auto *record = dynamic_cast<const HRFMetaFile *>(object);
            if (record && !hasToEnd())
                visit(*record, visitor);
        }
    };
    m_list.fileManager().setEngineInspector(inspector);
    const auto connection = QObject::connect(&m_list.managedObjectContext(),
                                             &HRFMainContext::objectsDidChange, visitNewRecords);
    importFiles();
    QObject::disconnect(connection);
}

void HRFListRun::visit(const HRFMetaFile &record, const Visitor &visitor)
{
    const HRFFileReference path = m_paths.value(record.fileURL());
    if (const auto visited = visitor(record, path); !visited)
        fail(path, visited.error());
    else
        ++m_finished;
}

void HRFListRun::changeFiles(const Change &change)
{
    importFiles();
    if (hasToEnd())
        return;
    // Nobody looks at the records afterwards, so they need not follow the files.
    m_list.setShouldClose(true);
    const auto records = m_list.managedObjectContext().fetch<HRFMetaFile>();
    m_finished = records.size();
    if (!change(m_list, records))
        return;
    m_queued = HRFMetaFileManager::fileOperationQueue().operations();
    std::unique_ptr<HRFProgressDisplay> display;
    if (const auto &progress = m_list.fileManager().writeProgress())
        display = m_interaction.showProgress(progress, {});
    look(); // what happened while the work was queued
    m_loop.exec();
}

void HRFListRun::editFiles(const Edit &edit)
{
    changeFiles([&](HRFPlaylist &list, const Records &records) {
        edit(list, records);
        list.managedObjectContext().processPendingChanges();
        return list.fileManager().writeProgress() != nullptr;
    });
}

void HRFListRun::importFiles()
{
    std::vector<HRFFileReference> given;
    given.reserve(m_options.paths.size());
    for (const std::string &path : m_options.paths)
        given.push_back(HRFFileReference::fromNativePath(QByteArray::fromStdString(path)));
    HRFFoundFiles found = HRFFileWalker::find(given, &HRFInterruption::isRequested);
    for (const HRFFoundFile &file : found.files)
        m_paths.insert(file.fileURL, file.file);
    if (hasToEnd())
        return;
    if (m_list.fileManager().importFoundFiles(std::move(found)))
        m_loop.exec();
}

/// Not only what is shown is cancelled: a short import is not.
void HRFListRun::look()
{
    if (!hasToEnd())
        return m_interaction.updateProgress();
    m_interaction.cancelShownWork();
    if (const auto &progress = m_list.fileManager().importProgress())
        progress->cancel();
}

bool HRFListRun::hasToEnd() const
{
    return HRFInterruption::isRequested() || m_console.hasOutputFailed();
}

int HRFListRun::exitStatus()
{
    m_console.finish();
    if (HRFInterruption::isRequested()) {
        m_console.report(
            u"Interrupted: %1 of %2 files are done"_s.arg(m_finished).arg(m_paths.size()));
        return HRFExitStatus::interrupted;
    }
    if (m_isRefused)
        return HRFExitStatus::wrongUsage;
    const bool isIncomplete = m_finished < std::size_t(m_paths.size());
    return m_hasFailed || isIncomplete || m_console.hasOutputFailed() ? HRFExitStatus::someFailed
                                                                      : HRFExitStatus::done;
}

void HRFListRun::refuse(const QString &problem)
{
    m_isRefused = true;
    m_console.report(problem);
}

void HRFListRun::fail(const HRFMetaFile &record, const HRFError &error)
{
    --m_finished;
    fail(m_paths.value(record.fileURL()), error);
}

void HRFListRun::leaveOut(std::size_t fileCount)
{
    m_finished -= fileCount;
    m_hasFailed = m_hasFailed || fileCount > 0;
}

HRFFileReference HRFListRun::givenPath(const HRFMetaFile &record) const
{
    return m_paths.value(record.fileURL());
}

void HRFListRun::fail(const HRFFileReference &path, const HRFError &error)
{
    m_hasFailed = true;
    m_console.report(path.displayPath() + u": "_s + error.fullText());
}

Named HRFListRun::nameFailure(const HRFFileOperation &operation)
{
    const auto error = operation.error();
    if (!error)
        return Named::NoFile;
    const QString key = operation.fileKey();
    if (m_namedFiles.contains(key))
        return Named::Before;
    m_namedFiles.insert(key);
    const HRFFileReference path = m_paths.value(key);
    m_console.report(path.displayPath() + u": "_s + error->fullText());
    return Named::Now;
}

/// Files are worked on one at a time, in the order of the list, and who asks waits for the answer.
Named HRFListRun::nameRunningFailure()
{
    while (m_nextQueued < m_queued.size() && m_queued[m_nextQueued]->isFinished())
        ++m_nextQueued;
    const auto operation = m_nextQueued < m_queued.size()
        ? std::dynamic_pointer_cast<HRFFileOperation>(m_queued[m_nextQueued])
        : nullptr;
    const Named named = operation ? nameFailure(*operation) : Named::NoFile;
    m_hasFailed = m_hasFailed || named == Named::NoFile;
    return named;
}

void HRFListRun::takeOutcomes(const HRFPlaylist::Operations &operations)
{
    for (const auto &operation : operations) {
        if (operation->succeeded())
            continue;
        --m_finished;
        m_hasFailed = true;
        nameFailure(*operation);
    }
}
