#pragma once

#include <QTableView>

class HRFListHeader;
class HRFListModel;
class HRFThumbnails;

/// The table of a list.
class HRFListView : public QTableView
{
    Q_OBJECT
public:
    HRFListView(HRFListModel &model, HRFThumbnails &thumbnails, HRFListHeader *header,
                QWidget *parent);

    int rowHeight() const;
    /// Makes the rows, and the thumbnails in them, higher or lower by some steps; 0 brings the
    /// usual height back. The height is remembered.
    void zoom(int steps);
    bool canZoom(int steps) const;

    /// Makes a column as wide as what stands in it.
    void fitColumn(int column);
    void scrollToSelection();
    /// Opens the editor of the current cell.
    void editCurrent();
    /// Takes what was typed into the editor of a cell, and closes it, if it is a value.
    void commitEditor();

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void startDrag(Qt::DropActions actions) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void editNext(int step);
    void updateThumbnails();
    void restoreRowHeight();
    void rowHeightDidChange();
    void setRowHeightStep(int step);

    HRFListModel &m_model;
    HRFThumbnails &m_thumbnails;
    int m_step = 0; ///< in the table of heights
};
