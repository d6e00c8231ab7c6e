#include "tags/HRFEngineRegistry.h"

#include "tags/AIFFMetaData.h"
#include "tags/DSDIFFMetaData.h"
#include "tags/DSFMetaData.h"
#include "tags/FLACMetaData.h"
#include "tags/MP4MetaData.h"
#include "tags/MPEGMetaData.h"
#include "tags/OGGOpusMetaData.h"
#include "tags/OGGSpeexMetaData.h"
#include "tags/OGGVorbisMetaData.h"
#include "tags/WAVMetaData.h"

#include <algorithm>

const HRFEngineRegistry &HRFEngineRegistry::shared()
{
    static const HRFEngineRegistry registry = [] {
        HRFEngineRegistry all;
        for (const HRFEngineClass *engineClass : {
                 &MP4MetaData::metadataClass,
                 &MPEGMetaData::metadataClass,
                 &FLACMetaData::metadataClass,
                 &OGGOpusMetaData::metadataClass,
                 &WAVMetaData::metadataClass,
                 &OGGVorbisMetaData::metadataClass,
                 &DSFMetaData::metadataClass,
                 &DSDIFFMetaData::metadataClass,
                 &AIFFMetaData::metadataClass,
                 &OGGSpeexMetaData::metadataClass,
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
