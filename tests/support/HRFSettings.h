#pragma once

#include "kit/HRFUserDefaults.h"
#include "tags/HRFMapManager.h"
#include "tags/ID3MetaData.h"

/// The shipped settings of tagging for the time of a test, whatever the user's own are.
class HRFSettings
{
public:
    HRFSettings()
    {
        set("ID3v2Version", QStringLiteral("48"));
        set("iTunesID3v2Compatibility", false);
        setTags(true, false, false);
    }
    HRFSettings(const HRFSettings &) = delete;
    HRFSettings &operator=(const HRFSettings &) = delete;
    ~HRFSettings()
    {
        for (const char *name :
             {"ID3v2Version", "iTunesID3v2Compatibility", "MPEG.ID3v2", "MPEG.ID3v1", "MPEG.APE"})
            set(name, {});
    }

    void set(const char *name, const QVariant &value)
    {
        const QString key = QStringLiteral("lirra.tagging.") + QString::fromLatin1(name);
        HRFUserDefaults::standard().setOverride(value, key);
        ID3MetaData::registerStringEncodingPreference();
        HRFMapManager::sharedMapManager().updateMappingPreferences();
    }

    /// Switches the tags of MPEG files on and off.
    void setTags(bool ID3v2, bool ID3v1, bool APE)
    {
        set("MPEG.ID3v2", ID3v2);
        set("MPEG.ID3v1", ID3v1);
        set("MPEG.APE", APE);
    }
};
