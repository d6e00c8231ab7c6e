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
    : OGGMetaData(std::move(file))
{
    setTagFile(std::make_unique<TagLib::Ogg::Opus::File>(&stream(), readProperties));
}

QVariant OGGOpusMetaData::readValue(HRFTagKey key) const
{
    return key == HRFTagKey::format ? u"OGG Opus"_s : OGGMetaData::readValue(key);
}

std::optional<OGGMetaData::CommentPlace> OGGOpusMetaData::commentPlace() const
{
    return CommentPlace{.packet = 1, .prefixLength = sizeof "OpusTags" - 1};
}

/// Data of other programs is marked by the lowest bit of the first byte (RFC 7845 §5.2).
QByteArray OGGOpusMetaData::strippedRest(const QByteArray &rest) const
{
    return !rest.isEmpty() && (rest.front() & 1) != 0 ? rest : QByteArray();
}
