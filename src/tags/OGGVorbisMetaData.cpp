#include "tags/OGGVorbisMetaData.h"

#include "tags/HRFTagStream.h"

#include <taglib/flacproperties.h>
#include <taglib/oggflacfile.h>
#include <taglib/vorbisfile.h>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"ogg", "oga"};

} // namespace

const HRFEngineClass OGGVorbisMetaData::metadataClass{
    "OGGVorbisMetaData", fileTypes,
    QT_TRANSLATE_NOOP("HRFTagEngine", "an Ogg Vorbis or Ogg FLAC stream"),
    &HRFMakeEngine<OGGVorbisMetaData>};

OGGVorbisMetaData::OGGVorbisMetaData(std::shared_ptr<HRFTagStream> file, bool readProperties)
    : VorbisMetaData(std::move(file))
{
    setTagFile(std::make_unique<Ogg::Vorbis::File>(&stream(), readProperties));
    if (tagFile()->isValid())
        return;
    HRFRewind(stream());
    setTagFile(std::make_unique<Ogg::FLAC::File>(&stream(), readProperties));
    m_isFlac = true;
}

QVariant OGGVorbisMetaData::readValue(HRFTagKey key) const
{
    if (key == HRFTagKey::format)
        return m_isFlac ? u"OGG FLAC"_s : u"OGG Vorbis"_s;
    const auto *properties = dynamic_cast<const FLAC::Properties *>(audioProperties());
    if (key == HRFTagKey::bitDepth && properties)
        return qlonglong(properties->bitsPerSample());
    return VorbisMetaData::readValue(key);
}
