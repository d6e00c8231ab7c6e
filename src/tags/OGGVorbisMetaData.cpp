#include "tags/OGGVorbisMetaData.h"

#include "tags/FLACBlocks.h"
#include "tags/HRFTagStream.h"
#include "tags/OGGPages.h"

#include <QCoreApplication>
#include <taglib/flacproperties.h>
#include <taglib/oggflacfile.h>
#include <taglib/vorbisfile.h>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"ogg", "oga"};

/// The packet of the comment among the metadata packets, each a FLAC metadata block (Ogg FLAC
/// mapping 1.0). TagLib reads the last one.
std::optional<unsigned int> findFlacComment(File &file)
{
    std::optional<unsigned int> found;
    for (unsigned int index = 1;; ++index) {
        const auto block = OGGReadPacket(file, index);
        if (!block || block->isEmpty())
            return found;
        if ((block->front() & FLACBlockType::mask) == FLACBlockType::vorbisComment)
            found = index;
        if ((block->front() & FLACBlockType::lastBlockFlag) != 0)
            return found;
    }
}

} // namespace

const HRFEngineClass OGGVorbisMetaData::metadataClass{
    "OGGVorbisMetaData", fileTypes,
    QT_TRANSLATE_NOOP("HRFTagEngine", "an Ogg Vorbis or Ogg FLAC stream"),
    &HRFMakeEngine<OGGVorbisMetaData>};

OGGVorbisMetaData::OGGVorbisMetaData(std::shared_ptr<HRFTagStream> file, bool readProperties)
    : OGGMetaData(std::move(file))
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
    if (key == HRFTagKey::bitDepth)
        if (const auto *properties = dynamic_cast<const FLAC::Properties *>(audioProperties()))
            return qlonglong(properties->bitsPerSample());
    return OGGMetaData::readValue(key);
}

std::optional<OGGMetaData::CommentPlace> OGGVorbisMetaData::commentPlace() const
{
    if (!m_isFlac)
        return CommentPlace{.packet = 1, .prefixLength = sizeof "\x03vorbis" - 1};
    const auto packet = findFlacComment(*tagFile());
    if (!packet)
        return {};
    return CommentPlace{.packet = *packet, .prefixLength = FLACBlockHeaderLength};
}

HRFResult<void> OGGVorbisMetaData::updatePrefix(QByteArray &prefix, qsizetype length) const
{
    if (!m_isFlac)
        return {};
    if (length > FLACLargestBlock)
        return std::unexpected(reasonError(QCoreApplication::translate(
            "OGGVorbisMetaData", "The tags of a FLAC stream cannot be larger than 16 MiB.")));
    prefix = FLACBlockHeader(prefix.front(), length);
    return {};
}

/// A Vorbis comment header ends with a framing bit (Vorbis I §5.2.1).
QByteArray OGGVorbisMetaData::strippedRest(const QByteArray &) const
{
    return m_isFlac ? QByteArray() : QByteArray(1, '\x01');
}
