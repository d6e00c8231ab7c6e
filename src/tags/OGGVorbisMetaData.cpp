#include "tags/OGGVorbisMetaData.h"

#include "tags/HRFTagStream.h"
#include "tags/OGGPages.h"

#include <QCoreApplication>
#include <QtEndian>
#include <taglib/flacproperties.h>
#include <taglib/oggflacfile.h>
#include <taglib/vorbisfile.h>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"ogg", "oga"};

/// A metadata block begins with its type and a length of 24 bits (RFC 9639 §8.1).
constexpr qsizetype flacHeaderLength = 4;
constexpr qsizetype largestFlacBlock = (1 << 24) - 1;

/// The packet of the comment among the metadata packets, each a FLAC metadata block (Ogg FLAC
/// mapping 1.0). TagLib reads the last one.
std::optional<unsigned int> findFlacComment(File &file)
{
    constexpr char vorbisComment = 4;
    constexpr char typeMask = '\x7F';
    constexpr char lastBlockFlag = '\x80';
    std::optional<unsigned int> found;
    for (unsigned int index = 1;; ++index) {
        const auto block = OGGReadPacket(file, index);
        if (!block || block->isEmpty())
            return found;
        if ((block->front() & typeMask) == vorbisComment)
            found = index;
        if ((block->front() & lastBlockFlag) != 0)
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
    const auto *properties = dynamic_cast<const FLAC::Properties *>(audioProperties());
    if (key == HRFTagKey::bitDepth && properties)
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
    return CommentPlace{.packet = *packet, .prefixLength = flacHeaderLength};
}

HRFResult<void> OGGVorbisMetaData::updatePrefix(QByteArray &prefix, qsizetype length) const
{
    if (!m_isFlac)
        return {};
    if (length > largestFlacBlock)
        return std::unexpected(reasonError(QCoreApplication::translate(
            "OGGVorbisMetaData", "The tags of a FLAC stream cannot be larger than 16 MiB.")));
    const quint32 header = (quint32(static_cast<unsigned char>(prefix[0])) << 24) | quint32(length);
    qToBigEndian(header, prefix.data());
    return {};
}

/// A Vorbis comment header ends with a framing bit (Vorbis I §5.2.1).
QByteArray OGGVorbisMetaData::strippedRest(const QByteArray &) const
{
    return m_isFlac ? QByteArray() : QByteArray(1, '\x01');
}
