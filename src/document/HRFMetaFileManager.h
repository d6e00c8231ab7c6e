#pragma once

#include "document/HRFFileImportOperation.h"
#include "document/HRFFileWalker.h"
#include "kit/HRFBackground.h"
#include "kit/HRFWeakSelf.h"
#include "operations/HRFFileManager.h"
#include "operations/HRFOperationQueue.h"
#include "store/HRFPersistentStoreManager.h"

#include <QSet>

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <vector>

class HRFPlaylist;
class HRFProgressWindowController;

/// Whether an import shows the file in an alert, as no audio file that can be read.
bool HRFIsUnreadableFile(const HRFError &error);

/// Turns paths into the file records of a list, and edits of the records into work on the files.
///
/// For the main thread, but for the parts of an import that run in the background.
class HRFMetaFileManager : public HRFPersistentStoreManager
{
    Q_OBJECT
public:
    explicit HRFMetaFileManager(HRFPlaylist &document);
    ~HRFMetaFileManager() override;

    /// All writes, strips and moves of all lists, one at a time.
    static HRFOperationQueue &fileOperationQueue();
    /// The progresses of the operations there, also of lists that are closed.
    static std::set<std::shared_ptr<HRFProgress>> pendingProgresses();

    QString modelName() const override;
    /// A session file of this list's own.
    QString databaseName() const override;
    bool purgeOnQuit() const override { return true; }
    /// Deletes the sessions of all lists, once in the life of the process.
    void resetDatabase() override;

    /// For imports and for refreshes after writes.
    const std::shared_ptr<HRFPrivateContext> &backgroundContext() const
    {
        return m_backgroundContext;
    }
    HRFFileManager &fileManager() { return m_fileManager; }
    HRFWorkQueue &fileReadQueue() { return m_fileReadQueue; }
    /// That of the latest batch of writes; nullptr before the first.
    const std::shared_ptr<HRFProgress> &writeProgress() const { return m_writeProgress; }
    /// That of the running import; nullptr when none runs.
    const std::shared_ptr<HRFProgress> &importProgress() const { return m_importProgress; }

    /// Looks at the engine of each file that is imported from now on. Called on reading threads.
    void setEngineInspector(HRFEngineInspector inspector) { m_inspector = std::move(inspector); }

    /// Adds files, and those in folders, that are not in the list yet, in the background.
    /// @return false when there is no audio file among them. Where that takes long to find out, or
    /// another import comes first, true is returned in any case.
    bool parseFiles(const std::vector<HRFFileReference> &paths);
    /// The same for files that were found before.
    bool importFoundFiles(HRFFoundFiles found);
    /// Cancels all imports and waits for their end. No other can be started afterwards.
    void stopImports();

Q_SIGNALS:
    /// An import, or the attempt at one, has ended
    /// ("com.harrowfield.lirra.filemanager.import.end").
    /// @param fileURLs the files to select, by reference URL; nothing when the selection stays
    void importDidEnd(const std::optional<QSet<QString>> &fileURLs);
    /// Paths that an import could not take; sent before its end.
    void filesWereNotImported(const std::vector<HRFFileProblem> &problems);

private:
    using Operations = std::vector<std::shared_ptr<HRFFileImportOperation>>;

    /// Finds the files of an import; stops when the progress is cancelled.
    using Search = std::function<HRFFoundFiles(const HRFProgress &progress)>;

    // In the background:
    void runImport(const Search &search);
    void importFound(const std::vector<HRFFoundFile> &files,
                     const std::shared_ptr<HRFProgress> &progress);
    void saveImport();
    bool importFiles(const std::vector<HRFFoundFile> &files,
                     const std::shared_ptr<HRFProgress> &progress, QSet<QString> &imported);
    void tellProblems(const std::vector<HRFFileProblem> &problems);
    std::vector<HRFFoundFile> filesNotInList(const std::vector<HRFFoundFile> &files) const;
    Operations makeOperations(const std::vector<HRFFoundFile> &files,
                              const std::shared_ptr<HRFProgress> &progress);
    void read(const Operations &operations);
    void discardRecords(const Operations &operations);
    bool saveBackgroundContextAndPresentErrors();
    QSet<QString> sortOutcomes(const Operations &operations, bool isCancelled);

    // On the main thread:
    void beginProgress(const std::shared_ptr<HRFProgress> &progress);
    void countFiles(std::size_t fileCount);
    void endProgress();
    void showInvalidFilesError(const std::vector<HRFFileReference> &files);
    void contextDidChange(const HRFContextChanges &changes);
    void updateTags(const std::vector<HRFObjectChange> &changes);
    /// A record, and its file, which has another name; nothing when the file has vanished.
    struct Renaming
    {
        HRFMetaFile *record;
        std::optional<HRFFileReference> file;
        HRFFileReference known; ///< where the file is, or was
    };
    void renameFiles(const std::vector<Renaming> &renamings);
    using Names = std::vector<std::pair<HRFObjectID, QString>>;
    void setNames(Names names);
    [[nodiscard]] HRFResult<HRFFileReference> rename(const HRFFileReference &file,
                                                     const QString &name, const QString &fileURL);
    void takeBackRename();

    HRFPlaylist &m_document;
    const QString m_databaseName;
    std::shared_ptr<HRFPrivateContext> m_backgroundContext;
    HRFFileManager m_fileManager;
    HRFWorkQueue m_fileReadQueue;
    HRFEngineInspector m_inspector;
    std::shared_ptr<HRFProgress> m_importProgress;
    std::shared_ptr<HRFProgress> m_writeProgress;
    std::unique_ptr<HRFProgressWindowController> m_progressWindow;
    bool m_isTakingBackRename = false;
    std::atomic<bool> m_hasStopped = false; ///< stopImports was called
    std::mutex m_importTurn; ///< lets one import run at a time: what it finds new must stay so
    HRFBackgroundGroup m_imports;
    const HRFWeakSelf<HRFMetaFileManager> m_weakSelf{this};
};
