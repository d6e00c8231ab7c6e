#include "tags/ID3Fields.h"

#include "kit/HRFISO8601DateFormatter.h"
#include "kit/HRFImageType.h"
#include "tags/ID3MetaData.h"
#include "tags/TagLibText.h"

#include <taglib/attachedpictureframe.h>
#include <taglib/commentsframe.h>
#include <taglib/id3v2header.h>
#include <taglib/id3v2tag.h>
#include <taglib/podcastframe.h>
#include <taglib/popularimeterframe.h>
#include <taglib/textidentificationframe.h>
#include <taglib/unsynchronizedlyricsframe.h>

#include <algorithm>
#include <memory>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

using K = HRFTagKey;

/// The first frame of the key's identifier when it is of type Frame.
template <class Frame> Frame *firstFrame(const ID3MetaData &engine, HRFTagKey key)
{
    const ID3v2::Tag *tag = engine.ID3V2Tag();
    if (!tag)
        return nullptr;
    const auto found = tag->frameListMap().find(HRFTagEngine::ID3FrameForKey(key));
    if (found == tag->frameListMap().end() || found->second.isEmpty())
        return nullptr;
    return dynamic_cast<Frame *>(found->second.front());
}

/// The same; without one, a new frame that has been added to the tag.
template <class Frame> Frame *firstOrNewFrame(const ID3MetaData &engine, HRFTagKey key)
{
    auto *frame = firstFrame<Frame>(engine, key);
    if (!frame) {
        frame = new Frame;
        engine.ID3V2Tag()->addFrame(frame);
    }
    return frame;
}

/// TagLib's setters make frames in TagLib's encoding and keep that of existing ones.
void applyDefaultEncoding(const ID3MetaData &engine, const char *frameID)
{
    for (ID3v2::Frame *frame : std::as_const(*engine.ID3V2Tag()).frameList(frameID))
        if (auto *text = dynamic_cast<ID3v2::TextIdentificationFrame *>(frame))
            text->setTextEncoding(ID3MetaData::defaultTextEncoding());
}

QVariant readWebsite(const ID3MetaData &engine, HRFTagKey key)
{
    return HRFTagValue::from(engine.urlStringForKey(key));
}

void writeWebsite(ID3MetaData &engine, HRFTagKey key, const QVariant &value)
{
    engine.setURLStringForKey(HRFTagValue::as<QString>(value), key, "WEBSITE");
}

QVariant readComment(const ID3MetaData &engine, HRFTagKey)
{
    const ID3v2::Tag *tag = engine.ID3V2Tag();
    return tag ? QVariant(TagLibText::toQString(tag->comment())) : QVariant();
}

void writeComment(ID3MetaData &engine, HRFTagKey key, const QVariant &value)
{
    engine.removeValueForID3Key(key);
    if (!value.isValid() || !engine.ID3V2Tag())
        return;
    auto frame = std::make_unique<ID3v2::CommentsFrame>(ID3MetaData::defaultTextEncoding());
    frame->setLanguage("ENG");
    frame->setText(TagLibText::toTagString(value.toString()));
    engine.ID3V2Tag()->addFrame(frame.release());
}

QVariant readLyrics(const ID3MetaData &engine, HRFTagKey key)
{
    return HRFTagValue::from(engine.stringForID3Key(key));
}

void writeLyrics(ID3MetaData &engine, HRFTagKey key, const QVariant &value)
{
    engine.removeValueForID3Key(key);
    if (!value.isValid() || !engine.ID3V2Tag())
        return;
    auto frame = std::make_unique<ID3v2::UnsynchronizedLyricsFrame>(String::UTF8);
    frame->setText(TagLibText::toTagString(value.toString()));
    engine.ID3V2Tag()->addFrame(frame.release());
}

QVariant readGenre(const ID3MetaData &engine, HRFTagKey)
{
    const ID3v2::Tag *tag = engine.ID3V2Tag();
    return tag ? QVariant(TagLibText::toQString(tag->genre())) : QVariant();
}

void writeGenre(ID3MetaData &engine, HRFTagKey, const QVariant &value)
{
    if (!engine.ID3V2Tag())
        return;
    engine.ID3V2Tag()->setGenre(TagLibText::toTagString(value.toString()));
    applyDefaultEncoding(engine, "TCON");
}

