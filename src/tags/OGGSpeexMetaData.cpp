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
    : OGGMetaData(std::move(file))
{
    setTagFile(std::make_unique<TagLib::Ogg::Speex::File>(&stream(), readProperties));
}

HRFResult<void> OGGSpeexMetaData::checkFile()
{
    const auto bytes = readCommentBytes();
    if (!xiphTag() || !bytes || !VorbisCommentPacket::parse(*bytes))
        return std::unexpected(contentsError());
    return OGGMetaData::checkFile();
}

QVariant OGGSpeexMetaData::readValue(HRFTagKey key) const
{
    return key == HRFTagKey::format ? u"OGG Speex"_s : OGGMetaData::readValue(key);
}

std::optional<OGGMetaData::CommentPlace> OGGSpeexMetaData::commentPlace() const
{
    return CommentPlace{.packet = 1, .prefixLength = 0};
}
