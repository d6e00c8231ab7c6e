#include "document/HRFArrayController.h"

#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserDefaults.h"
#include "store/HRFMainContext.h"
#include "store/HRFMetaFile.h"

#include <algorithm>
#include <functional>
#include <unordered_set>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Records = HRFArrayController::Records;

const QString &settingKey()
{
    static const QString key = u"lirra.display.sortDescriptors"_s;
    return key;
}

HRFRecordOrder orderInSettings(const HRFMainContext &context)
{
    const QVariant archive = HRFUserDefaults::standard().valueForKey(settingKey());
    return {HRFUnarchivedSortDescriptors(archive), *context.model()};
}

void requireMainThread()
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
}

Records filesAmong(const std::vector<HRFManagedObject *> &objects)
{
    Records files;
    for (HRFManagedObject *object : objects)
        if (auto *file = dynamic_cast<HRFMetaFile *>(object))
            files.push_back(file);
    return files;
}

/// Tells whether a record is one of some. To be handed to algorithms by reference where they copy.
class Set
{
public:
    explicit Set(const Records &records) : m_records(records.begin(), records.end()) { }
    bool operator()(const HRFMetaFile *record) const { return m_records.contains(record); }

private:
    std::unordered_set<const HRFMetaFile *> m_records;
};

} // namespace

HRFArrayController::HRFArrayController(HRFMainContext &context)
    : m_context(context), m_order(orderInSettings(context))
{
    requireMainThread();
    context.processPendingChanges(); // what is new now shall not be told of as new later
    m_content = context.fetch<HRFMetaFile>();
    rearrangeObjects();
    connect(&context, &HRFMainContext::objectsDidChange, this,
            &HRFArrayController::contextDidChange);
    connect(&HRFUserDefaults::standard(), &HRFUserDefaults::valueChanged, this,
            [this](const QString &key) {
                if (key == settingKey())
                    readSortDescriptors();
            });
}

void HRFArrayController::setSelectedObjects(const Records &records)
{
    requireMainThread();
    Records selected;
    std::ranges::copy_if(m_arranged, std::back_inserter(selected), Set(records));
    if (selected.empty() || selected == m_selected)
        return;
    m_selected = std::move(selected);
    Q_EMIT selectionDidChange();
}

void HRFArrayController::readSortDescriptors()
{
    setOrder(orderInSettings(m_context));
}

void HRFArrayController::setSortDescriptors(const HRFSortDescriptors &descriptors)
{
    requireMainThread();
    setOrder({descriptors, *m_context.model()});
    HRFUserDefaults::standard().setValueForKey(HRFArchivedSortDescriptors(m_order.descriptors()),
                                               settingKey());
}

void HRFArrayController::setOrder(HRFRecordOrder order)
{
    if (order.descriptors() == m_order.descriptors())
        return;
    m_order = std::move(order);
    rearrangeObjects();
}

void HRFArrayController::setFilter(HRFRecordFilter filter)
{
    requireMainThread();
    m_filter = std::move(filter);
    if (m_isSorted)
        arrange();
    else
        rearrangeObjects();
}

void HRFArrayController::rearrangeObjects()
{
    requireMainThread();
    m_sorted = m_content;
    m_order.sort(m_sorted);
    m_isSorted = true;
    arrange();
}

void HRFArrayController::contextDidChange(const HRFContextChanges &changes)
{
    m_isSorted = m_isSorted && changes.updated.empty();
    const Records inserted = filesAmong(changes.inserted);
    const Records deleted = filesAmong(changes.deleted);
    if (inserted.empty() && deleted.empty())
        return;
    Records arranged = m_arranged;
    if (const Set isDeleted(deleted); !deleted.empty())
        for (Records *records : {&m_content, &m_sorted, &arranged})
            std::erase_if(*records, std::cref(isDeleted));
    if (!inserted.empty()) {
        std::ranges::copy(inserted, std::back_inserter(m_content));
        m_order.merge(m_sorted, inserted);
        m_filter = {};
        arranged = m_sorted;
    }
    show(std::move(arranged));
}

/// Shows what the filter lets through.
void HRFArrayController::arrange()
{
    if (!m_filter)
        return show(m_sorted);
    // Records born together stand together in memory: in that order they are gone through in a
    // fraction of the time.
    Records matching;
    std::ranges::copy_if(m_content, std::back_inserter(matching),
                         [this](const HRFMetaFile *record) { return m_filter(*record); });
    Records arranged;
    std::ranges::copy_if(m_sorted, std::back_inserter(arranged), Set(matching));
    show(std::move(arranged));
}

void HRFArrayController::show(Records arranged)
{
    if (arranged == m_arranged)
        return;
    Records selected = selectionAmong(arranged);
    m_arranged = std::move(arranged);
    const bool selectionChanges = selected != m_selected;
    m_selected = std::move(selected);
    Q_EMIT arrangementDidChange();
    if (selectionChanges)
        Q_EMIT selectionDidChange();
}

HRFArrayController::Records HRFArrayController::selectionAmong(const Records &arranged) const
{
    Records selected;
    std::ranges::copy_if(arranged, std::back_inserter(selected), Set(m_selected));
    if (selected.empty() && !arranged.empty())
        selected.push_back(heirOfSelection(arranged));
    return selected;
}

/// The next record below the first selected one that is still there, or else the last.
HRFMetaFile *HRFArrayController::heirOfSelection(const Records &arranged) const
{
    const auto firstSelected =
        m_selected.empty() ? m_arranged.begin() : std::ranges::find(m_arranged, m_selected.front());
    const Set isThere(arranged);
    const auto rowsAbove = std::count_if(m_arranged.begin(), firstSelected, std::cref(isThere));
    return arranged[std::min(std::size_t(rowsAbove), arranged.size() - 1)];
}

void HRFArrayController::remove(const Records &records)
{
    requireMainThread();
    for (HRFMetaFile *record : records)
        m_context.deleteObject(*record);
    m_context.processPendingChanges();
}

void HRFArrayController::removeSelectedObjects()
{
    remove(m_selected);
}

void HRFArrayController::removeArrangedObjects()
{
    remove(m_arranged);
}
