#include "app/HRFApplicationDelegate.h"
#include "app/HRFArtworkPane.h"
#include "app/HRFFileURIs.h"
#include "app/HRFListCommands.h"
#include "app/HRFListFilter.h"
#include "app/HRFListHeader.h"
#include "app/HRFListModel.h"
#include "app/HRFListView.h"
#include "app/HRFListWindow.h"
#include "app/HRFSidebar.h"
#include "app/HRFSidebarSplitter.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFBackground.h"
#include "kit/HRFFileReferenceTable.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserInteraction.h"
#include "store/HRFMetaFile.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>

using namespace Qt::StringLiterals;

void HRFListWindow::newList()
{
    m_application.newList();
}

void HRFListWindow::addFiles()
{
    m_list.add();
}

void HRFListWindow::addFolder()
{
    auto *panel = new QFileDialog(this, tr("Add Folder"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    panel->setLabelText(QFileDialog::Accept, tr("Add"));
    connect(panel, &QFileDialog::urlsSelected, this, &HRFListWindow::addURLs);
    panel->open();
}

/// Looks up on another thread where the files are: each of them is a question to the disk.
void HRFListWindow::reveal()
{
    QStringList urls;
    for (const HRFMetaFile *file : m_list.fileController().selectedObjects())
        urls.append(file->fileURL());
    HRFBackground::run([urls] {
        std::vector<HRFFileReference> files;
        for (const QString &url : urls)
            if (const auto file = HRFFileReferenceTable::fileForURL(url))
                files.push_back(*file);
        HRFMainThread::run([files] { HRFUserInteraction::current().revealFiles(files); },
                           HRFMainThread::Wait::No);
    });
}

void HRFListWindow::closeList()
{
    close();
}

void HRFListWindow::quit()
{
    m_application.quit();
}

void HRFListWindow::undo()
{
    m_list.undo();
}

void HRFListWindow::redo()
{
    m_list.redo();
}

/// As text for people, and as files for file managers. The paths are those that the list shows.
void HRFListWindow::copyPath()
{
    std::vector<HRFFileReference> paths;
    QStringList texts;
    for (const HRFMetaFile *file : m_list.fileController().selectedObjects()) {
        if (const auto path = HRFFileReferenceTable::lastKnownFileForURL(file->fileURL())) {
            paths.push_back(*path);
            texts.append(path->displayPath());
        }
    }
    auto copied = HRFFileURIs::mimeData(paths);
    copied->setText(texts.join(u'\n'));
    QGuiApplication::clipboard()->setMimeData(copied.release());
}

void HRFListWindow::remove()
{
    m_list.remove();
}

void HRFListWindow::clear()
{
    m_list.clear();
}

void HRFListWindow::selectAll()
{
    if (m_filterField->hasFocus())
        m_filterField->selectAll();
    else
        m_view->selectAll();
}

void HRFListWindow::focusFilterField()
{
    m_filterField->setFocus(Qt::ShortcutFocusReason);
    m_filterField->selectAll();
}

void HRFListWindow::filterCurrentColumn()
{
    const int current = m_view->currentIndex().column();
    m_header->requestFilter(current > 0 && hasCurrentColumn() ? current
                                                              : m_header->shownColumns().back());
}

void HRFListWindow::clearFilters()
{
    m_filter->clear();
}

void HRFListWindow::showPreferences()
{
    m_application.showPreferences();
}

void HRFListWindow::editCell()
{
    m_view->editCurrent();
}

void HRFListWindow::strip()
{
    m_list.strip();
}

void HRFListWindow::moveColumn(int step)
{
    m_header->moveColumn(m_view->currentIndex().column(), step);
    m_view->scrollTo(m_view->currentIndex());
}

void HRFListWindow::moveColumnLeft()
{
    moveColumn(-1);
}

void HRFListWindow::moveColumnRight()
{
    moveColumn(1);
}

void HRFListWindow::fitColumnWidth()
{
    m_view->fitColumn(m_view->currentIndex().column());
}

void HRFListWindow::makeRowsHigher()
{
    m_view->zoom(1);
}

void HRFListWindow::makeRowsLower()
{
    m_view->zoom(-1);
}

void HRFListWindow::makeRowsUsual()
{
    m_view->zoom(0);
}

void HRFListWindow::toggleSidebar()
{
    m_splitter->setShowsSidebar(!m_splitter->showsSidebar());
    m_commands->action(u"sidebar"_s)->setChecked(m_splitter->showsSidebar());
    if (!m_splitter->showsSidebar())
        m_view->setFocus();
}

void HRFListWindow::editInSidebar()
{
    if (!m_splitter->showsSidebar())
        toggleSidebar();
    m_sidebar->focusFirstField();
}

void HRFListWindow::configureSidebar()
{
    m_sidebar->configure();
}

void HRFListWindow::reloadArtworkPane()
{
    m_sidebar->artworkPane().reload();
    m_thumbnails.forgetFailures();
}

void HRFListWindow::toggleFullScreen()
{
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

void HRFListWindow::showAbout()
{
    QMessageBox::about(this, tr("About Lirra"),
                       tr("<h3>Lirra %1</h3><p>Edits the tags of audio files.</p>")
                           .arg(QStringLiteral(LIRRA_VERSION)));
}

bool HRFListWindow::canAdd() const
{
    return m_list.validateUserInterfaceItem(u"add:"_s);
}

bool HRFListWindow::canRemove() const
{
    return m_list.validateUserInterfaceItem(u"remove:"_s);
}

bool HRFListWindow::canClear() const
{
    return m_list.validateUserInterfaceItem(u"clear:"_s);
}

bool HRFListWindow::canStrip() const
{
    return m_list.validateUserInterfaceItem(u"strip:"_s);
}

bool HRFListWindow::canUndo() const
{
    return m_list.undoManager().canUndo();
}

bool HRFListWindow::canRedo() const
{
    return m_list.undoManager().canRedo();
}

bool HRFListWindow::canCloseList() const
{
    return m_application.documents().documents().size() > 1;
}

bool HRFListWindow::hasFiles() const
{
    return m_model->rowCount() > 0;
}

bool HRFListWindow::hasSelection() const
{
    return !m_list.fileController().selectedObjects().empty();
}

bool HRFListWindow::hasFilter() const
{
    return m_filter->isActive();
}

bool HRFListWindow::canMoveColumnLeft() const
{
    return m_header->canMoveColumn(m_view->currentIndex().column(), -1);
}

bool HRFListWindow::canMoveColumnRight() const
{
    return m_header->canMoveColumn(m_view->currentIndex().column(), 1);
}

bool HRFListWindow::hasCurrentColumn() const
{
    const int column = m_view->currentIndex().column();
    return column >= 0 && !m_header->isSectionHidden(column);
}

bool HRFListWindow::canMakeRowsHigher() const
{
    return m_view->canZoom(1);
}

bool HRFListWindow::canMakeRowsLower() const
{
    return m_view->canZoom(-1);
}

bool HRFListWindow::canMakeRowsUsual() const
{
    return m_view->canZoom(0);
}
