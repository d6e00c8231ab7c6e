#pragma once

#include <QHeaderView>

class HRFArrayController;
class QMenu;

/// The titles of a list's columns: which are shown, how wide and in what order, which the list is
/// sorted by, and which are filtered. What columns are shown is remembered in the settings.
class HRFListHeader : public QHeaderView
{
    Q_OBJECT
public:
    HRFListHeader(HRFArrayController &controller, QWidget *parent);

    /// To be called when the header has its model.
    void restoreColumns();
    void showDefaultColumns();
    void setColumnShown(int column, bool isShown);
    /// The numbers of the shown columns from left to right.
    std::vector<int> shownColumns() const;
    /// Moves a shown column by a step to the left (-1) or to the right (1), among those shown.
    void moveColumn(int column, int step);
    bool canMoveColumn(int column, int step) const;

    /// Sorts by a column, or the other way round when the list is sorted by it.
    /// @param isFurther keeps the columns that the list is sorted by, for what is equal in them
    void sortBy(int column, bool isFurther);

    void setFilteredColumns(const QSet<int> &columns);

    /// Asks for the filter of a column.
    void requestFilter(int column);

    /// Fills a menu with all columns, those shown checked.
    void addColumnActions(QMenu &menu);
    void addSortActions(QMenu &menu);

Q_SIGNALS:
    /// The user wants to filter by a column.
    /// @param corner where a menu is to appear, on the screen
    void filterRequested(int column, const QPoint &corner);
    void shownColumnsDidChange();

protected:
    QSize sectionSizeFromContents(int column) const override;
    void initStyleOptionForIndex(QStyleOptionHeader *option, int column) const override;
    void paintSection(QPainter *painter, const QRect &rect, int column) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void rememberColumns() const;
    void applyColumns(const QStringList &layout);
    QRect sectionRect(int column) const;
    QRect filterRect(int column) const;
    void addSortAction(QMenu &menu, int column, bool isFurther);
    int neighbour(int column, int step) const;
    int sortPlace(int column) const;
    void paintSortPlace(QPainter &painter, int column) const;
    bool showsSortPlace(int column) const;
    QRect sortRect(int column) const;
    bool showsFilterButton(int column) const;
    void setHoveredColumn(int column);

    HRFArrayController &m_controller;
    QSet<int> m_filtered;
    int m_hovered = -1;
    bool m_isRestoring = false;
};
