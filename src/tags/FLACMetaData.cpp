#include "tags/FLACMetaData.h"

#include "kit/HRFUserDefaults.h"
#include "tags/FLACBlocks.h"
#include "tags/FLACPicture.h"
#include "tags/HRFStreamOfBytes.h"
#include "tags/HRFTagStream.h"
#include "tags/TagLibText.h"

#include <QCoreApplication>
#include <taglib/flacproperties.h>

#include <algorithm>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"flac"};

} // namespace

const HRFEngineClass FLACMetaData::metadataClass{"FLACMetaData", fileTypes,
                                                 QT_TRANSLATE_NOOP("HRFTagEngine", "a FLAC stream"),
                                                 &HRFMakeEngine<FLACMetaData>};

FLACMetaData::FLACMetaData(std::shared_ptr<HRFTagStream> file, bool readProperties)
    : VorbisMetaData(std::move(file))
{
    setTagFile(std::make_unique<FLAC::File>(&stream(), readProperties, AudioProperties::Average,
                                            &m_frameFactory));
}

int FLACMetaData::preferredFLACArtworkStorageType()
{
    return int(HRFUserDefaults::standard().integerForKey(
        u"lirra.tagging.preferredFLACArtworkStorageType"_s));
}

FLAC::File *FLACMetaData::tagFile() const
{
    return static_cast<FLAC::File *>(VorbisMetaData::tagFile());
}

Ogg::XiphComment *FLACMetaData::xiphTag() const
{
    return tagFile()->xiphComment(false);
}

QByteArray FLACMetaData::FLACArtwork() const
{
    const Lock guard = lock();
    const auto pictures = tagFile()->pictureList();
    return pictures.isEmpty() ? QByteArray() : TagLibText::toQByteArray(pictures.front()->data());
}

void FLACMetaData::setFLACArtwork(const QByteArray &data)
{
    const Lock guard = lock();
    m_hasChangedPictures = true;
    tagFile()->removePictures();
    if (!data.isEmpty())
        tagFile()->addPicture(FLACFrontCover(data).release());
}

QVariant FLACMetaData::readValue(HRFTagKey key) const
{
    if (key == HRFTagKey::artwork) {
        const QByteArray artwork = FLACArtwork();
        return artwork.isEmpty() ? commentArtwork() : artwork;
    }
    if (key == HRFTagKey::bitDepth) {
        const FLAC::Properties *properties = tagFile()->audioProperties();
        return properties ? QVariant(qlonglong(properties->bitsPerSample())) : QVariant();
    }
    if (key == HRFTagKey::format)
        return u"FLAC"_s;
    return VorbisMetaData::readValue(key);
}

void FLACMetaData::writeValue(const QVariant &value, HRFTagKey key)
{
    if (key != HRFTagKey::artwork)
        return VorbisMetaData::writeValue(value, key);
    constexpr int pictureBlock = 0;
    constexpr int vorbisComment = 1;
    const QByteArray data = value.toByteArray();
    const int storage = preferredFLACArtworkStorageType();
    setCommentArtwork(storage == pictureBlock ? QByteArray() : data);
    setFLACArtwork(storage == vorbisComment ? QByteArray() : data);
}

HRFResult<void> FLACMetaData::stripTags()
{
    const Lock guard = lock();
    setFLACArtwork({});
    m_isStripping = true;
    return VorbisMetaData::stripTags();
}

/// Unless the artwork has been set, a comment with the fields of the properties is enough.
std::shared_ptr<HRFTagStream>
FLACMetaData::streamForReading(const std::map<HRFTagKey, QVariant> &values) const
{
    const auto bytes = readCommentBytes();
    const auto packet = bytes ? VorbisCommentPacket::parse(*bytes) : std::nullopt;
    if (packet && !values.empty() && !values.contains(HRFTagKey::artwork)) {
        const QByteArray comment = packetOfValues(*packet, values).render();
        if (auto excerpt = FLACBlocks::fileWithComment(comment, *tagFile()))
            return HRFStreamOfBytes(*std::move(excerpt));
    }
    return VorbisMetaData::streamForReading(values);
}

std::optional<QByteArray> FLACMetaData::readCommentBytes() const
{
    return FLACBlocks::readComment(*tagFile());
}

/// Writes the blocks without TagLib, which drops a second comment and unreadable pictures and
/// writes ID3 tags anew.
HRFResult<void> FLACMetaData::writeCommentBytes(const QByteArray &bytes)
{
    auto metadata = FLACBlocks::read(*tagFile());
    if (!metadata)
        return std::unexpected(contentsError());
    if (bytes.size() > FLACLargestBlock)
        return std::unexpected(reasonError(QCoreApplication::translate(
            "FLACMetaData", "The tags of a FLAC file cannot be larger than 16 MiB.")));
    auto &blocks = metadata->blocks;
    const bool hasComment = std::ranges::any_of(
        blocks, [](const FLACBlock &block) { return block.type == FLACBlockType::vorbisComment; });
    std::erase_if(blocks, [&](const FLACBlock &block) {
        return (block.type == FLACBlockType::picture && m_hasChangedPictures)
            || (block.type == FLACBlockType::vorbisComment && m_isStripping);
    });
    const auto comment = std::ranges::find(blocks, FLACBlockType::vorbisComment, &FLACBlock::type);
    if (comment != blocks.end())
        *comment = FLACBlock::withData(FLACBlockType::vorbisComment, bytes);
    else if (hasComment || !m_isStripping)
        blocks.push_back(FLACBlock::withData(FLACBlockType::vorbisComment, bytes));
    if (auto appended = appendPictures(blocks); !appended)
        return appended;

    metadata->write(*tagFile());
    if (m_isStripping)
        metadata->removeID3Tags(*tagFile());
    m_isStripping = false;
    m_hasChangedPictures = false;
    return {};
}

HRFResult<void> FLACMetaData::appendPictures(std::vector<FLACBlock> &blocks) const
{
    if (!m_hasChangedPictures)
        return {};
    for (const FLAC::Picture *picture : tagFile()->pictureList()) {
        const QByteArray data = TagLibText::toQByteArray(picture->render());
        blocks.push_back(FLACBlock::withData(FLACBlockType::picture, data));
        if (data.size() > FLACLargestBlock)
            return std::unexpected(reasonError(QCoreApplication::translate(
                "FLACMetaData", "A picture in a FLAC file cannot be larger than 16 MiB.")));
    }
    return {};
}
