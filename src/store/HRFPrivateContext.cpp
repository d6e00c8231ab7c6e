#include "store/HRFPrivateContext.h"

#include "kit/HRFAssert.h"
#include "kit/HRFBackground.h"
#include "kit/HRFMainThread.h"
#include "store/HRFMainContext.h"
#include "store/HRFObjectStore.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

/// The right of a thread to work on the context.
class HRFPrivateContext::Turn
{
public:
    explicit Turn(HRFPrivateContext &context) : m_context(context)
    {
        if (HRFMainThread::isCurrent())
            HRFMainThread::serveUntil([this] { return take(); });
        else {
            std::unique_lock lock(context.m_mutex);
            context.m_isFree.wait(lock, [this] { return canTake(); });
            takeLocked();
        }
    }
    Turn(const Turn &) = delete;
    Turn &operator=(const Turn &) = delete;
    ~Turn()
    {
        {
            const std::lock_guard lock(m_context.m_mutex);
            if (--m_context.m_depth > 0)
                return;
            m_context.m_owner = {};
        }
        m_context.m_isFree.notify_one();
        HRFMainThread::wakeUp();
    }

private:
    // With the context's mutex held:
    bool canTake() const
    {
        return m_context.m_depth == 0 || m_context.m_owner == std::this_thread::get_id();
    }
    void takeLocked()
    {
        m_context.m_owner = std::this_thread::get_id();
        ++m_context.m_depth;
    }
    bool take()
    {
        const std::lock_guard lock(m_context.m_mutex);
        if (!canTake())
            return false;
        takeLocked();
        return true;
    }

    HRFPrivateContext &m_context;
};

HRFPrivateContext::HRFPrivateContext(const std::shared_ptr<HRFMainContext> &parent)
    : HRFObjectContext(parent->model()), m_parent(parent)
{
}

HRFPrivateContext::~HRFPrivateContext() = default;

void HRFPrivateContext::performBlock(std::function<void()> block)
{
    const std::lock_guard lock(m_mutex);
    m_queue.push_back(std::move(block));
    if (m_queue.size() > 1)
        return; // the one who runs the first goes on with this
    try {
        HRFBackground::run([self = shared_from_this()] { self->runQueuedBlocks(); });
    } catch (...) {
        m_queue.pop_back(); // the caller is told; nobody else has relied on the runner
        throw;
    }
}

void HRFPrivateContext::runQueuedBlocks()
{
    while (true) {
        std::function<void()> block;
        {
            const std::lock_guard lock(m_mutex);
            block = m_queue.front();
        }
        HRFMainThread::runLoggingFailures([&] { performBlockAndWait(block); });
        const std::lock_guard lock(m_mutex);
        m_queue.pop_front();
        if (m_queue.empty())
            return;
    }
}

void HRFPrivateContext::performBlockAndWait(const std::function<void()> &block)
{
    const Turn turn(*this);
    block();
}

void HRFPrivateContext::requireTurn() const
{
    const std::lock_guard lock(m_mutex);
    HRFRequire(m_depth > 0 && m_owner == std::this_thread::get_id(), "performBlock");
}

HRFManagedObject *HRFPrivateContext::object(HRFObjectID objectID)
{
    requireTurn();
    if (const auto found = m_objects.find(objectID); found != m_objects.end())
        return found->second.get();
    const auto parent = m_parent.lock();
    if (!parent || m_deleted.contains(objectID))
        return nullptr;
    for (HRFMainContext::Copy &copy : parent->copyObject(objectID))
        if (!m_deleted.contains(copy.objectID) && !m_objects.contains(copy.objectID)) {
            m_objects.emplace(copy.objectID,
                              makeObject(*copy.entity, copy.objectID, std::move(copy.values)));
            m_ages.emplace(copy.objectID, copy.age);
        }
    const auto copied = m_objects.find(objectID);
    return copied == m_objects.end() ? nullptr : copied->second.get();
}

