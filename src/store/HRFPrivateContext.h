#pragma once

#include "store/HRFObjectContext.h"

#include <QSet>

#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <thread>
#include <unordered_map>
#include <unordered_set>

class HRFMainContext;

/// What a private context hands to the main context.
struct HRFPrivateChanges
{
    struct Object
    {
        const HRFEntityDescription *entity;
        HRFObjectID objectID;
        HRFValues values;
        HRFPropertySet changed;
        quint64 age = 0; ///< see HRFMainContext::Copy
    };
    std::vector<Object> inserted{};
    std::vector<Object> updated{};
    std::vector<HRFObjectID> deleted{};
};

/// A context for background work, whose parent is a main context. It has no undo and sends no
/// notifications. Blocks run on it one at a time; nothing else may touch it.
class HRFPrivateContext : public HRFObjectContext,
                          public std::enable_shared_from_this<HRFPrivateContext>
{
    Q_OBJECT
public:
    explicit HRFPrivateContext(const std::shared_ptr<HRFMainContext> &parent);
    ~HRFPrivateContext() override;

    /// Runs a block on another thread, after those submitted before it.
    void performBlock(std::function<void()> block);
    /// Runs a block on the calling thread as soon as no other block runs. On the main thread,
    /// blocks for it are served while it waits. A block may call this again.
    void performBlockAndWait(const std::function<void()> &block);

    using HRFObjectContext::fetch;
    using HRFObjectContext::object;
    HRFManagedObject *object(HRFObjectID objectID) override;
    std::vector<HRFManagedObject *> fetch(const QString &entityName) override;
    /// The texts of an attribute in all objects of an entity.
    QSet<QString> fetchTexts(const QString &entityName, const QString &attributeName);
    bool hasChanges() const override;
    /// Waits for the main thread. Every object of this context is gone afterwards.
    [[nodiscard]] HRFResult<void> save() override;
    /// Forgets all changes, and every object.
    void rollback();

protected:
    HRFManagedObject &insert(const HRFEntityDescription &entity) override;
    void remove(HRFManagedObject &object) override;
    void setValue(HRFManagedObject &object, int property, const QVariant &value) override;

private:
    class Turn;
    void runQueuedBlocks();
    HRFPrivateChanges takeChanges();
    void requireTurn() const;

    const std::weak_ptr<HRFMainContext> m_parent;

    mutable std::mutex m_mutex; ///< guards the four members below
    std::condition_variable m_isFree;
    std::thread::id m_owner; ///< the thread whose block runs
    int m_depth = 0;
    std::deque<std::function<void()>> m_queue;

    // For the block that runs:
    std::unordered_map<HRFObjectID, std::unique_ptr<HRFManagedObject>> m_objects;
    std::vector<HRFObjectID> m_inserted;
    std::unordered_map<HRFObjectID, HRFPropertySet> m_changed;
    std::unordered_map<HRFObjectID, quint64> m_ages; ///< of the copies
    std::unordered_set<HRFObjectID> m_deleted;
};
