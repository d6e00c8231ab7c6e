#include "document/HRFPlaylist.h"

#include "document/HRFDocumentController.h"
#include "kit/HRFApplication.h"
#include "kit/HRFAssert.h"
#include "kit/HRFUserInteraction.h"
#include "operations/HRFStripTagsOperation.h"
#include "store/HRFMetaFile.h"
#include "store/HRFSystemFile.h"
#include "store/HRFUndoSuspension.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What must be there for a command to make sense.
enum class Needs { Nothing, ShownRecords, Selection };

struct CommandRow
{
    QLatin1StringView command;
    Needs needs;
};

/// The commands of a list.
constexpr CommandRow commandRows[] = {
    {"add:"_L1, Needs::Nothing},     {"clear:"_L1, Needs::ShownRecords},
    {"move:"_L1, Needs::Selection},  {"remove:"_L1, Needs::Selection},
    {"strip:"_L1, Needs::Selection},
};

} // namespace

HRFPlaylist::HRFPlaylist(HRFDocumentController &documents)
    : m_documents(documents), m_fileManager(std::make_unique<HRFMetaFileManager>(*this))
{
    HRFRequire(m_fileManager->managedObjectContext() != nullptr, "_managedObjectContext");
    m_fileController = std::make_unique<HRFArrayController>(managedObjectContext());
    connect(&HRFApplication::shared(), &HRFApplication::applicationWillTerminate, this,
            [this] { setShouldClose(true); });
    connect(m_fileManager.get(), &HRFMetaFileManager::importDidEnd, this,
            &HRFPlaylist::fileManagerDidImport);
}

HRFPlaylist::~HRFPlaylist()
{
    m_fileManager->stopImports(); // as long as there is a list to tell
}

HRFPlaylist *HRFPlaylist::currentPlaylist()
{
    return HRFDocumentController::shared().currentDocument();
}

std::vector<HRFMetaFile *> HRFPlaylist::selectedFiles() const
{
    return m_fileController->selectedObjects();
}

std::vector<HRFMetaFile *> HRFPlaylist::arrangedFiles() const
{
    return m_fileController->arrangedObjects();
}

void HRFPlaylist::setSelectedFiles(const std::vector<HRFMetaFile *> &files)
{
    m_fileController->setSelectedObjects(files);
}

HRFMetaFile *HRFPlaylist::fileWithID(HRFObjectID objectID) const
{
    return managedObjectContext().object<HRFMetaFile>(objectID);
}

void HRFPlaylist::setUndoActionName(const QString &name)
{
    managedObjectContext().setUndoActionName(name);
}

void HRFPlaylist::commitEditing()
{
    if (m_window)
        m_window->commitEditing();
    managedObjectContext().processPendingChanges();
}

void HRFPlaylist::close()
{
    if (m_shouldClose || m_documents.documents().size() > 1)
        m_documents.removeDocument(*this);
}

void HRFPlaylist::add()
{
    if (m_window)
        m_window->runAddPanel(HRFDocumentController::allowedTypesForOpenPanel());
}

bool HRFPlaylist::importFilesAtPaths(const std::vector<HRFFileReference> &paths)
{
    if (paths.size() == 1)
        return importFileAtPath(paths.front());
    if (m_window)
        m_window->showWindows();
    return m_fileManager->parseFiles(paths);
}

bool HRFPlaylist::importFileAtPath(const HRFFileReference &path)
{
    if (m_window)
        m_window->showWindows();
    const QFileInfo item(path.displayPath());
    if (item.isDir())
        m_documents.noteNewRecentDocument(item.absoluteFilePath());
    return m_fileManager->parseFiles({path});
}

void HRFPlaylist::fileManagerDidImport(const std::optional<QSet<QString>> &fileURLs)
{
    if (fileURLs) {
        std::vector<HRFMetaFile *> chosen = arrangedFiles();
        std::erase_if(
            chosen, [&](const HRFMetaFile *file) { return !fileURLs->contains(file->fileURL()); });
        m_fileController->setSelectedObjects(chosen);
    }
    if (m_window)
        m_window->scrollToSelection();
}

void HRFPlaylist::remove()
{
    HRFMainContext &context = managedObjectContext();
    context.processPendingChanges();
    // Removed records cannot come back, and edits of others not around them. The next import, clear
    // or background change switches registration on again.
    context.disableUndoRegistration();
    m_fileController->removeSelectedObjects();
    context.processPendingChanges();
    context.removeAllUndoActions();
    if (m_window)
        m_window->focusFilterFieldIfNeeded();
}

void HRFPlaylist::clear()
{
    HRFMainContext &context = managedObjectContext();
    {
        const HRFUndoSuspension noUndo(m_fileManager->managedObjectContext());
        m_fileController->clearFilter();
        m_fileController->removeArrangedObjects();
    }
    context.removeAllUndoActions();
    if (m_window) {
        m_window->clearFilterField();
        m_window->focusInitialControl();
    }
}

void HRFPlaylist::strip()
{
    const std::vector<HRFMetaFile *> files = selectedFiles();
    if (files.empty())
        return;
    const auto icon = files.front()->url();
    const HRFAlert alert{
        .message = files.size() == 1
            ? tr("Remove all metadata from “%1” ?").arg(files.front()->fileInfo().displayFileName())
            : tr("Remove all metadata from %1 files ?").arg(files.size()),
        .informativeText = tr("This action cannot be undone."),
        .icon = icon.value_or(HRFFileReference()),
        .buttons = {{.title = tr("Remove all metadata"),
                     .role = HRFAnswerRole::Accept,
                     .isDestructive = true},
                    {.title = tr("Cancel"), .role = HRFAnswerRole::Cancel}},
        .isCritical = true,
        .owner = this};
    // While the question is on the screen, the selection may change, and records may go.
    std::vector<HRFObjectID> confirmed;
    for (const HRFMetaFile *file : files)
        confirmed.push_back(file->objectID());
    if (HRFUserInteraction::current().runAlert(alert).button != 0)
        return;
    std::vector<HRFMetaFile *> present;
    for (const HRFObjectID objectID : confirmed)
        if (auto *file = managedObjectContext().object<HRFMetaFile>(objectID))
            present.push_back(file);
    stripTagsOfFiles(present);
}

void HRFPlaylist::stripTags()
{
    stripTagsOfFiles(selectedFiles());
}

void HRFPlaylist::stripTagsOfFiles(const std::vector<HRFMetaFile *> &files)
{
    const auto progress = std::make_shared<HRFProgress>(qlonglong(files.size()));
    progress->setLocalizedDescription(tr("Strip Tags"));
    enqueueOperationsForFiles(
        files, progress, HRFProgressDisplayMode::AtOnce,
        [](HRFMetaFile &, std::size_t) { return std::make_shared<HRFStripTagsOperation>(); });
}

bool HRFPlaylist::validateUserInterfaceItem(const QString &command) const
{
    const auto row = std::ranges::find(commandRows, command, &CommandRow::command);
    if (row == std::end(commandRows) || (m_window && m_window->hasAttachedSheet()))
        return false;
    switch (row->needs) {
    case Needs::ShownRecords:
        return !m_fileController->arrangedObjects().empty();
    case Needs::Selection:
        return !m_fileController->selectedObjects().empty();
    default:
        return true;
    }
}
