#include "app/HRFListWindow.h"

#include "app/HRFApplicationDelegate.h"
#include "app/HRFDebugMenu.h"
#include "app/HRFEmptyListHint.h"
#include "app/HRFFileURIs.h"
#include "app/HRFFilterMenu.h"
#include "app/HRFIcons.h"
#include "app/HRFImportNotice.h"
#include "app/HRFListCommands.h"
#include "app/HRFListFilter.h"
#include "app/HRFListHeader.h"
#include "app/HRFListModel.h"
#include "app/HRFListView.h"
#include "app/HRFPendingWork.h"
#include "app/HRFSelectionLink.h"
#include "app/HRFSheets.h"
#include "app/HRFSidebar.h"
#include "app/HRFSidebarSplitter.h"
#include "app/HRFStatusLine.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFUserDefaults.h"

#include <QDialog>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString geometryKey = u"lirra.display.windowGeometry"_s;
constexpr QSize usualSize(1180, 680);

} // namespace

HRFListWindow::HRFListWindow(HRFPlaylist &list, HRFApplicationDelegate &application)
    : m_list(list)
    , m_application(application)
    , m_model(std::make_unique<HRFListModel>(list, m_thumbnails))
{
    setObjectName(u"listWindow"_s);
    setWindowTitle(tr("Lirra"));
    setAcceptDrops(true);
    makeTable();
    makeBars();
    connectDocument();
    const QByteArray geometry = QByteArray::fromBase64(
        HRFUserDefaults::standard().stringForKey(geometryKey).value_or(QString()).toLatin1());
    if (!restoreGeometry(geometry))
        resize(usualSize);
    filterDidChange();
    showHintIfEmpty();
    m_commands->validate();
    m_view->setFocus();
}

HRFListWindow::~HRFListWindow() = default;

void HRFListWindow::makeTable()
{
    m_header = new HRFListHeader(m_list.fileController(), this);
    m_view = new HRFListView(*m_model, m_thumbnails, m_header, this);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_sidebar = new HRFSidebar(m_list, this);
    m_splitter = new HRFSidebarSplitter(*m_view, *m_sidebar, this);
    setCentralWidget(m_splitter);
    m_selectionLink = std::make_unique<HRFSelectionLink>(m_list.fileController(), *m_model,
                                                         *m_view->selectionModel());
    m_filter = new HRFListFilter(m_list, this);
    m_filter->setSearchedColumns(m_header->shownColumns());
    m_hint = new HRFEmptyListHint(*m_view);
}

void HRFListWindow::makeBars()
{
    m_commands = new HRFListCommands(*this);
    menuBar()->setObjectName(u"menuBar"_s);
    m_commands->fill(*menuBar());
    QAction *help = menuBar()->actions().constLast();
    menuBar()->insertMenu(help, new HRFDebugMenu(m_application, menuBar()));
    m_commands->action(u"sidebar"_s)->setCheckable(true);
    m_commands->action(u"sidebar"_s)->setChecked(m_splitter->showsSidebar());
    QToolBar *bar = addToolBar(tr("Tool Bar"));
    bar->setObjectName(u"toolBar"_s);
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    m_commands->fill(*bar);
    makeFilterField(*bar);
    statusBar()->setObjectName(u"statusBar"_s);
    statusBar()->addWidget(new HRFStatusLine(m_list, this), 1);
    statusBar()->addPermanentWidget(new HRFImportNotice(m_list, this));
    statusBar()->addPermanentWidget(new HRFPendingWork(m_list, this));
}

void HRFListWindow::makeFilterField(QToolBar &bar)
{
    constexpr int width = 260;
    auto *space = new QWidget(&bar);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar.addWidget(space);
    m_filterField = new QLineEdit(&bar);
    m_filterField->setObjectName(u"filterField"_s);
    m_filterField->setAccessibleName(tr("Filter"));
    m_filterField->setPlaceholderText(tr("Filter"));
    m_filterField->setToolTip(tr("Show the files that have these words in a shown column"));
    m_filterField->setClearButtonEnabled(true);
    m_filterField->addAction(HRFIcons::named(u"search"_s), QLineEdit::LeadingPosition);
    m_filterField->setMaximumWidth(width);
    m_filterField->setMinimumWidth(width / 2);
    bar.addWidget(m_filterField);
    connect(m_filterField, &QLineEdit::returnPressed, this, &HRFListWindow::focusInitialControl);
    auto *escape = new QShortcut(Qt::Key_Escape, m_filterField, {}, {}, Qt::WidgetShortcut);
    connect(escape, &QShortcut::activated, this, [this] {
        m_filterField->clear();
        focusInitialControl();
    });
}

