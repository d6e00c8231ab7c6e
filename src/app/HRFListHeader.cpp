#include "app/HRFListHeader.h"

#include "app/HRFIcons.h"
#include "app/HRFListColumn.h"
#include "document/HRFArrayController.h"
#include "kit/HRFUserDefaults.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleOptionHeader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString settingKey = u"lirra.display.columns"_s;

constexpr int buttonSize = 16;
constexpr int arrowSize = 10;
constexpr int numberSize = 9;
constexpr int sideMargin = 5;
constexpr int narrowest = 24;
constexpr int usualWidth = 120;

/// The columns of a new list, as they are remembered: "NAME:WIDTH".
const QStringList &defaultLayout()
{
    static const QStringList layout{
        u"artwork:32"_s,     u"fileName:210"_s, u"title:200"_s, u"artist:150"_s, u"album:170"_s,
        u"trackNumber:64"_s, u"year:56"_s,      u"genre:100"_s, u"rating:92"_s,  u"duration:76"_s};
    return layout;
}

QString keyPathOf(int column)
{
    const HRFAttributeDescription *attribute =
        HRFListColumns::all()[std::size_t(column)].attribute();
    return attribute ? attribute->path() : QString();
}

} // namespace

HRFListHeader::HRFListHeader(HRFArrayController &controller, QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent), m_controller(controller)
{
    setObjectName(u"listHeader"_s);
    setAccessibleName(tr("Column titles"));
    setSectionsMovable(true);
    setFirstSectionMovable(true);
    setSectionsClickable(true);
    setHighlightSections(false);
    setStretchLastSection(true);
    setMinimumSectionSize(narrowest);
    setTextElideMode(Qt::ElideRight);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setMouseTracking(true);
    connect(this, &QHeaderView::sectionClicked, this, [this](int column) {
        sortBy(column, QGuiApplication::keyboardModifiers() & Qt::ShiftModifier);
    });
    connect(this, &QHeaderView::sectionResized, this, &HRFListHeader::rememberColumns);
    connect(this, &QHeaderView::sectionMoved, this, &HRFListHeader::rememberColumns);
    connect(&controller, &HRFArrayController::arrangementDidChange, viewport(),
            qOverload<>(&QWidget::update));
}

void HRFListHeader::restoreColumns()
{
    const auto stored = HRFUserDefaults::standard().stringForKey(settingKey);
    applyColumns(stored ? stored->split(u' ', Qt::SkipEmptyParts) : defaultLayout());
    if (shownColumns().empty())
        applyColumns(defaultLayout());
}

void HRFListHeader::showDefaultColumns()
{
    applyColumns(defaultLayout());
    rememberColumns();
    Q_EMIT shownColumnsDidChange();
}

/// Columns that are not named are hidden; they stand behind the others.
void HRFListHeader::applyColumns(const QStringList &layout)
{
    const QScopedValueRollback isRestoring(m_isRestoring, true);
    for (int column = 0; column < count(); ++column)
        setSectionHidden(column, true);
    int place = 0;
    for (const QString &entry : layout) {
        const int column = HRFListColumns::indexOf(entry.section(u':', 0, 0));
        const int width = entry.section(u':', 1).toInt();
        if (column < 0 || !isSectionHidden(column))
            continue;
        setSectionHidden(column, false);
        moveSection(visualIndex(column), place++);
        resizeSection(column, std::max(width, narrowest));
    }
}

void HRFListHeader::rememberColumns() const
{
    if (m_isRestoring)
        return;
    QStringList layout;
    const std::vector<int> shown = shownColumns();
    for (const int column : shown) {
        // The last one takes all the room that is left, which says nothing.
        const int width = column == shown.back() ? std::min(sectionSize(column), usualWidth)
                                                 : sectionSize(column);
        layout += u"%1:%2"_s.arg(HRFListColumns::all()[std::size_t(column)].name).arg(width);
    }
    HRFUserDefaults::standard().setValueForKey(layout.join(u' '), settingKey);
}

std::vector<int> HRFListHeader::shownColumns() const
{
    std::vector<int> columns;
    for (int place = 0; place < count(); ++place)
        if (const int column = logicalIndex(place); !isSectionHidden(column))
            columns.push_back(column);
    return columns;
}

void HRFListHeader::setColumnShown(int column, bool isShown)
{
    const auto shown = shownColumns();
    if (isShown != isSectionHidden(column) || (!isShown && shown.size() == 1))
        return; // something must be left
    setSectionHidden(column, !isShown);
    if (isShown) {
        moveSection(visualIndex(column), int(shown.size()));
        if (sectionSize(column) < usualWidth)
            resizeSection(column, usualWidth);
    }
    rememberColumns();
    Q_EMIT shownColumnsDidChange();
}

