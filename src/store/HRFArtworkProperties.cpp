#include "store/HRFArtworkProperties.h"

#include "store/HRFMetaFile.h"

using namespace Qt::StringLiterals;

QString HRFArtworkProperties::entityName()
{
    return u"ArtworkProperties"_s;
}

HRFMetaFile *HRFArtworkProperties::parentMetaFile() const
{
    return static_cast<HRFMetaFile *>(related(u"parentMetaFile"_s));
}

void HRFArtworkProperties::updateWithBitmapData(const QByteArray &data)
{
    update(data.isEmpty() ? std::nullopt : std::optional(HRFArtworkFactsForPicture(data)));
}

void HRFArtworkProperties::update(const std::optional<HRFArtworkFacts> &facts)
{
    parentMetaFile()->setArtworkMD5(facts ? facts->md5 : QString());
    setValueForKey(facts ? facts->imageType : QString(), u"imageType"_s);
    setValueForKey(facts ? facts->imageSize : QString(), u"imageSize"_s);
    setValueForKey(facts ? QVariant(qlonglong(facts->imageDataSize)) : QVariant(),
                   u"imageDataSize"_s);
}
