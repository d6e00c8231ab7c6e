#pragma once

#include "document/HRFRecordFilter.h"
#include "document/HRFRecordOrder.h"

#include <QObject>

class HRFMainContext;
struct HRFContextChanges;

/// Arranges, filters and selects the records of a list, for the main thread alone.
///
/// Its content is all MetaFile records of a main context. New records are put in their places and
/// clear the filter, since the user shall see what was added. Edits do not move records; they go to
/// their places when the list is next sorted or filtered. Something is always selected, unless
/// nothing is shown; when all selected records go, it is the one below them.
class HRFArrayController : public QObject
{
    Q_OBJECT
public:
    using Records = HRFRecordOrder::Records;

    /// The context must live longer.
    explicit HRFArrayController(HRFMainContext &context);

    /// The records shown, in their order.
    const Records &arrangedObjects() const { return m_arranged; }
    /// Those of them that are selected, in the same order.
    const Records &selectedObjects() const { return m_selected; }
    /// Selects records as far as they are shown. When none is, the selection stays.
    void setSelectedObjects(const Records &records);

    /// The order of every list: it is the setting "lirra.display.sortDescriptors".
    const HRFSortDescriptors &sortDescriptors() const { return m_order.descriptors(); }
    void setSortDescriptors(const HRFSortDescriptors &descriptors);

    bool hasFilter() const { return bool(m_filter); }
    void setFilter(HRFRecordFilter filter);
    void clearFilter() { setFilter({}); }
    /// Sorts and filters anew, with the values as they are now.
    void rearrangeObjects();

    /// Delete records from the context; the changes are told of when these return.
    void removeSelectedObjects();
    void removeArrangedObjects();

Q_SIGNALS:
    void arrangementDidChange();
    void selectionDidChange();

private:
    void readSortDescriptors();
    void setOrder(HRFRecordOrder order);
    void contextDidChange(const HRFContextChanges &changes);
    void arrange();
    void show(Records arranged);
    Records selectionAmong(const Records &arranged) const;
    HRFMetaFile *heirOfSelection(const Records &arranged) const;
    void remove(const Records &records);

    HRFMainContext &m_context;
    HRFRecordOrder m_order;
    HRFRecordFilter m_filter;
    Records m_content; ///< every record, in the order of birth
    Records m_sorted; ///< the same in the order of the list
    bool m_isSorted = true; ///< nothing was edited since the records were sorted
    Records m_arranged;
    Records m_selected;
};
