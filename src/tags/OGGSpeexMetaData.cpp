#include "tags/OGGSpeexMetaData.h"

#include "tags/HRFTagStream.h"

#include <taglib/speexfile.h>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"spx"};

} // namespace

const HRFEngineClass OGGSpeexMetaData::metadataClass{
    "OGGSpeexMetaData", fileTypes, QT_TRANSLATE_NOOP("HRFTagEngine", "a Speex stream with a tag"),
    &HRFMakeEngine<OGGSpeexMetaData>};

OGGSpeexMetaData::OGGSpeexMetaData(std::shared_ptr<HRFTagStream> file, bool readProperties)
    : VorbisMetaData(std::move(file))
{
    setTagFile(std::make_unique<TagLib::Ogg::Speex::File>(&stream(), readProperties));
}

/// TagLib makes a tag object even where the stream ends before the packet of the tag.
HRFResult<void> OGGSpeexMetaData::checkFile()
{
    if (static_cast<TagLib::Ogg::File &>(*tagFile()).packet(1).isEmpty())
        return std::unexpected(contentsError());
    return VorbisMetaData::checkFile();
}

QVariant OGGSpeexMetaData::readValue(HRFTagKey key) const
{
    return key == HRFTagKey::format ? u"OGG Speex"_s : VorbisMetaData::readValue(key);
}
