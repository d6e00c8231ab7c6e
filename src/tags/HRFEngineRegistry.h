#pragma once

#include "tags/HRFEngineClass.h"

#include <QByteArray>

#include <map>
#include <set>
#include <vector>

/// Knows which engine class claims which file type.
class HRFEngineRegistry
{
public:
    /// The registry of this process, with every engine in it.
    static const HRFEngineRegistry &shared();

    /// Adds a class, once. A type that is claimed already goes to the class registered last.
    void registerMetadataClass(const HRFEngineClass &engineClass);

    const std::vector<const HRFEngineClass *> &classes() const { return m_classes; }
    /// The class that claims the type, or nullptr.
    const HRFEngineClass *classForType(const QByteArray &type) const;
    std::set<QByteArray> types() const;

private:
    std::vector<const HRFEngineClass *> m_classes;
    std::map<QByteArray, const HRFEngineClass *> m_classesByType;
};
