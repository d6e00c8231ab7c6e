#pragma once

#include "kit/HRFError.h"
#include "store/HRFManagedObject.h"

#include <QObject>

#include <memory>
#include <vector>

/// An object whose values have changed, and which of them.
struct HRFObjectChange
{
    HRFManagedObject *object = nullptr;
    HRFPropertySet properties = 0;

    /// Whether a key has changed, or one that its value is made from.
    bool affects(const QString &key) const;
    /// The changed attributes, by name, with their present values; the null marker for none.
    QHash<QString, QVariant> changedValues() const;
};

/// What has changed in a context.
struct HRFContextChanges
{
    std::vector<HRFManagedObject *> inserted{};
    std::vector<HRFObjectChange> updated{};
    /// Deleted objects: for reading, and only while they are told of.
    std::vector<HRFManagedObject *> deleted{};
    /// The changes came with the save of a private context: they are no edits of the user.
    bool isFromBackground = false;

    bool isEmpty() const { return inserted.empty() && updated.empty() && deleted.empty(); }
};

/// A set of objects that are worked on together, by one thread at a time.
///
/// The main context (HRFMainContext) holds every object of its store; private contexts
/// (HRFPrivateContext) hold copies of those they work on, and hand their changes to the main
/// context when they are saved.
class HRFObjectContext : public QObject
{
    Q_OBJECT
public:
    /// The object with an identifier; nullptr when there is none (any more).
    virtual HRFManagedObject *object(HRFObjectID objectID) = 0;
    template <class T> T *object(HRFObjectID objectID)
    {
        return dynamic_cast<T *>(object(objectID));
    }
    /// All objects of an entity in the order of their birth.
    virtual std::vector<HRFManagedObject *> fetch(const QString &entityName) = 0;
    template <class T> std::vector<T *> fetch()
    {
        std::vector<T *> objects;
        for (HRFManagedObject *object : fetch(T::entityName()))
            objects.push_back(static_cast<T *>(object));
        return objects;
    }

    /// Makes a new object of the named entity, which the model must have (assertion "entity").
    HRFManagedObject *newObjectForEntityName(const QString &entityName);
    template <class T> T *newObject()
    {
        return static_cast<T *>(newObjectForEntityName(T::entityName()));
    }
    /// Deletes an object and what its relationships take along.
    void deleteObject(HRFManagedObject &object);
    void deleteObjectsForEntityName(const QString &entityName);

    virtual bool hasChanges() const = 0;
    /// A private context's changes go into the main context, those of the main context into the
    /// store file, in one transaction. When that fails the changes stay.
    [[nodiscard]] virtual HRFResult<void> save() = 0;

    const std::shared_ptr<const HRFObjectModel> &model() const { return m_model; }

protected:
    explicit HRFObjectContext(std::shared_ptr<const HRFObjectModel> model);

    /// Makes the object of the class that belongs to the entity.
    std::unique_ptr<HRFManagedObject> makeObject(const HRFEntityDescription &entity,
                                                 HRFObjectID objectID, HRFValues values);
    const HRFEntityDescription &entityNamed(const QString &name) const;

    /// Takes over a new object.
    virtual HRFManagedObject &insert(const HRFEntityDescription &entity) = 0;
    virtual void remove(HRFManagedObject &object) = 0;
    /// The one place where an object's values change.
    virtual void setValue(HRFManagedObject &object, int property, const QVariant &value) = 0;

    static void storeValue(HRFManagedObject &object, int property, const QVariant &value)
    {
        object.m_values.setValue(property, value);
    }

private:
    friend class HRFManagedObject;

    std::shared_ptr<const HRFObjectModel> m_model;
};