std::vector<HRFManagedObject *> HRFPrivateContext::fetch(const QString &entityName)
{
    const HRFEntityDescription &entity = entityNamed(entityName);
    std::vector<HRFObjectID> objectIDs;
    if (const auto parent = m_parent.lock())
        objectIDs = parent->objectIDs(entity);
    std::ranges::copy(m_inserted, std::back_inserter(objectIDs));
    std::vector<HRFManagedObject *> found;
    for (const HRFObjectID objectID : objectIDs)
        if (HRFManagedObject *candidate = object(objectID);
            candidate && &candidate->entity() == &entity)
            found.push_back(candidate);
    return found;
}

QSet<QString> HRFPrivateContext::fetchTexts(const QString &entityName, const QString &attributeName)
{
    requireTurn();
    const HRFEntityDescription &entity = entityNamed(entityName);
    const int property = entity.propertyIndex(attributeName);
    QSet<QString> texts;
    if (const auto parent = m_parent.lock())
        texts = parent->texts(entity, property, m_deleted);
    for (const HRFObjectID objectID : m_inserted)
        if (const HRFManagedObject *inserted = object(objectID); &inserted->entity() == &entity)
            texts.insert(inserted->value(property).toString());
    return texts;
}

HRFManagedObject &HRFPrivateContext::insert(const HRFEntityDescription &entity)
{
    requireTurn();
    const auto parent = m_parent.lock();
    HRFRequire(parent != nullptr, "parentContext");
    const HRFObjectID objectID = parent->store().newObjectID();
    m_inserted.push_back(objectID);
    return *m_objects.emplace(objectID, makeObject(entity, objectID, {})).first->second;
}

void HRFPrivateContext::remove(HRFManagedObject &object)
{
    requireTurn();
    const HRFObjectID objectID = object.objectID();
    m_changed.erase(objectID);
    if (std::erase(m_inserted, objectID) == 0)
        m_deleted.insert(objectID);
    m_objects.erase(objectID);
}

void HRFPrivateContext::setValue(HRFManagedObject &object, int property, const QVariant &value)
{
    requireTurn();
    storeValue(object, property, value);
    m_changed[object.objectID()] |= HRFPropertyBit(property);
}

bool HRFPrivateContext::hasChanges() const
{
    return !m_inserted.empty() || !m_changed.empty() || !m_deleted.empty();
}

HRFPrivateChanges HRFPrivateContext::takeChanges()
{
    HRFPrivateChanges changes;
    for (const HRFObjectID objectID : m_inserted) {
        const HRFManagedObject &source = *m_objects.at(objectID);
        changes.inserted.push_back({&source.entity(), objectID, source.values(), 0});
        m_changed.erase(objectID);
    }
    for (const auto &[objectID, changed] : m_changed) {
        const HRFManagedObject &source = *m_objects.at(objectID);
        HRFValues values;
        HRFForEachProperty(
            changed, [&](int property) { values.setValue(property, source.value(property)); });
        changes.updated.push_back(
            {&source.entity(), objectID, std::move(values), changed, m_ages.at(objectID)});
    }
    changes.deleted.assign(m_deleted.begin(), m_deleted.end());
    return changes;
}

HRFResult<void> HRFPrivateContext::save()
{
    requireTurn();
    HRFPrivateChanges changes = takeChanges();
    bool isSaved = false;
    if (const auto parent = m_parent.lock()) {
        for (auto *objects : {&changes.inserted, &changes.updated})
            for (HRFPrivateChanges::Object &object : *objects)
                parent->store().shareTexts(object.values);
    }
    HRFMainThread::run(
        [&] {
            const auto parent = m_parent.lock();
            if (!parent)
                return;
            parent->merge(std::move(changes));
            isSaved = true;
        },
        HRFMainThread::Wait::Yes);
    if (!isSaved)
        return std::unexpected(HRFError{.domain = QString::fromLatin1(HRFLirraErrorDomain),
                                        .description = tr("The list is closed.")});
    rollback();
    return {};
}

void HRFPrivateContext::rollback()
{
    requireTurn();
    m_objects.clear();
    m_inserted.clear();
    m_changed.clear();
    m_ages.clear();
    m_deleted.clear();
}