/// The column that a column changes places with; -1 for none.
int HRFListHeader::neighbour(int column, int step) const
{
    const std::vector<int> shown = shownColumns();
    const auto place = std::ranges::find(shown, column) - shown.begin();
    const bool isThere =
        place < std::ssize(shown) && place + step >= 0 && place + step < std::ssize(shown);
    return isThere ? shown[std::size_t(place + step)] : -1;
}

bool HRFListHeader::canMoveColumn(int column, int step) const
{
    return neighbour(column, step) >= 0;
}

void HRFListHeader::moveColumn(int column, int step)
{
    if (const int other = neighbour(column, step); other >= 0)
        moveSection(visualIndex(column), visualIndex(other));
}

void HRFListHeader::sortBy(int column, bool isFurther)
{
    const QString keyPath = keyPathOf(column);
    if (keyPath.isEmpty())
        return;
    HRFSortDescriptors descriptors = m_controller.sortDescriptors();
    const auto present = std::ranges::find(descriptors, keyPath, &HRFSortDescriptor::keyPath);
    const bool isAscending = present == descriptors.end() || !present->ascending;
    if (!isFurther)
        descriptors = {{keyPath, isAscending}};
    else if (present == descriptors.end())
        descriptors.push_back({keyPath, true});
    else
        present->ascending = isAscending;
    m_controller.setSortDescriptors(descriptors);
    viewport()->update();
}

void HRFListHeader::setFilteredColumns(const QSet<int> &columns)
{
    m_filtered = columns;
    viewport()->update();
}

void HRFListHeader::addColumnActions(QMenu &menu)
{
    for (const HRFListColumnGroup &group : HRFListColumns::groups()) {
        QMenu *part = menu.addMenu(group.title);
        for (const int column : group.columns) {
            QAction *action = part->addAction(HRFListColumns::all()[std::size_t(column)].title);
            action->setCheckable(true);
            action->setChecked(!isSectionHidden(column));
            connect(action, &QAction::toggled, this,
                    [this, column](bool isShown) { setColumnShown(column, isShown); });
        }
    }
    menu.addSeparator();
    connect(menu.addAction(tr("Restore Default Columns")), &QAction::triggered, this,
            &HRFListHeader::showDefaultColumns);
}

void HRFListHeader::addSortAction(QMenu &menu, int column, bool isFurther)
{
    QAction *action = menu.addAction(HRFListColumns::all()[std::size_t(column)].title);
    action->setCheckable(true);
    action->setChecked(sortPlace(column) > 0);
    connect(action, &QAction::triggered, this,
            [this, column, isFurther] { sortBy(column, isFurther); });
}

void HRFListHeader::addSortActions(QMenu &menu)
{
    auto *further = new QMenu(tr("&Then By"), &menu);
    further->setEnabled(!m_controller.sortDescriptors().empty());
    for (const int column : shownColumns()) {
        if (keyPathOf(column).isEmpty())
            continue;
        addSortAction(menu, column, false);
        if (sortPlace(column) != 1)
            addSortAction(*further, column, true);
    }
    menu.addSeparator();
    menu.addMenu(further);
    connect(menu.addAction(tr("Order of Adding")), &QAction::triggered, this, [this] {
        m_controller.setSortDescriptors({});
        viewport()->update();
    });
}

QRect HRFListHeader::sectionRect(int column) const
{
    return {sectionViewportPosition(column), 0, sectionSize(column), height()};
}

/// Whether the list is sorted by a column first (1), next (2), ...; 0 for not at all.
int HRFListHeader::sortPlace(int column) const
{
    const HRFSortDescriptors &descriptors = m_controller.sortDescriptors();
    const auto present =
        std::ranges::find(descriptors, keyPathOf(column), &HRFSortDescriptor::keyPath);
    return present == descriptors.end() ? 0 : int(present - descriptors.begin()) + 1;
}

/// One alone needs no number.
bool HRFListHeader::showsSortPlace(int column) const
{
    return m_controller.sortDescriptors().size() > 1 && sortPlace(column) > 0;
}

/// Where the arrow of a column is, with its number before it where there are several.
QRect HRFListHeader::sortRect(int column) const
{
    const QRect section = sectionRect(column);
    const int arrow = sortPlace(column) > 0 ? sideMargin + arrowSize : 0;
    const int width = arrow + (showsSortPlace(column) ? numberSize : 0);
    return {section.right() - width, section.top(), width, section.height()};
}

