#pragma once

#include "store/HRFPrivateContext.h"

#include <QUndoStack>

#include <map>
#include <mutex>
#include <unordered_map>

class HRFObjectStore;

/// The context of the main thread: every object of the store, with undo, and with a notification
/// for the changes of each event.
///
/// All members are for the main thread alone but those said to be for private contexts.
class HRFMainContext : public HRFObjectContext
{
    Q_OBJECT
public:
    /// Reads all objects of the store.
    HRFMainContext(std::shared_ptr<const HRFObjectModel> model,
                   std::shared_ptr<HRFObjectStore> store);
    ~HRFMainContext() override;

    using HRFObjectContext::fetch;
    using HRFObjectContext::object;
    HRFManagedObject *object(HRFObjectID objectID) override;
    std::vector<HRFManagedObject *> fetch(const QString &entityName) override;
    bool hasChanges() const override;
    [[nodiscard]] HRFResult<void> save() override;

    /// Ends the event as far as changes go: tells of those made since the last call, and makes an
    /// undo command of them. Happens by itself when the event loop comes round.
    void processPendingChanges();

    /// For looking at.
    const QUndoStack &undoManager() const { return m_undoManager; }
    void undo();
    void redo();
    void removeAllUndoActions() { m_undoManager.clear(); }
    /// A switch, not a counter. Registration is on at first.
    void enableUndoRegistration() { m_registersUndo = true; }
    void disableUndoRegistration() { m_registersUndo = false; }
    bool isUndoRegistrationEnabled() const { return m_registersUndo; }
    bool isUndoingOrRedoing() const { return m_isUndoing; }
    /// Names the undo command of the present event.
    void setUndoActionName(const QString &name) { m_actionName = name; }

    HRFObjectStore &store() const { return *m_store; }

    // For private contexts, from any thread:
    struct Copy
    {
        const HRFEntityDescription *entity;
        HRFObjectID objectID;
        HRFValues values;
        quint64 age; ///< how many values had been edited when it was made
    };
    /// The present values of an object, and of those that would be deleted with it, so that they
    /// are seen whole or not at all; empty when there is none.
    std::vector<Copy> copyObject(HRFObjectID objectID) const;
    std::vector<HRFObjectID> objectIDs(const HRFEntityDescription &entity) const;
    /// The texts of a property in all objects but some.
    QSet<QString> texts(const HRFEntityDescription &entity, int property,
                        const std::unordered_set<HRFObjectID> &without) const;

    /// Takes over what a private context has changed: those properties alone, of objects that are
    /// still there. On the main thread.
    void merge(HRFPrivateChanges changes);

Q_SIGNALS:
    void objectsDidChange(const HRFContextChanges &changes);

protected:
    HRFManagedObject &insert(const HRFEntityDescription &entity) override;
    void remove(HRFManagedObject &object) override;
    void setValue(HRFManagedObject &object, int property, const QVariant &value) override;

private:
    friend class HRFEditCommand;
    struct OldValue
    {
        HRFObjectID objectID;
        int property;
        QVariant value;
    };

    void copyObject(HRFObjectID objectID, std::vector<Copy> &copies) const;
    bool wasEditedSince(const HRFManagedObject &object, int property, quint64 age) const;
    void mergeValues(HRFManagedObject &object, const HRFPrivateChanges::Object &source);
    void adopt(std::unique_ptr<HRFManagedObject> object);
    void noteInserted(HRFManagedObject &object);
    void noteChange(HRFManagedObject &object, int property);
    void schedulePendingChanges();
    void tell(bool isFromBackground);
    bool hasPendingChanges() const;
    void registerUndo();
    HRFContextChanges takeChanges();

    const std::shared_ptr<HRFObjectStore> m_store;
    /// Guards the objects and their values: the main thread changes them with the lock held, and
    /// reads them without; private contexts read them with the lock held.
    mutable std::mutex m_lock;
    std::vector<std::unique_ptr<HRFManagedObject>> m_objects; ///< by object ID

    /// When a value was edited, by object and property: a private context that copied the object
    /// before knows less. Only edits since the last merge.
    std::unordered_map<HRFObjectID, std::map<int, quint64>> m_edits;
    quint64 m_editCount = 0; ///< guarded by m_lock, too

    // The changes of this event:
    std::vector<HRFObjectID> m_inserted;
    std::unordered_map<HRFObjectID, HRFPropertySet> m_updated;
    std::vector<HRFObjectID> m_updatedOrder;
    std::vector<std::unique_ptr<HRFManagedObject>> m_deleted;
    std::vector<OldValue> m_oldValues;
    bool m_isScheduled = false;
    QString m_actionName;

    // What the store file does not have yet:
    std::vector<HRFObjectID> m_unsaved; ///< new objects; some may be deleted again
    std::unordered_map<HRFObjectID, HRFPropertySet> m_unsavedValues; ///< of objects in the file
    std::vector<std::pair<const HRFEntityDescription *, HRFObjectID>> m_unsavedDeletions;

    QUndoStack m_undoManager;
    bool m_registersUndo = true;
    bool m_isUndoing = false;
};
