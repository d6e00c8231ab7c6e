#include "tags/DSFMetaData.h"

#include "tags/HRFTagStream.h"

#include <taglib/dsfproperties.h>

#include <iterator>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"dsf"};

/// By channel type (DSF File Format Specification 1.01, "fmt" chunk), from 1 on.
constexpr const char *channelModes[] = {
    "Mono", "Stereo", "3 Channels", "Quadraphonic", "4 Channels", "5 Channels", "5.1 Surround",
};

QVariant channelModeName(const DSF::Properties &properties)
{
    const int type = properties.channelType();
    if (type < 1 || type > int(std::size(channelModes)))
        return {};
    return QString::fromLatin1(channelModes[type - 1]);
}

} // namespace

const HRFEngineClass DSFMetaData::metadataClass{"DSFMetaData", fileTypes,
                                                QT_TRANSLATE_NOOP("HRFTagEngine", "DSF audio"),
                                                &HRFMakeEngine<DSFMetaData>};

DSFMetaData::DSFMetaData(std::shared_ptr<HRFTagStream> file, bool readProperties)
    : ID3MetaData(std::move(file))
    , m_tagFile(std::make_unique<DSF::File>(&stream(), readProperties, AudioProperties::Average,
                                            frameFactory()))
{
}

QVariant DSFMetaData::readValue(HRFTagKey key) const
{
    const DSF::Properties *properties = m_tagFile->audioProperties();
    if (key == HRFTagKey::format)
        return u"DSD (SF)"_s;
    if (key == HRFTagKey::bitDepth)
        return properties ? QVariant(qlonglong(properties->bitsPerSample())) : QVariant();
    if (key == HRFTagKey::channelMode)
        return properties ? channelModeName(*properties) : QVariant();
    return ID3MetaData::readValue(key);
}
