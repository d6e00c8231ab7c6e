#include "app/HRFSelectionLink.h"

#include "app/HRFListModel.h"

#include <QItemSelectionModel>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

/// The selected rows of a view in ascending order.
std::vector<HRFRowRange> rangesOf(const QItemSelection &selection)
{
    std::vector<HRFRowRange> ranges;
    for (const QItemSelectionRange &range : selection)
        if (range.isValid())
            ranges.push_back({range.top(), range.bottom()});
    std::ranges::sort(ranges, {}, &HRFRowRange::first);
    std::vector<HRFRowRange> merged;
    for (const HRFRowRange range : ranges) {
        if (!merged.empty() && range.first <= merged.back().last + 1)
            merged.back().last = std::max(merged.back().last, range.last);
        else
            merged.push_back(range);
    }
    return merged;
}

} // namespace

HRFSelectionLink::HRFSelectionLink(HRFArrayController &controller, HRFListModel &model,
                                   QItemSelectionModel &selection)
    : m_controller(controller), m_model(model), m_selection(selection)
{
    connect(&selection, &QItemSelectionModel::selectionChanged, this,
            &HRFSelectionLink::takeFromView);
    connect(&selection, &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) {
                if (!current.isValid())
                    return;
                m_currentRecord = &m_model.recordAt(current.row());
                m_currentColumn = current.column();
            });
    // After the model, which was told of the new arrangement first.
    connect(&controller, &HRFArrayController::arrangementDidChange, this,
            &HRFSelectionLink::giveToView);
    connect(&controller, &HRFArrayController::selectionDidChange, this,
            &HRFSelectionLink::giveToView);
    giveToView();
}

void HRFSelectionLink::takeFromView()
{
    if (m_isGiving || m_model.isChangingRows())
        return;
    HRFArrayController::Records records;
    for (const HRFRowRange range : rangesOf(m_selection.selection()))
        for (int row = range.first; row <= range.last; ++row)
            records.push_back(&m_model.recordAt(row));
    m_controller.setSelectedObjects(records);
    if (records.empty()) // the list does not go along with that
        QMetaObject::invokeMethod(this, &HRFSelectionLink::giveToView, Qt::QueuedConnection);
}

void HRFSelectionLink::giveToView()
{
    const std::vector<int> rows = m_model.rowsOf(m_controller.selectedObjects());
    const std::vector<HRFRowRange> ranges = HRFRangesOfRows(rows);
    if (ranges == rangesOf(m_selection.selection()))
        return restoreCurrent(rows);
    const QScopedValueRollback isGiving(m_isGiving, true);
    QItemSelection selection;
    const int lastColumn = m_model.columnCount() - 1;
    for (const HRFRowRange range : ranges)
        selection.append({m_model.index(range.first, 0), m_model.index(range.last, lastColumn)});
    m_selection.select(selection, QItemSelectionModel::ClearAndSelect);
    restoreCurrent(rows);
}

/// The current cell is one of a selected row.
void HRFSelectionLink::restoreCurrent(const std::vector<int> &rows)
{
    if (rows.empty() || m_selection.isSelected(m_selection.currentIndex()))
        return;
    const auto found = std::ranges::find_if(
        rows, [this](int row) { return &m_model.recordAt(row) == m_currentRecord; });
    const int row = found == rows.end() ? rows.front() : *found;
    m_selection.setCurrentIndex(m_model.index(row, m_currentColumn), QItemSelectionModel::NoUpdate);
}
