#pragma once

#include "kit/HRFUserDefaults.h"
#include "tags/HRFMapManager.h"
#include "tags/ID3MetaData.h"

#include <vector>

/// Settings of tagging that hold until the end of the scope.
class HRFSettings
{
public:
    using Values = std::vector<std::pair<const char *, QVariant>>;

    explicit HRFSettings(Values values = {}) : m_values(std::move(values)) { apply(m_values); }
    HRFSettings(const HRFSettings &) = delete;
    HRFSettings &operator=(const HRFSettings &) = delete;
    ~HRFSettings()
    {
        for (auto &[name, value] : m_values)
            value = {};
        apply(m_values);
    }

private:
    static void apply(const Values &values)
    {
        for (const auto &[name, value] : values)
            HRFUserDefaults::standard().setOverride(
                value, QStringLiteral("lirra.tagging.") + QString::fromLatin1(name));
        ID3MetaData::registerStringEncodingPreference();
        HRFMapManager::sharedMapManager().updateMappingPreferences();
    }

    Values m_values;
};

/// Which tags MPEG files keep.
inline HRFSettings::Values HRFMPEGTags(bool ID3v2, bool ID3v1, bool APE)
{
    return {{"MPEG.ID3v2", ID3v2}, {"MPEG.ID3v1", ID3v1}, {"MPEG.APE", APE}};
}
