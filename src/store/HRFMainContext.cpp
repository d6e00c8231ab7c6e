#include "store/HRFMainContext.h"

#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserInteraction.h"
#include "store/HRFObjectStore.h"

#include <QScopedValueRollback>
#include <QUndoCommand>

#include <algorithm>
#include <set>
#include <utility>

/// The values that one event changed, before and after.
class HRFEditCommand : public QUndoCommand
{
public:
    struct Change
    {
        HRFObjectID objectID;
        int property;
        QVariant before;
        QVariant after;
    };

    HRFEditCommand(HRFMainContext &context, std::vector<Change> changes, const QString &name)
        : QUndoCommand(name), m_context(context), m_changes(std::move(changes))
    {
    }

    void undo() override
    {
        apply([](const Change &change) { return change.before; });
    }
    void redo() override
    {
        if (std::exchange(m_isApplied, true))
            apply([](const Change &change) { return change.after; });
    }

private:
    template <class Value> void apply(Value value)
    {
        HRFRequire(!m_context.hasPendingChanges(), "!hasPendingChanges");
        const QScopedValueRollback isUndoing(m_context.m_isUndoing, true);
        for (const Change &change : m_changes)
            if (HRFManagedObject *object = m_context.object(change.objectID))
                object->setValue(change.property, value(change));
        m_context.processPendingChanges();
    }

    HRFMainContext &m_context;
    std::vector<Change> m_changes;
    bool m_isApplied = false; ///< the undo stack redoes what is pushed on it
};

HRFMainContext::HRFMainContext(std::shared_ptr<const HRFObjectModel> model,
                               std::shared_ptr<HRFObjectStore> store)
    : HRFObjectContext(std::move(model)), m_store(std::move(store))
{
    for (HRFObjectStore::Row &row : m_store->takeRows())
        adopt(makeObject(*row.entity, row.objectID, std::move(row.values)));
}

HRFMainContext::~HRFMainContext() = default;

HRFManagedObject *HRFMainContext::object(HRFObjectID objectID)
{
    const auto place = std::size_t(objectID);
    return place < m_objects.size() ? m_objects[place].get() : nullptr;
}

std::vector<HRFManagedObject *> HRFMainContext::fetch(const QString &entityName)
{
    const HRFEntityDescription &entity = entityNamed(entityName);
    std::vector<HRFManagedObject *> found;
    for (const auto &object : m_objects)
        if (object && &object->entity() == &entity)
            found.push_back(object.get());
    return found;
}

bool HRFMainContext::hasChanges() const
{
    return !m_unsaved.empty() || !m_unsavedValues.empty() || !m_unsavedDeletions.empty();
}

HRFResult<void> HRFMainContext::save()
{
    processPendingChanges();
    HRFObjectStore::Changes changes{.deleted = m_unsavedDeletions};
    for (const HRFObjectID objectID : m_unsaved)
        if (const HRFManagedObject *unsaved = object(objectID))
            changes.stored.push_back(unsaved);
    for (const auto &[objectID, properties] : m_unsavedValues)
        if (const HRFManagedObject *unsaved = object(objectID))
            changes.updated.emplace_back(unsaved, properties);
    if (auto written = m_store->write(changes); !written)
        return written;
    m_unsaved.clear();
    m_unsavedValues.clear();
    m_unsavedDeletions.clear();
    return {};
}

void HRFMainContext::adopt(std::unique_ptr<HRFManagedObject> object)
{
    const auto place = std::size_t(object->objectID());
    if (place >= m_objects.size())
        m_objects.resize(place + 1);
    m_objects[place] = std::move(object);
}

HRFManagedObject &HRFMainContext::insert(const HRFEntityDescription &entity)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    const HRFObjectID objectID = m_store->newObjectID();
    {
        const std::lock_guard lock(m_lock);
        adopt(makeObject(entity, objectID, {}));
    }
    noteInserted(*object(objectID));
    return *object(objectID);
}

void HRFMainContext::noteInserted(HRFManagedObject &object)
{
    m_inserted.push_back(object.objectID());
    m_unsaved.push_back(object.objectID());
    schedulePendingChanges();
}

void HRFMainContext::remove(HRFManagedObject &object)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    const HRFObjectID objectID = object.objectID();
    {
        const std::lock_guard lock(m_lock);
        m_deleted.push_back(std::move(m_objects[std::size_t(objectID)]));
    }
    m_unsavedDeletions.emplace_back(&object.entity(), objectID);
    schedulePendingChanges();
}

void HRFMainContext::setValue(HRFManagedObject &object, int property, const QVariant &value)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    if (m_registersUndo && !m_isUndoing && !object.entity().isRelationship(property))
        m_oldValues.push_back({object.objectID(), property, object.value(property)});
    {
        const std::lock_guard lock(m_lock);
        storeValue(object, property, value);
        ++m_editCount;
    }
    m_edits[object.objectID()][property] = m_editCount;
    noteChange(object, property);
}

void HRFMainContext::noteChange(HRFManagedObject &object, int property)
{
    const auto [found, isNew] = m_updated.try_emplace(object.objectID(), 0);
    found->second |= HRFPropertyBit(property);
    if (isNew)
        m_updatedOrder.push_back(object.objectID());
    m_unsavedValues[object.objectID()] |= HRFPropertyBit(property);
    schedulePendingChanges();
}

void HRFMainContext::schedulePendingChanges()
{
    if (!std::exchange(m_isScheduled, true))
        QMetaObject::invokeMethod(this, &HRFMainContext::processPendingChanges,
                                  Qt::QueuedConnection);
}