/// Where the filter button of a column is: at the end, but before the arrow.
QRect HRFListHeader::filterRect(int column) const
{
    const QRect section = sectionRect(column);
    const int right = section.right() - sortRect(column).width();
    return {right - sideMargin - buttonSize, section.top() + (section.height() - buttonSize) / 2,
            buttonSize, buttonSize};
}

bool HRFListHeader::showsFilterButton(int column) const
{
    constexpr int roomForTitle = 40;
    return !keyPathOf(column).isEmpty()
        && (m_filtered.contains(column)
            || (m_hovered == column && sectionSize(column) > buttonSize + roomForTitle));
}

void HRFListHeader::initStyleOptionForIndex(QStyleOptionHeader *option, int column) const
{
    QHeaderView::initStyleOptionForIndex(option, column);
    if (const int place = sortPlace(column); place > 0) {
        option->sortIndicator = m_controller.sortDescriptors()[std::size_t(place - 1)].ascending
            ? QStyleOptionHeader::SortDown
            : QStyleOptionHeader::SortUp;
    }
    int room = option->rect.width() - 2 * sideMargin - sortRect(column).width();
    if (showsFilterButton(column))
        room -= buttonSize + sideMargin;
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, room);
    if (!(option->textAlignment & Qt::AlignRight))
        return;
    option->text += QChar::Nbsp; // keeps away from the next title
    if (!showsSortPlace(column))
        return;
    const int blank = option->fontMetrics.horizontalAdvance(QChar::Nbsp);
    option->text += QString((numberSize + sideMargin) / std::max(blank, 1), QChar::Nbsp);
}

QSize HRFListHeader::sectionSizeFromContents(int column) const
{
    const QSize size = QHeaderView::sectionSizeFromContents(column);
    return {size.width() + sortRect(column).width(), size.height()};
}

void HRFListHeader::paintSection(QPainter *painter, const QRect &rect, int column) const
{
    painter->save();
    QHeaderView::paintSection(painter, rect, column);
    painter->restore();
    if (showsSortPlace(column))
        paintSortPlace(*painter, column);
    if (showsFilterButton(column))
        HRFIcons::named(u"filter"_s).paint(painter, filterRect(column));
}

void HRFListHeader::paintSortPlace(QPainter &painter, int column) const
{
    constexpr double scale = 0.75;
    painter.save();
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * scale);
    painter.setFont(small);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(sortRect(column).adjusted(0, 0, -arrowSize - sideMargin, 0), Qt::AlignCenter,
                     locale().toString(sortPlace(column)));
    painter.restore();
}

void HRFListHeader::requestFilter(int column)
{
    Q_EMIT filterRequested(column, viewport()->mapToGlobal(sectionRect(column).bottomLeft()));
}

void HRFListHeader::mousePressEvent(QMouseEvent *event)
{
    const int column = logicalIndexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && column >= 0 && showsFilterButton(column)
        && filterRect(column).contains(event->position().toPoint())) {
        return requestFilter(column);
    }
    QHeaderView::mousePressEvent(event);
}

void HRFListHeader::mouseMoveEvent(QMouseEvent *event)
{
    setHoveredColumn(logicalIndexAt(event->position().toPoint()));
    QHeaderView::mouseMoveEvent(event);
}

void HRFListHeader::leaveEvent(QEvent *event)
{
    setHoveredColumn(-1);
    QHeaderView::leaveEvent(event);
}

void HRFListHeader::setHoveredColumn(int column)
{
    if (std::exchange(m_hovered, column) != column)
        viewport()->update();
}

void HRFListHeader::contextMenuEvent(QContextMenuEvent *event)
{
    const int column = logicalIndexAt(event->pos());
    QMenu menu(this);
    if (column >= 0) {
        const QString title = HRFListColumns::all()[std::size_t(column)].title;
        if (!keyPathOf(column).isEmpty())
            connect(menu.addAction(tr("Filter by “%1”…").arg(title)), &QAction::triggered, this,
                    [this, column] { requestFilter(column); });
        QAction *hide = menu.addAction(tr("Hide “%1”").arg(title));
        hide->setEnabled(shownColumns().size() > 1);
        connect(hide, &QAction::triggered, this, [this, column] { setColumnShown(column, false); });
        menu.addSeparator();
    }
    addColumnActions(menu);
    menu.exec(event->globalPos());
}