void HRFListWindow::connectDocument()
{
    const HRFArrayController &files = m_list.fileController();
    const QUndoStack &undo = m_list.undoManager();
    m_validation.setSingleShot(true);
    m_validation.setInterval(0);
    connect(&m_validation, &QTimer::timeout, m_commands, &HRFListCommands::validate);
    connect(&files, &HRFArrayController::selectionDidChange, this, &HRFListWindow::validateSoon);
    connect(&files, &HRFArrayController::arrangementDidChange, this, [this] {
        showHintIfEmpty();
        validateSoon();
    });
    connect(&undo, &QUndoStack::indexChanged, this, &HRFListWindow::validateSoon);
    connect(&HRFUserDefaults::standard(), &HRFUserDefaults::valueChanged, this,
            &HRFListWindow::validateSoon);
    connect(m_filterField, &QLineEdit::textChanged, m_filter, &HRFListFilter::setWords);
    connect(m_filter, &HRFListFilter::didChange, this, &HRFListWindow::filterDidChange);
    connect(m_header, &HRFListHeader::filterRequested, this, &HRFListWindow::showFilterMenu);
    connect(m_header, &HRFListHeader::shownColumnsDidChange, this,
            [this] { m_filter->setSearchedColumns(m_header->shownColumns()); });
    connect(m_header, &HRFListHeader::shownColumnsDidChange, this, &HRFListWindow::validateSoon);
    connect(m_header, &QHeaderView::sectionMoved, this, &HRFListWindow::validateSoon);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentColumnChanged, this,
            &HRFListWindow::validateSoon);
    connect(m_view, &QWidget::customContextMenuRequested, this, &HRFListWindow::showRowMenu);
}

void HRFListWindow::filterDidChange()
{
    const QSignalBlocker isTold(m_filterField);
    if (m_filterField->text() != m_filter->words())
        m_filterField->setText(m_filter->words());
    m_header->setFilteredColumns(m_filter->filteredColumns());
    showHintIfEmpty();
    validateSoon();
}

void HRFListWindow::showFilterMenu(int column, const QPoint &corner)
{
    auto *menu = new HRFFilterMenu(*m_filter, column, this);
    menu->showAt(corner);
}

void HRFListWindow::showHintIfEmpty()
{
    m_hint->setVisible(m_model->rowCount() == 0);
    if (m_list.fileController().hasFilter()) {
        m_hint->setText(tr("No matching files"), tr("Change the filter to see more files."));
        return;
    }
    m_hint->setText(
        tr("Drop files or folders here"),
        tr("or choose Add Files (%1) or Add Folder (%2)")
            .arg(m_commands->shortcutOf(u"addFiles"_s), m_commands->shortcutOf(u"addFolder"_s)));
}

void HRFListWindow::showRowMenu(const QPoint &position)
{
    if (!hasSelection())
        return;
    QMenu menu(this);
    m_commands->fillContextMenu(menu);
    menu.exec(m_view->viewport()->mapToGlobal(position));
}

void HRFListWindow::commitEditing()
{
    m_view->commitEditor();
    m_sidebar->commit();
    m_list.managedObjectContext().processPendingChanges();
}

void HRFListWindow::showWindows()
{
    show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

bool HRFListWindow::hasAttachedSheet() const
{
    return HRFSheets::areOn(*this);
}

bool HRFListWindow::presentQuestion()
{
    QDialog *question = HRFSheets::questionOn(*this);
    if (!question)
        return false;
    showWindows();
    question->raise();
    question->activateWindow();
    return true;
}

void HRFListWindow::runAddPanel(const QStringList &fileTypes)
{
    QStringList patterns;
    for (const QString &type : fileTypes)
        patterns.append({u"*."_s + type, u"*."_s + type.toUpper()});
    auto *panel = new QFileDialog(this, tr("Add Files"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFiles);
    panel->setNameFilters({tr("Audio Files (%1)").arg(patterns.join(u' ')), tr("All Files (*)")});
    panel->setLabelText(QFileDialog::Accept, tr("Add"));
    connect(panel, &QFileDialog::urlsSelected, this, &HRFListWindow::addURLs);
    panel->open();
}

void HRFListWindow::addURLs(const QList<QUrl> &urls)
{
    std::vector<HRFFileReference> files;
    for (const QUrl &url : urls)
        if (url.isLocalFile())
            files.push_back(HRFFileReference::fromUrl(url));
    if (!files.empty())
        m_list.importFilesAtPaths(files);
}

void HRFListWindow::focusFilterFieldIfNeeded()
{
    if (m_model->rowCount() == 0 && m_filter->isActive())
        m_filterField->setFocus();
}

void HRFListWindow::clearFilterField()
{
    m_filter->clear();
}

void HRFListWindow::focusInitialControl()
{
    m_view->setFocus();
}

void HRFListWindow::scrollToSelection()
{
    m_view->scrollToSelection();
}

void HRFListWindow::closeEvent(QCloseEvent *event)
{
    commitEditing();
    event->ignore(); // the window goes when its list does
    if (!presentQuestion() && !hasAttachedSheet())
        m_application.close(*this);
}

void HRFListWindow::rememberGeometry() const
{
    HRFUserDefaults::standard().setValueForKey(QString::fromLatin1(saveGeometry().toBase64()),
                                               geometryKey);
}

bool HRFListWindow::event(QEvent *event)
{
    // A sheet has come or gone.
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowUnblocked)
        validateSoon();
    return QMainWindow::event(event);
}

void HRFListWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_application.documents().setCurrentDocument(&m_list);
}

void HRFListWindow::hideEvent(QHideEvent *event)
{
    rememberGeometry();
    QMainWindow::hideEvent(event);
}

void HRFListWindow::dragEnterEvent(QDragEnterEvent *event)
{
    // Rows that are dragged out are in the list already.
    if (event->source() != m_view && !hasAttachedSheet()
        && event->mimeData()->hasFormat(u"text/uri-list"_s)) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void HRFListWindow::dropEvent(QDropEvent *event)
{
    const std::vector<HRFFileReference> files = HRFFileURIs::filesOf(*event->mimeData());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (!files.empty())
        m_list.importFilesAtPaths(files);
}
