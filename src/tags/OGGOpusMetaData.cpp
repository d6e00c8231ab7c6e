#include "tags/OGGOpusMetaData.h"

#include "tags/HRFTagStream.h"

#include <taglib/opusfile.h>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"opus"};

} // namespace

const HRFEngineClass OGGOpusMetaData::metadataClass{
    "OGGOpusMetaData", fileTypes, QT_TRANSLATE_NOOP("HRFTagEngine", "an Opus stream"),
    &HRFMakeEngine<OGGOpusMetaData>};

OGGOpusMetaData::OGGOpusMetaData(std::shared_ptr<HRFTagStream> file, bool readProperties)
    : VorbisMetaData(std::move(file))
{
    setTagFile(std::make_unique<TagLib::Ogg::Opus::File>(&stream(), readProperties));
}

QVariant OGGOpusMetaData::readValue(HRFTagKey key) const
{
    return key == HRFTagKey::format ? u"OGG Opus"_s : VorbisMetaData::readValue(key);
}