QVariant readYear(const ID3MetaData &engine, HRFTagKey)
{
    const unsigned int year = engine.ID3V2Tag() ? engine.ID3V2Tag()->year() : 0;
    return year == 0 ? QVariant() : QVariant(qlonglong(year));
}

void writeYear(ID3MetaData &engine, HRFTagKey, const QVariant &value)
{
    if (!engine.ID3V2Tag())
        return;
    engine.setStringForUserTextIdentificationFrame({}, HRFTagEngine::APEFrameForKey(K::year));
    engine.ID3V2Tag()->setYear(static_cast<unsigned int>(value.toLongLong()));
    applyDefaultEncoding(engine, "TDRC");
}

QVariant readArtwork(const ID3MetaData &engine, HRFTagKey key)
{
    const auto *frame = firstFrame<ID3v2::AttachedPictureFrame>(engine, key);
    return frame ? QVariant(TagLibText::toQByteArray(frame->picture())) : QVariant();
}

void writeArtwork(ID3MetaData &engine, HRFTagKey key, const QVariant &value)
{
    if (!engine.ID3V2Tag())
        return;
    const QByteArray data = value.toByteArray();
    if (data.isEmpty())
        return engine.removeValueForID3Key(key);
    auto *frame = firstOrNewFrame<ID3v2::AttachedPictureFrame>(engine, key);
    frame->setPicture(TagLibText::toByteVector(data));
    frame->setType(ID3v2::AttachedPictureFrame::FrontCover);
    if (const auto type = bitmapImageType(data))
        frame->setMimeType(String(std::string(type->mimeType)));
}

QVariant readRating(const ID3MetaData &engine, HRFTagKey key)
{
    const auto *frame = firstFrame<ID3v2::PopularimeterFrame>(engine, key);
    return frame ? QVariant(qlonglong(frame->rating())) : QVariant();
}

void writeRating(ID3MetaData &engine, HRFTagKey key, const QVariant &value)
{
    if (!engine.ID3V2Tag())
        return;
    // Negative numbers count as huge ones: the value is unsigned.
    const quint64 rating = std::min<quint64>(quint64(value.toLongLong()), 255);
    if (rating == 0)
        return engine.removeValueForID3Key(key);
    firstOrNewFrame<ID3v2::PopularimeterFrame>(engine, key)->setRating(int(rating));
}

QVariant readIsPodcast(const ID3MetaData &engine, HRFTagKey key)
{
    return firstFrame<ID3v2::Frame>(engine, key) ? QVariant(true) : QVariant();
}

void writeIsPodcast(ID3MetaData &engine, HRFTagKey key, const QVariant &value)
{
    if (!value.toBool())
        engine.removeValueForID3Key(key);
    else if (engine.ID3V2Tag())
        firstOrNewFrame<ID3v2::PodcastFrame>(engine, key);
}

/// ID3v2.4 and ID3v2.3 name the frame differently; the tag holds both.
QVariant readInvolvedPeople(const ID3MetaData &engine, HRFTagKey key)
{
    const HRFText text = engine.stringForID3Tag(HRFTagEngine::ID3v2_4FrameForKey(key));
    return HRFTagValue::from(text ? text : engine.stringForID3Key(key));
}

void writeInvolvedPeople(ID3MetaData &engine, HRFTagKey key, const QVariant &value)
{
    const HRFText text = HRFTagValue::as<QString>(value);
    engine.setStringForID3Tag(text, HRFTagEngine::ID3v2_4FrameForKey(key));
    engine.setStringForID3Key(text, key);
}

QVariant readOriginalReleaseDate(const ID3MetaData &engine, HRFTagKey key)
{
    const HRFText text = engine.stringForID3Tag(HRFTagEngine::ID3v2_4FrameForKey(key));
    HRFDate date;
    if (text)
        date = HRFISO8601DateFormatter::shared().dateFromString(*text);
    if (!date)
        date = HRFTagProperties::dateForString(engine.stringForID3Key(key));
    return HRFTagValue::from(date);
}

void writeOriginalReleaseDate(ID3MetaData &engine, HRFTagKey key, const QVariant &value)
{
    writeInvolvedPeople(
        engine, key,
        HRFTagValue::from(HRFTagProperties::stringForDate(HRFTagValue::as<QDateTime>(value))));
}

/// A number and the total that shares its frame.
template <HRFTagKey Number> QVariant readNumber(const ID3MetaData &engine, HRFTagKey)
{
    return HRFTagValue::from(engine.numberForIntPairWithID3Key(Number, true));
}

