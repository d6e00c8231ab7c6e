#include "tags/OGGVorbisMetaData.h"

#include "tags/HRFTagStream.h"

#include <QCoreApplication>
#include <taglib/flacproperties.h>
#include <taglib/oggflacfile.h>
#include <taglib/vorbisfile.h>

#include <cerrno>
#include <optional>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"ogg", "oga"};

constexpr char lastBlockFlag = '\x80';

struct CommentPacket
{
    unsigned int index;
    bool isLastBlock;
};

/// The packet of the Vorbis comment among the metadata packets that follow the first one (Ogg FLAC
/// mapping 1.0: a packet is a FLAC metadata block).
std::optional<CommentPacket> findCommentPacket(Ogg::File &file)
{
    constexpr char vorbisComment = 4;
    constexpr char typeMask = '\x7F';
    for (unsigned int index = 1;; ++index) {
        const ByteVector block = file.packet(index);
        if (block.isEmpty())
            return {};
        const bool isLastBlock = (block[0] & lastBlockFlag) != 0;
        if ((block[0] & typeMask) == vorbisComment)
            return CommentPacket{index, isLastBlock};
        if (isLastBlock)
            return {};
    }
}

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

HRFResult<void> OGGVorbisMetaData::saveTags()
{
    if (!m_isFlac)
        return VorbisMetaData::saveTags();
    return saveOggFlac(static_cast<Ogg::File &>(*tagFile()));
}

/// TagLib forgets that the comment was the last metadata block, and everything behind it would be
/// taken for metadata. Without a comment it would overwrite the first packet.
HRFResult<void> OGGVorbisMetaData::saveOggFlac(Ogg::File &file)
{
    const auto comment = findCommentPacket(file);
    if (!comment)
        return std::unexpected(reasonError(
            QCoreApplication::translate("OGGVorbisMetaData", "Its stream has no comment.")));
    if (auto saved = VorbisMetaData::saveTags(); !saved || !comment->isLastBlock)
        return saved;
    ByteVector block = file.packet(comment->index);
    block[0] = static_cast<char>(block[0] | lastBlockFlag);
    file.setPacket(comment->index, block);
    if (!file.Ogg::File::save())
        return std::unexpected(HRFError::fromErrno(EIO));
    return {};
}
