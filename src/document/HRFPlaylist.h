#pragma once

#include "conversions/HRFFileOperationCC.h"
#include "conversions/HRFFileOperationHost.h"
#include "document/HRFArrayController.h"
#include "document/HRFMetaFileManager.h"
#include "document/HRFPlaylistWindow.h"

#include <QObject>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

class HRFDocumentController;
class HRFTagWriteOperation;

/// How the progress of a batch is shown.
enum class HRFProgressDisplayMode {
    AfterDelay, ///< when the batch lasts
    AtOnce, ///< and a notification at the end
    None,
};

/// The document behind one list: the records of its files, which of them are shown and selected,
/// and the commands on them. It is never saved; its store goes when the program ends.
///
/// All members are for the main thread, but performBlockInBackgroundContext.
class HRFPlaylist : public QObject, public HRFFileOperationHost
{
    Q_OBJECT
public:
    using Operations = std::vector<std::shared_ptr<HRFFileOperation>>;

    explicit HRFPlaylist(HRFDocumentController &documents);
    ~HRFPlaylist() override;

    /// The current list, or the first open one; nullptr when none is open.
    static HRFPlaylist *currentPlaylist();

    HRFMetaFileManager &fileManager() { return *m_fileManager; }
    HRFMainContext &managedObjectContext() const { return *m_fileManager->managedObjectContext(); }
    HRFArrayController &fileController() { return *m_fileController; }
    HRFFileOperationCC &fileOperationCC() { return m_fileOperationCC; }
    std::vector<HRFMetaFile *> selectedFiles() const override;
    std::vector<HRFMetaFile *> arrangedFiles() const override;
    void setSelectedFiles(const std::vector<HRFMetaFile *> &files) override;
    HRFMetaFile *fileWithID(HRFObjectID objectID) const override;
    void setUndoActionName(const QString &name) override;
    const QUndoStack &undoManager() const { return managedObjectContext().undoManager(); }
    void undo() { managedObjectContext().undo(); }
    void redo() { managedObjectContext().redo(); }

    /// The window must outlive the list; nullptr for none.
    void setWindow(HRFPlaylistWindow *window) { m_window = window; }

    /// Takes what is being typed in the window for entered, and edits of this event for done.
    void commitEditing();

    bool shouldClose() const { return m_shouldClose; }
    void setShouldClose(bool shouldClose) { m_shouldClose = shouldClose; }
    /// Closes the list, which is destroyed then, unless it is the last one and the program goes on.
    void close();

    void add();
    /// Answers whether there was anything to import; the import goes on in the background.
    bool importFilesAtPaths(const std::vector<HRFFileReference> &paths);
    bool importFileAtPath(const HRFFileReference &path);

    /// Takes the selected, or all shown, files out of the list. The files themselves stay.
    void remove();
    void clear();
    /// Asks, then removes all tags of the selected files.
    void strip();
    void stripTags();

    /// Lets the user choose a folder to move the selected files to.
    void move();
    void moveSelectedFilesToFolder(const HRFFileReference &folder);
    void editPattern() override;

    /// Whether a command ("strip:") can be carried out now.
    bool validateUserInterfaceItem(const QString &command) const;

    /// Changes records by a block that works on the background context; from any thread. The
    /// changes are no edits, and are saved when the call returns, or when whenDone is called, on
    /// the main thread.
    void performBlockInBackgroundContext(std::function<void(HRFPrivateContext &)> block,
                                         bool wait = false,
                                         std::function<void()> whenDone = {}) override;
    void performBlockInBackgroundContextAndWait(std::function<void(HRFPrivateContext &)> block)
    {
        performBlockInBackgroundContext(std::move(block), true);
    }

    using OperationMaker =
        std::function<std::shared_ptr<HRFTagWriteOperation>(HRFMetaFile &, std::size_t index)>;
    /// Queues the operations that a block makes for files; files for which it makes none are left
    /// out.
    bool enqueueOperationsForFiles(const std::vector<HRFMetaFile *> &files,
                                   const std::shared_ptr<HRFProgress> &progress,
                                   HRFProgressDisplayMode mode, const OperationMaker &block);
    /// Queues operations, and refreshes the records of those that succeed.
    void runOperations(const Operations &operations, std::function<void()> whenDone = {});
    void queueOperations(const Operations &operations, const Afterwork &afterwork) override;
    /// The progresses of the operations that have not ended.
    std::set<std::shared_ptr<HRFProgress>> pendingProgresses() const;
    /// Refreshes the records of operations that have succeeded.
    void handleCompletedFileWriteOperations(const Operations &operations,
                                            std::function<void()> whenDone = {});

Q_SIGNALS:
    /// Operations on files of this list were queued.
    void fileOperationsDidBegin();
    /// A batch of operations on files of this list is done, well or not, and the records say so.
    void fileOperationsDidEnd(const HRFPlaylist::Operations &operations);

private:
    void stripTagsOfFiles(const std::vector<HRFMetaFile *> &files);
    void fileManagerDidImport(const std::optional<QSet<QString>> &fileURLs);
    /// Operations that were queued together, and what is to be done when all have ended.
    struct Batch
    {
        Operations operations;
        Afterwork afterwork;
        std::size_t unfinishedSlices = 0; ///< those whose records are not refreshed yet
    };
    /// Operations of a batch whose records are refreshed together.
    struct Slice
    {
        Operations operations;
        std::shared_ptr<Batch> batch;
        std::set<std::shared_ptr<HRFProgress>> progresses;
    };
    void runSlice(const Operations &operations, const std::shared_ptr<Batch> &batch, bool isLast);
    void sliceDidEnd(const Slice &slice);
    static void refresh(HRFPrivateContext &context, const Operations &operations,
                        const HRFWeakReference<HRFPlaylist> &reference);
    QHash<HRFObjectID, QSet<QString>> newerTagsThan(const Operations &operations) const;

    HRFDocumentController &m_documents;
    std::unique_ptr<HRFMetaFileManager> m_fileManager;
    std::unique_ptr<HRFArrayController> m_fileController;
    HRFFileOperationCC m_fileOperationCC{*this};
    HRFPlaylistWindow *m_window = nullptr;
    bool m_shouldClose = false;
    std::map<quint64, Slice> m_slices; ///< those that have not ended, by number
    quint64 m_lastSlice = 0;
    const HRFWeakSelf<HRFPlaylist> m_weakSelf{this};
};
