#include "app/HRFListView.h"

#include "app/HRFCellDelegate.h"
#include "app/HRFCellEditors.h"
#include "app/HRFFileURIs.h"
#include "app/HRFIcons.h"
#include "app/HRFListColumn.h"
#include "app/HRFListHeader.h"
#include "app/HRFListModel.h"
#include "app/HRFThumbnails.h"
#include "kit/HRFFileReferenceTable.h"
#include "kit/HRFUserDefaults.h"
#include "store/HRFMetaFile.h"

#include <QDrag>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QtMath>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

const QString heightKey = u"lirra.display.rowHeight"_s;

/// Heights of rows to choose from; they are never lower than a line of text.
constexpr std::array heights{24, 32, 48, 72, 104};
constexpr int usualStep = 0;
constexpr int padding = 8;

} // namespace

HRFListView::HRFListView(HRFListModel &model, HRFThumbnails &thumbnails, HRFListHeader *header,
                         QWidget *parent)
    : QTableView(parent), m_model(model), m_thumbnails(thumbnails)
{
    setObjectName(u"listView"_s);
    setAccessibleName(tr("Files"));
    setHorizontalHeader(header);
    // A click on a title sorts; it does not select the column.
    disconnect(header, SIGNAL(sectionPressed(int)), this, SLOT(selectColumn(int)));
    disconnect(header, SIGNAL(sectionEntered(int)), this, SLOT(_q_selectColumn(int)));
    setModel(&model);
    header->restoreColumns();
    setItemDelegate(new HRFCellDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    setFrameShape(NoFrame);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    connect(&HRFUserDefaults::standard(), &HRFUserDefaults::valueChanged, this,
            [this](const QString &key) {
                if (key == heightKey)
                    rowHeightDidChange();
            });
    // A reset takes the editor away with what stands in it.
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, &HRFListView::commitEditor);
    connect(&thumbnails, &HRFThumbnails::thumbnailsDidChange, this, &HRFListView::updateThumbnails);
    restoreRowHeight();
}

void HRFListView::restoreRowHeight()
{
    const auto *remembered =
        std::ranges::find(heights, int(HRFUserDefaults::standard().integerForKey(heightKey)));
    setRowHeightStep(remembered == heights.end() ? usualStep : int(remembered - heights.begin()));
}

int HRFListView::rowHeight() const
{
    return verticalHeader()->defaultSectionSize();
}

bool HRFListView::canZoom(int steps) const
{
    return steps == 0 ? m_step != usualStep
                      : m_step + steps >= 0 && m_step + steps < int(heights.size());
}

void HRFListView::zoom(int steps)
{
    if (!canZoom(steps))
        return;
    const int step = steps == 0 ? usualStep : m_step + steps;
    HRFUserDefaults::standard().setValueForKey(heights[std::size_t(step)], heightKey);
}

/// Here or in the preferences.
void HRFListView::rowHeightDidChange()
{
    restoreRowHeight();
    fitColumn(HRFListColumns::indexOf(u"artwork"_s));
    scrollToSelection();
}

void HRFListView::fitColumn(int column)
{
    if (HRFListColumns::all()[std::size_t(column)].kind == HRFListColumnKind::Thumbnail)
        horizontalHeader()->resizeSection(column, rowHeight() + padding);
    else
        resizeColumnToContents(column);
}

void HRFListView::setRowHeightStep(int step)
{
    m_step = step;
    verticalHeader()->setDefaultSectionSize(
        std::max(heights[std::size_t(step)], fontMetrics().height() + padding));
}

void HRFListView::scrollToSelection()
{
    const QItemSelection selection = selectionModel()->selection();
    if (selection.isEmpty())
        return;
    const auto first = std::ranges::min_element(selection, {}, &QItemSelectionRange::top);
    const int column = std::max(currentIndex().column(), 0);
    const int bar = horizontalScrollBar()->value();
    scrollTo(model()->index(first->top(), column));
    horizontalScrollBar()->setValue(bar);
}

void HRFListView::editCurrent()
{
    if (currentIndex().flags() & Qt::ItemIsEditable)
        edit(currentIndex());
}

void HRFListView::commitEditor()
{
    // That of the current cell, and those that keep what was no value.
    for (auto *editor : viewport()->findChildren<QWidget *>(u"cellEditor"_s)) {
        if (editor->isHidden() || !HRFCheckCellEditor(*editor))
            continue;
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

void HRFListView::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && event->modifiers().testFlag(Qt::NoModifier) && state() != EditingState)
        editCurrent();
    else
        QTableView::keyPressEvent(event);
}

/// The list is one of rows: Home and End lead to the first and the last of them.
QModelIndex HRFListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action != MoveHome && action != MoveEnd)
        return QTableView::moveCursor(action, modifiers);
    const int row = action == MoveHome ? 0 : m_model.rowCount() - 1;
    return m_model.index(row, std::max(currentIndex().column(), 0));
}

/// The selected files, to be copied by whoever takes them. To look all of them up on the disk would
/// hold the pointer up.
void HRFListView::startDrag(Qt::DropActions /*actions*/)
{
    std::vector<HRFFileReference> files;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            if (const auto file =
                    HRFFileReferenceTable::lastKnownFileForURL(m_model.recordAt(row).fileURL()))
                files.push_back(*file);
    }
    auto *drag = new QDrag(this);
    drag->setMimeData(HRFFileURIs::mimeData(files).release());
    drag->setPixmap(HRFIcons::named(u"audio"_s).pixmap(32));
    drag->exec(Qt::CopyAction);
}

/// Rows and pixels of the screen make the size; both may have changed since the last time.
void HRFListView::paintEvent(QPaintEvent *event)
{
    m_thumbnails.setSize(qCeil(rowHeight() * devicePixelRatioF()));
    QTableView::paintEvent(event);
}

/// Those in view: the others are drawn when they come into it.
void HRFListView::updateThumbnails()
{
    const int column = HRFListColumns::indexOf(u"artwork"_s);
    viewport()->update(columnViewportPosition(column), 0, columnWidth(column),
                       viewport()->height());
}

/// Tab leads to the next cell that can be edited. What is no value stays, also when the user goes
/// to another row, until it is put right or taken back.
void HRFListView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (hint != QAbstractItemDelegate::RevertModelCache && !HRFCheckCellEditor(*editor))
        return;
    const bool isNext = hint == QAbstractItemDelegate::EditNextItem;
    const bool isPrevious = hint == QAbstractItemDelegate::EditPreviousItem;
    QTableView::closeEditor(editor, isNext || isPrevious ? QAbstractItemDelegate::NoHint : hint);
    if (isNext || isPrevious)
        editNext(isNext ? 1 : -1);
}

void HRFListView::editNext(int step)
{
    const QHeaderView &header = *horizontalHeader();
    for (int place = header.visualIndex(currentIndex().column()) + step;
         place >= 0 && place < header.count(); place += step) {
        const QModelIndex next = currentIndex().siblingAtColumn(header.logicalIndex(place));
        if (!header.isSectionHidden(next.column()) && next.flags() & Qt::ItemIsEditable) {
            selectionModel()->setCurrentIndex(next, QItemSelectionModel::NoUpdate);
            return edit(next);
        }
    }
}
