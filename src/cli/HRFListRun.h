#pragma once

#include "cli/HRFConsole.h"
#include "cli/HRFTerminalInteraction.h"
#include "document/HRFDocumentController.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFInterruption.h"

#include <QEventLoop>
#include <QHash>
#include <QSet>
#include <QSocketNotifier>
#include <QTimer>

class HRFMetaFile;

/// Runs a command over a list document of its own: the files become records, and what is done with
/// the records is done to the files. Names the files that fail, and ends between two files when the
/// run is interrupted. For the main thread alone.
class HRFListRun
{
public:
    /// Takes the data folder, and runs the command.
    ///
    /// @return an exit status (HRFExitStatus)
    static int run(const HRFCommandOptions &options,
                   const std::function<void(HRFListRun &)> &command);
    HRFListRun(const HRFListRun &) = delete;
    HRFListRun &operator=(const HRFListRun &) = delete;
    ~HRFListRun();

    HRFConsole &console() { return m_console; }

    /// Takes a record as soon as it is there; an error is reported as the file's.
    using Visitor =
        std::function<HRFResult<void>(const HRFMetaFile &record, const HRFFileReference &path)>;
    /// Imports the files, and shows the records to a visitor in the order of the list. Nothing is
    /// written.
    void visitFiles(const HRFEngineInspector &inspector, const Visitor &visitor);

    /// Changes all records of the list, in its order, or queues work on their files; answers
    /// whether there is anything to write.
    using Records = std::vector<HRFMetaFile *>;
    using Change = std::function<bool(HRFPlaylist &list, const Records &records)>;
    /// Imports the files, changes them and waits until they are written.
    void changeFiles(const Change &change);
    /// The same by changes of the records alone: the list writes what they change.
    using Edit = std::function<void(HRFPlaylist &list, const Records &records)>;
    void editFiles(const Edit &edit);

    /// Names a file that is not done, and why.
    void fail(const HRFMetaFile &record, const HRFError &error);
    /// Leaves out files of which the user was told already.
    void leaveOut(std::size_t fileCount);
    /// The path of a file as it was given or found.
    HRFFileReference givenPath(const HRFMetaFile &record) const;
    /// Whether the run is to end after the running file.
    bool hasToEnd() const;
    /// Says what is wrong with the command line. To be called before anything else.
    void refuse(const QString &problem);

private:
    HRFListRun(const HRFCommandOptions &options, HRFConsole &console);
    void importFiles();
    void visit(const HRFMetaFile &record, const Visitor &visitor);
    /// To be called ten times a second.
    void look();
    int exitStatus();

    void fail(const HRFFileReference &path, const HRFError &error);
    HRFTerminalInteraction::Named nameFailure(const HRFFileOperation &operation);
    HRFTerminalInteraction::Named nameRunningFailure();
    void takeOutcomes(const HRFPlaylist::Operations &operations);

    const HRFCommandOptions &m_options;
    HRFConsole &m_console;
    /// The paths of the files as they were given or found, by reference URL.
    QHash<QString, HRFFileReference> m_paths;
    std::size_t m_finished = 0; ///< files
    bool m_hasFailed = false;
    bool m_isRefused = false;
    QSet<QString> m_namedFiles; ///< by file key
    /// The queued operations, in their order; those before the next one can ask nothing any more.
    std::vector<std::shared_ptr<HRFOperation>> m_queued;
    std::size_t m_nextQueued = 0;

    HRFTerminalInteraction m_interaction;
    HRFDocumentController m_documents;
    HRFPlaylist &m_list;
    QEventLoop m_loop;
    QTimer m_timer;
    QSocketNotifier m_interruption{HRFInterruption::descriptor(), QSocketNotifier::Read};
};
