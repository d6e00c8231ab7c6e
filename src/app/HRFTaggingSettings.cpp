#include "app/HRFTaggingSettings.h"

#include "document/HRFMetaFileManager.h"
#include "kit/HRFUserDefaults.h"
#include "tags/HRFMapManager.h"
#include "tags/ID3MetaData.h"

using namespace Qt::StringLiterals;

namespace {

constexpr struct
{
    QLatin1StringView key{};
    void (*apply)() = nullptr;
} effects[] = {
    {"lirra.tagging.ID3v2Version"_L1, &ID3MetaData::registerStringEncodingPreference},
    {"lirra.tagging.iTunesID3v2Compatibility"_L1,
     [] { HRFMapManager::sharedMapManager().updateMappingPreferences(); }},
};

} // namespace

HRFTaggingSettings::HRFTaggingSettings()
{
    connect(&HRFUserDefaults::standard(), &HRFUserDefaults::valueChanged, this,
            &HRFTaggingSettings::settingDidChange);
}

void HRFTaggingSettings::settingDidChange(const QString &key)
{
    for (const auto &effect : effects)
        if (key == effect.key)
            HRFMetaFileManager::fileOperationQueue().addBarrierBlock(effect.apply);
}
