#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class HRFPlaylist;
class HRFProgressWindowController;

/// The open lists, the recent folders, and the end of the program. For the main thread alone.
class HRFDocumentController : public QObject
{
    Q_OBJECT
public:
    HRFDocumentController();
    ~HRFDocumentController() override;

    /// That of this program; there must be one (assertion "HRFDocumentController::shared").
    static HRFDocumentController &shared();

    /// Opens an empty list.
    HRFPlaylist &newDocument();
    const std::vector<std::unique_ptr<HRFPlaylist>> &documents() const { return m_documents; }
    /// The list that the user works with, or else the first; nullptr when none is open.
    HRFPlaylist *currentDocument() const;
    void setCurrentDocument(HRFPlaylist *document) { m_current = document; }
    /// Lets go of a list; it is destroyed when the event is over.
    void removeDocument(HRFPlaylist &document);

    // Folders that files were moved to, the latest first:
    /// Those that still are folders.
    QStringList recentMoveDestinationURLs() const;
    void noteNewRecentMoveDestinationURL(const QString &folder);
    void clearRecentMoveDestinations();
    void saveRecentMoveDestinations();

    /// Folders that were opened, the latest first.
    QStringList recentDocuments() const;
    void noteNewRecentDocument(const QString &folder);

    /// The folder that is opened at the start; nothing for none.
    static std::optional<QString> startupDirectoryURL();
    static void setStartupDirectoryURL(const std::optional<QString> &folder);
    /// Opens the start-up folder in the current list, if there is one.
    void openStartupDirectory();

    /// The file types that can be added: lower-case extensions, sorted.
    static const QStringList &allowedTypesForOpenPanel();

    /// Ends the program when no work on files is pending any more; until then the work is shown,
    /// and can be cancelled.
    /// @param terminate called when nothing stands in the way any more, be it at once
    /// @return whether it was called at once
    bool terminate(std::function<void()> terminate);

private:
    bool terminateWhenIdle();
    void showPendingWork();
    void cancelPendingWork();
    void finishTermination();

    std::vector<std::unique_ptr<HRFPlaylist>> m_documents;
    HRFPlaylist *m_current = nullptr;
    QStringList m_recentMoveDestinations;
    std::function<void()> m_terminate;
    std::unique_ptr<HRFProgressWindowController> m_pendingWork;
};
