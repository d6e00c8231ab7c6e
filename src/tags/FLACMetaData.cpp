#include "tags/FLACMetaData.h"

#include "kit/HRFUserDefaults.h"
#include "tags/FLACPicture.h"
#include "tags/HRFTagStream.h"
#include "tags/TagLibText.h"

#include <QCoreApplication>
#include <taglib/flacproperties.h>
#include <taglib/id3v2tag.h>
#include <taglib/xiphcomment.h>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"flac"};

/// A metadata block's length has 24 bits (RFC 9639 §8.1).
constexpr qsizetype largestBlock = (1 << 24) - 1;

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

/// TagLib writes the ID3v2 tag anew whenever it saves.
HRFResult<void> FLACMetaData::checkFile()
{
    if (auto checked = VorbisMetaData::checkFile(); !checked)
        return checked;
    if (ID3v2::Tag *tag = tagFile()->ID3v2Tag(); tag && tag->header()->tagSize() > 0)
        m_frameFactory.completeTag(*tag);
    return {};
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
    tagFile()->strip(FLAC::File::AllTags);
    tagFile()->removePictures();
    return VorbisMetaData::stripTags();
}

HRFResult<void> FLACMetaData::saveTags()
{
    if (const QString obstacle = m_frameFactory.obstacle();
        tagFile()->ID3v2Tag() && !obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    for (const FLAC::Picture *picture : tagFile()->pictureList())
        if (qsizetype(picture->render().size()) > largestBlock)
            return std::unexpected(reasonError(QCoreApplication::translate(
                "FLACMetaData", "A picture in a FLAC file cannot be larger than 16 MiB.")));
    Ogg::XiphComment *comment = xiphTag();
    if (qsizetype(comment->render(false).size()) > largestBlock)
        return std::unexpected(reasonError(QCoreApplication::translate(
            "FLACMetaData", "The tags of a FLAC file cannot be larger than 16 MiB.")));
    if (tagFile()->hasXiphComment())
        return VorbisMetaData::saveTags();

    // On the first save of a comment TagLib copies the fields of ID3 tags into it, which nobody has
    // asked for.
    const Ogg::FieldListMap fields = comment->fieldListMap();
    if (auto saved = VorbisMetaData::saveTags(); !saved)
        return saved;
    comment = xiphTag();
    comment->removeAllFields();
    for (const auto &[name, values] : fields)
        for (const String &value : values)
            comment->addField(name, value, false);
    return VorbisMetaData::saveTags();
}
