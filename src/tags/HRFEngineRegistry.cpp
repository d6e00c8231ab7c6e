#include "tags/HRFEngineRegistry.h"

#include "tags/MPEGMetaData.h"

#include <algorithm>

const HRFEngineRegistry &HRFEngineRegistry::shared()
{
    static const HRFEngineRegistry registry = [] {
        HRFEngineRegistry all;
        for (const HRFEngineClass *engineClass : {
                 &MPEGMetaData::metadataClass,
             })
            all.registerMetadataClass(*engineClass);
        return all;
    }();
    return registry;
}

void HRFEngineRegistry::registerMetadataClass(const HRFEngineClass &engineClass)
{
    if (std::ranges::find(m_classes, &engineClass) != m_classes.end())
        return;
    m_classes.push_back(&engineClass);
    for (const char *type : engineClass.fileTypes)
        m_classesByType.insert_or_assign(type, &engineClass);
}

const HRFEngineClass *HRFEngineRegistry::classForType(const QByteArray &type) const
{
    const auto found = m_classesByType.find(type);
    return found == m_classesByType.end() ? nullptr : found->second;
}

std::set<QByteArray> HRFEngineRegistry::types() const
{
    std::set<QByteArray> result;
    for (const auto &[type, engineClass] : m_classesByType)
        result.insert(type);
    return result;
}
