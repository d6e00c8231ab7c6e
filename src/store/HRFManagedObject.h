#pragma once

#include "store/HRFObjectModel.h"
#include "store/HRFValues.h"

class HRFObjectContext;

/// Names an object of a store; final from its birth. 0 names none.
using HRFObjectID = qlonglong;

/// An object of a context: values by attribute, and other objects by relationship.
///
/// An object belongs to its context and to the context's thread. Objects of a private context live
/// until its next save or rollback, those of the main context until they are deleted; what is kept
/// for longer, or handed to other threads, is the objectID.
class HRFManagedObject
{
public:
    HRFManagedObject(HRFObjectContext &context, const HRFEntityDescription &entity,
                     HRFObjectID objectID, HRFValues values);
    HRFManagedObject(const HRFManagedObject &) = delete;
    HRFManagedObject &operator=(const HRFManagedObject &) = delete;
    virtual ~HRFManagedObject() = default;

    HRFObjectContext &context() const { return *m_context; }
    const HRFEntityDescription &entity() const { return *m_entity; }
    HRFObjectID objectID() const { return m_objectID; }
    const HRFValues &values() const { return m_values; }

    /// The value of an attribute; the entity must have it (assertion "hasAttribute").
    virtual QVariant valueForKey(const QString &name) const;
    /// Sets an attribute; no value, the null marker and empty text take its value away.
    virtual void setValueForKey(const QVariant &value, const QString &name);
    /// The same by property number, for attributes alone.
    QVariant value(int property) const { return m_values.value(property); }
    void setValue(int property, const QVariant &value);

    /// The object at the other end of a relationship; nullptr when there is none.
    HRFManagedObject *related(int relationship) const;
    HRFManagedObject *related(const QString &relationshipName) const;
    /// Relates two objects of one context, in both directions.
    void relate(const QString &relationshipName, HRFManagedObject &other);

    /// The keys that the value of a key is made from, for keys that are not stored.
    virtual QStringList keysForValuesAffecting(const QString &name) const;

    /// Called once, when the object is made anew and not read from a store or another context.
    virtual void awakeFromInsert() { }

private:
    friend class HRFObjectContext;

    HRFObjectContext *m_context;
    const HRFEntityDescription *m_entity;
    HRFObjectID m_objectID;
    HRFValues m_values;
};