void HRFMainContext::processPendingChanges()
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    registerUndo();
    tell(false);
}

void HRFMainContext::registerUndo()
{
    const std::unordered_set<HRFObjectID> isNew(m_inserted.begin(), m_inserted.end());
    std::set<std::pair<HRFObjectID, int>> seen;
    std::vector<HRFEditCommand::Change> changes;
    for (OldValue &old : std::exchange(m_oldValues, {}))
        if (HRFManagedObject *changed = object(old.objectID); changed
            && !isNew.contains(old.objectID) && seen.emplace(old.objectID, old.property).second
            && changed->value(old.property) != old.value)
            changes.push_back(
                {old.objectID, old.property, std::move(old.value), changed->value(old.property)});
    const QString name = std::exchange(m_actionName, {});
    if (!changes.empty())
        m_undoManager.push(new HRFEditCommand(*this, std::move(changes), name));
}

void HRFMainContext::tell(bool isFromBackground)
{
    m_isScheduled = false;
    // Whoever is told may change things again; that belongs to the next event.
    const auto deleted = std::exchange(m_deleted, {});
    HRFContextChanges changes = takeChanges();
    for (const auto &object : deleted)
        changes.deleted.push_back(object.get());
    changes.isFromBackground = isFromBackground;
    if (!changes.isEmpty())
        HRFUserInteraction::presentFailures([&] { Q_EMIT objectsDidChange(changes); });
}

bool HRFMainContext::hasPendingChanges() const
{
    return !m_inserted.empty() || !m_updated.empty() || !m_deleted.empty();
}

void HRFMainContext::undo()
{
    processPendingChanges();
    m_undoManager.undo();
}

void HRFMainContext::redo()
{
    processPendingChanges();
    m_undoManager.redo();
}

/// Objects inserted and deleted within one event are not told of, new ones not as updated.
HRFContextChanges HRFMainContext::takeChanges()
{
    HRFContextChanges changes;
    auto updated = std::exchange(m_updated, {});
    for (const HRFObjectID objectID : std::exchange(m_inserted, {})) {
        updated.erase(objectID);
        if (HRFManagedObject *inserted = object(objectID))
            changes.inserted.push_back(inserted);
    }
    for (const HRFObjectID objectID : std::exchange(m_updatedOrder, {}))
        if (const auto found = updated.find(objectID); found != updated.end())
            if (HRFManagedObject *changed = object(objectID))
                changes.updated.push_back({changed, found->second});
    return changes;
}

std::vector<HRFMainContext::Copy> HRFMainContext::copyObject(HRFObjectID objectID) const
{
    const std::lock_guard lock(m_lock);
    std::vector<Copy> copies;
    copyObject(objectID, copies);
    return copies;
}

/// With the lock held.
void HRFMainContext::copyObject(HRFObjectID objectID, std::vector<Copy> &copies) const
{
    const auto place = std::size_t(objectID);
    if (place >= m_objects.size() || !m_objects[place])
        return;
    const HRFManagedObject &object = *m_objects[place];
    copies.push_back({&object.entity(), objectID, object.values(), m_editCount});
    for (const HRFRelationshipDescription &relationship : object.entity().relationships)
        if (relationship.cascades)
            copyObject(object.value(relationship.index).toLongLong(), copies);
}

std::vector<HRFObjectID> HRFMainContext::objectIDs(const HRFEntityDescription &entity) const
{
    const std::lock_guard lock(m_lock);
    std::vector<HRFObjectID> found;
    for (const auto &object : m_objects)
        if (object && &object->entity() == &entity)
            found.push_back(object->objectID());
    return found;
}

QSet<QString> HRFMainContext::texts(const HRFEntityDescription &entity, int property,
                                    const std::unordered_set<HRFObjectID> &without) const
{
    const std::lock_guard lock(m_lock);
    QSet<QString> texts;
    for (const auto &object : m_objects)
        if (object && &object->entity() == &entity && !without.contains(object->objectID()))
            texts.insert(object->value(property).toString());
    return texts;
}

void HRFMainContext::merge(HRFPrivateChanges changes)
{
    while (hasPendingChanges()) // the user's own edits are told of as such
        processPendingChanges();
    {
        const std::lock_guard lock(m_lock);
        for (HRFPrivateChanges::Object &inserted : changes.inserted)
            adopt(makeObject(*inserted.entity, inserted.objectID, std::move(inserted.values)));
    }
    for (const HRFPrivateChanges::Object &inserted : changes.inserted)
        noteInserted(*object(inserted.objectID));
    for (const HRFPrivateChanges::Object &updated : changes.updated)
        if (HRFManagedObject *target = object(updated.objectID))
            mergeValues(*target, updated);
    for (const HRFObjectID objectID : changes.deleted)
        if (HRFManagedObject *target = object(objectID))
            remove(*target);
    m_edits.clear();
    tell(true);
}

bool HRFMainContext::wasEditedSince(const HRFManagedObject &object, int property, quint64 age) const
{
    const auto edits = m_edits.find(object.objectID());
    if (edits == m_edits.end())
        return false;
    const auto edit = edits->second.find(property);
    return edit != edits->second.end() && edit->second > age;
}

void HRFMainContext::mergeValues(HRFManagedObject &object, const HRFPrivateChanges::Object &source)
{
    HRFForEachProperty(source.changed, [&](int property) {
        const QVariant value = source.values.value(property);
        if (object.value(property) == value || wasEditedSince(object, property, source.age))
            return;
        {
            const std::lock_guard lock(m_lock);
            storeValue(object, property, value);
        }
        noteChange(object, property);
    });
}
