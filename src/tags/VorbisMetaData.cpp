#include "tags/VorbisMetaData.h"

#include "kit/HRFAssert.h"
#include "tags/FLACPicture.h"
#include "tags/HRFFieldHandler.h"
#include "tags/HRFTagStream.h"
#include "tags/TagLibText.h"

#include <QCoreApplication>
#include <taglib/tfile.h>
#include <taglib/xiphcomment.h>

#include <cerrno>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

using K = HRFTagKey;

QVariant numberOrNothing(unsigned int number)
{
    return number == 0 ? QVariant() : QVariant(qlonglong(number));
}

QVariant readComment(const VorbisMetaData &engine, K)
{
    const Ogg::XiphComment *comment = engine.xiphTag();
    return comment ? QVariant(TagLibText::toQString(comment->comment())) : QVariant();
}

/// TagLib's setter writes the one of two fields that the file has; removing means both.
void writeComment(VorbisMetaData &engine, K, const QVariant &value)
{
    if (!value.isValid()) {
        engine.removeValueForXiphTag("DESCRIPTION");
        engine.removeValueForXiphTag("COMMENT");
    } else if (Ogg::XiphComment *comment = engine.xiphTag()) {
        comment->setComment(TagLibText::toTagString(value.toString()));
    }
}

QVariant readYear(const VorbisMetaData &engine, K)
{
    const Ogg::XiphComment *comment = engine.xiphTag();
    return numberOrNothing(comment ? comment->year() : 0);
}

void writeYear(VorbisMetaData &engine, K, const QVariant &value)
{
    if (Ogg::XiphComment *comment = engine.xiphTag())
        comment->setYear(static_cast<unsigned int>(value.toLongLong()));
}

QVariant readTrackNumber(const VorbisMetaData &engine, K)
{
    const Ogg::XiphComment *comment = engine.xiphTag();
    return numberOrNothing(comment ? comment->track() : 0);
}

void writeTrackNumber(VorbisMetaData &engine, K, const QVariant &value)
{
    if (Ogg::XiphComment *comment = engine.xiphTag())
        comment->setTrack(static_cast<unsigned int>(value.toLongLong()));
}

QVariant readFormat(const VorbisMetaData &, K)
{
    return u"OGG"_s;
}

QVariant readTagVersion(const VorbisMetaData &engine, K)
{
    const Ogg::XiphComment *comment = engine.xiphTag();
    return comment && !comment->isEmpty() ? QVariant(u"Vorbis"_s) : QVariant();
}

QVariant readFrames(const VorbisMetaData &engine, K)
{
    const Ogg::XiphComment *comment = engine.xiphTag();
    if (!comment)
        return {};
    QList<HRFFrameDescription> frames;
    for (const auto &[name, values] : comment->fieldListMap())
        frames.append({TagLibText::toQString(name), TagLibText::toQString(values.toString(", "))});
    return QVariant::fromValue(frames);
}

QVariant readFramesCount(const VorbisMetaData &engine, K)
{
    const Ogg::XiphComment *comment = engine.xiphTag();
    return comment ? QVariant(qlonglong(comment->fieldListMap().size())) : QVariant();
}

constexpr HRFFieldHandler<VorbisMetaData> handlers[] = {
    {K::comment, readComment, writeComment},
    {K::year, readYear, writeYear},
    {K::trackNumber, readTrackNumber, writeTrackNumber},
    {K::format, readFormat},
    {K::tagVersion, readTagVersion},
    {K::frames, readFrames},
    {K::framesCount, readFramesCount},
};

constexpr auto handlersByKey = HRFHandlersByKey(handlers);

} // namespace

VorbisMetaData::VorbisMetaData(std::shared_ptr<HRFTagStream> stream)
    : HRFTagEngine(std::move(stream))
{
}

void VorbisMetaData::setTagFile(std::unique_ptr<File> file)
{
    m_tagFile = std::move(file);
}

Ogg::XiphComment *VorbisMetaData::xiphTag() const
{
    return dynamic_cast<Ogg::XiphComment *>(m_tagFile->tag());
}

HRFText VorbisMetaData::stringForXiphTag(const char *tagName) const
{
    HRFRequire(tagName, "tagName");
    const Lock guard = lock();
    const Ogg::XiphComment *comment = xiphTag();
    if (!comment)
        return {};
    const auto found = comment->fieldListMap().find(tagName);
    if (found == comment->fieldListMap().end())
        return {};
    return TagLibText::toQString(found->second.toString(" "));
}

void VorbisMetaData::setStringForXiphTag(const HRFText &value, const char *tagName)
{
    HRFRequire(tagName, "tagName");
    if (!value)
        return removeValueForXiphTag(tagName);
    const Lock guard = lock();
    if (Ogg::XiphComment *comment = xiphTag())
        comment->addField(tagName, TagLibText::toTagString(*value), true);
}

void VorbisMetaData::removeValueForXiphTag(const char *tagName)
{
    HRFRequire(tagName, "tagName");
    const Lock guard = lock();
    if (Ogg::XiphComment *comment = xiphTag())
        comment->removeFields(tagName);
}

HRFText VorbisMetaData::stringForKey(HRFTagKey key) const
{
    const char *tagName = xiphTagNameForKey(key);
    return tagName ? stringForXiphTag(tagName) : HRFText();
}

void VorbisMetaData::setStringForKey(const HRFText &value, HRFTagKey key)
{
    if (const char *tagName = xiphTagNameForKey(key))
        setStringForXiphTag(value, tagName);
}

QByteArray VorbisMetaData::commentArtwork() const
{
    Ogg::XiphComment *comment = xiphTag();
    const auto pictures = comment ? comment->pictureList() : List<FLAC::Picture *>();
    return pictures.isEmpty() ? QByteArray() : TagLibText::toQByteArray(pictures.front()->data());
}

void VorbisMetaData::setCommentArtwork(const QByteArray &data)
{
    Ogg::XiphComment *comment = xiphTag();
    if (!comment)
        return;
    comment->removeAllPictures();
    if (!data.isEmpty())
        comment->addPicture(FLACFrontCover(data).release());
}

QVariant VorbisMetaData::readValue(HRFTagKey key) const
{
    if (key == HRFTagKey::artwork)
        return commentArtwork();
    if (const auto *handler = handlersByKey[std::size_t(key)])
        return handler->read(*this, key);
    return HRFTagEngine::readValue(key);
}

void VorbisMetaData::writeValue(const QVariant &value, HRFTagKey key)
{
    if (key == HRFTagKey::artwork)
        return setCommentArtwork(value.toByteArray());
    if (const auto *handler = handlersByKey[std::size_t(key)])
        return handler->write(*this, key, value);
    HRFTagEngine::writeValue(value, key);
}

HRFResult<void> VorbisMetaData::stripTags()
{
    const Lock guard = lock();
    forgetChanges();
    Ogg::XiphComment *comment = xiphTag();
    if (!comment)
        return {};
    comment->removeAllFields();
    comment->removeAllPictures();
    if (comment->isEmpty())
        return {};
    return std::unexpected(
        reasonError(QCoreApplication::translate("VorbisMetaData", "Its tag cannot be emptied.")));
}

HRFResult<void> VorbisMetaData::saveTags()
{
    if (m_tagFile->save())
        return {};
    return std::unexpected(HRFError::fromErrno(EIO));
}