template <HRFTagKey Number> QVariant readTotal(const ID3MetaData &engine, HRFTagKey)
{
    return HRFTagValue::from(engine.numberForIntPairWithID3Key(Number, false));
}

template <HRFTagKey Number, HRFTagKey Total>
void writeNumber(ID3MetaData &engine, HRFTagKey, const QVariant &value)
{
    engine.setFirstValueSecondValueForID3Key(HRFTagValue::as<qlonglong>(value),
                                             HRFTagValue::as<qlonglong>(engine.valueForKey(Total)),
                                             Number);
}

template <HRFTagKey Number, HRFTagKey Total>
void writeTotal(ID3MetaData &engine, HRFTagKey, const QVariant &value)
{
    engine.setFirstValueSecondValueForID3Key(HRFTagValue::as<qlonglong>(engine.valueForKey(Number)),
                                             HRFTagValue::as<qlonglong>(value), Number);
}

QVariant readTagVersion(const ID3MetaData &engine, HRFTagKey)
{
    const ID3v2::Tag *tag = engine.ID3V2Tag();
    if (!tag || tag->isEmpty())
        return {};
    const QString version = u"ID3v2.%1"_s.arg(tag->header()->majorVersion());
    const unsigned int revision = tag->header()->revisionNumber();
    return revision == 0 ? version : u"%1.%2"_s.arg(version).arg(revision);
}

QVariant readTagSize(const ID3MetaData &engine, HRFTagKey)
{
    const ID3v2::Tag *tag = engine.ID3V2Tag();
    const unsigned int size = tag ? tag->header()->tagSize() : 0;
    return size == 0 ? QVariant() : QVariant(qlonglong(size));
}

QVariant readFramesCount(const ID3MetaData &engine, HRFTagKey)
{
    const ID3v2::Tag *tag = engine.ID3V2Tag();
    return tag ? QVariant(qlonglong(tag->frameList().size())) : QVariant();
}

QVariant readFrames(const ID3MetaData &engine, HRFTagKey)
{
    const ID3v2::Tag *tag = engine.ID3V2Tag();
    if (!tag)
        return {};
    QList<HRFFrameDescription> frames;
    for (const ID3v2::Frame *frame : tag->frameList()) {
        const ByteVector id = frame->frameID();
        frames.append({QString::fromUtf8(id.data(), qsizetype(id.size())),
                       TagLibText::toQString(frame->toString())});
    }
    return QVariant::fromValue(frames);
}

template <HRFTagKey Number, HRFTagKey Total>
constexpr HRFFieldHandler<ID3MetaData> numberHandler{Number, readNumber<Number>,
                                                     writeNumber<Number, Total>};
template <HRFTagKey Number, HRFTagKey Total>
constexpr HRFFieldHandler<ID3MetaData> totalHandler{Total, readTotal<Number>,
                                                    writeTotal<Number, Total>};

constexpr HRFFieldHandler<ID3MetaData> handlers[] = {
    {K::website, readWebsite, writeWebsite},
    {K::comment, readComment, writeComment},
    {K::lyrics, readLyrics, writeLyrics},
    {K::genre, readGenre, writeGenre},
    {K::year, readYear, writeYear},
    {K::artwork, readArtwork, writeArtwork},
    {K::rating, readRating, writeRating},
    {K::isPodcast, readIsPodcast, writeIsPodcast},
    {K::involvedPeopleList, readInvolvedPeople, writeInvolvedPeople},
    {K::originalReleaseDate, readOriginalReleaseDate, writeOriginalReleaseDate},
    numberHandler<K::trackNumber, K::trackTotal>,
    totalHandler<K::trackNumber, K::trackTotal>,
    numberHandler<K::discNumber, K::discTotal>,
    totalHandler<K::discNumber, K::discTotal>,
    numberHandler<K::movementNumber, K::movementTotal>,
    totalHandler<K::movementNumber, K::movementTotal>,
    {K::tagVersion, readTagVersion},
    {K::tagSize, readTagSize},
    {K::framesCount, readFramesCount},
    {K::frames, readFrames},
};

constexpr auto handlersByKey = HRFHandlersByKey(handlers);

} // namespace

const HRFFieldHandler<ID3MetaData> *ID3FieldHandlerForKey(HRFTagKey key)
{
    return handlersByKey[std::size_t(key)];
}
