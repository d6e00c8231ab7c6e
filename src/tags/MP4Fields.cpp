#include "tags/MP4Fields.h"

#include "tags/MP4MetaData.h"
#include "tags/TagLibText.h"

#include <taglib/mp4coverart.h>
#include <taglib/mp4item.h>
#include <taglib/mp4properties.h>
#include <taglib/mp4tag.h>

#include <algorithm>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

using K = HRFTagKey;

constexpr const char *coverAtom = "covr";

/// The whole number in an item of whatever type.
qlonglong numberInItem(const MP4::Item &item)
{
    using Type = MP4::Item::Type;
    switch (item.type()) {
    case Type::Bool:
        return item.toBool() ? 1 : 0;
    case Type::Int:
        return item.toInt();
    case Type::UInt:
        return item.toUInt();
    case Type::Byte:
        return item.toByte();
    case Type::LongLong:
        return item.toLongLong();
    case Type::StringList:
        return HRFTagProperties::numberForString(
                   TagLibText::toQString(item.toStringList().toString()))
            .value_or(0);
    default:
        return 0;
    }
}

QVariant readNumber(const MP4MetaData &engine, K key)
{
    const MP4::Tag *tag = engine.MP4File().tag();
    const char *atomName = HRFTagEngine::atomNameForKey(key);
    if (!tag || !tag->contains(atomName))
        return {};
    return numberInItem(tag->item(atomName));
}

/// Writes an item made of the number; nothing and 0 remove it.
template <class ItemValue, qint64 Largest>
void writeNumber(MP4MetaData &engine, K key, const QVariant &value)
{
    const char *atomName = HRFTagEngine::atomNameForKey(key);
    // Negative numbers count as huge ones: the value is unsigned.
    const quint64 number = std::min(quint64(value.toLongLong()), quint64(Largest));
    if (number == 0)
        engine.removeValueForTag(atomName);
    else
        engine.setItemForTag(MP4::Item(static_cast<ItemValue>(number)), atomName);
}

constexpr auto writeByte = &writeNumber<unsigned char, UINT8_MAX>;
constexpr auto writeUnsigned = &writeNumber<unsigned int, UINT32_MAX>;
constexpr auto writeInteger = &writeNumber<int, INT32_MAX>;

/// The number's atom holds the pair.
template <K Number, bool First> QVariant readPair(const MP4MetaData &engine, K)
{
    return HRFTagValue::from(
        engine.numberForIntPairWithTag(HRFTagEngine::atomNameForKey(Number), First));
}

template <K Number, K Total, bool First>
void writePair(MP4MetaData &engine, K, const QVariant &value)
{
    const HRFNumber number = HRFTagValue::as<qlonglong>(value);
    const HRFNumber other = HRFTagValue::as<qlonglong>(engine.valueForKey(First ? Total : Number));
    engine.setFirstValueSecondValueForTag(First ? number : other, First ? other : number,
                                          HRFTagEngine::atomNameForKey(Number));
}

QVariant readArtwork(const MP4MetaData &engine, K)
{
    const MP4::Tag *tag = engine.MP4File().tag();
    if (!tag || !tag->contains(coverAtom))
        return {};
    const MP4::CoverArtList covers = tag->item(coverAtom).toCoverArtList();
    return covers.isEmpty() ? QVariant() : TagLibText::toQByteArray(covers.front().data());
}

MP4::CoverArt::Format coverFormat(const QByteArray &data)
{
    switch (static_cast<unsigned char>(data.front())) {
    case 0xFF:
        return MP4::CoverArt::JPEG;
    case 0x89:
        return MP4::CoverArt::PNG;
    default:
        return MP4::CoverArt::Unknown;
    }
}

void writeArtwork(MP4MetaData &engine, K, const QVariant &value)
{
    const QByteArray data = value.toByteArray();
    if (data.isEmpty())
        return engine.removeValueForTag(coverAtom);
    MP4::CoverArtList covers;
    covers.append(MP4::CoverArt(coverFormat(data), TagLibText::toByteVector(data)));
    engine.setItemForTag(covers, coverAtom);
}

QVariant readFrames(const MP4MetaData &engine, K)
{
    const MP4::Tag *tag = engine.MP4File().tag();
    if (!tag || tag->isEmpty())
        return {};
    QList<HRFFrameDescription> frames;
    for (const auto &[name, item] : tag->itemMap()) {
        const StringList texts = item.toStringList();
        if (!texts.isEmpty())
            frames.append(
                {TagLibText::toQString(name), TagLibText::toQString(texts.toString(", "))});
    }
    return QVariant::fromValue(frames);
}

QVariant readFramesCount(const MP4MetaData &engine, K)
{
    const MP4::Tag *tag = engine.MP4File().tag();
    return tag ? QVariant(qlonglong(tag->itemMap().size())) : QVariant();
}

QVariant readBitDepth(const MP4MetaData &engine, K)
{
    const MP4::Properties *properties = engine.MP4File().audioProperties();
    return properties ? QVariant(qlonglong(properties->bitsPerSample())) : QVariant();
}

QVariant readIsDRMProtected(const MP4MetaData &engine, K)
{
    const MP4::Properties *properties = engine.MP4File().audioProperties();
    return properties && properties->isEncrypted();
}

QVariant readFormat(const MP4MetaData &engine, K)
{
    const MP4::Properties *properties = engine.MP4File().audioProperties();
    if (!properties)
        return {};
    switch (properties->codec()) {
    case MP4::Properties::Unknown:
        return u"MP4"_s;
    case MP4::Properties::AAC:
        return u"MP4 (AAC)"_s;
    case MP4::Properties::ALAC:
        return u"MP4 (ALAC)"_s;
    }
    return {};
}

QVariant readTagVersion(const MP4MetaData &engine, K)
{
    const MP4::Tag *tag = engine.MP4File().tag();
    return tag && !tag->isEmpty() ? QVariant(u"MP4"_s) : QVariant();
}

constexpr HRFFieldHandler<MP4MetaData> handlers[] = {
    {K::trackNumber, readPair<K::trackNumber, true>,
     writePair<K::trackNumber, K::trackTotal, true>},
    {K::trackTotal, readPair<K::trackNumber, false>,
     writePair<K::trackNumber, K::trackTotal, false>},
    {K::discNumber, readPair<K::discNumber, true>, writePair<K::discNumber, K::discTotal, true>},
    {K::discTotal, readPair<K::discNumber, false>, writePair<K::discNumber, K::discTotal, false>},
    {K::movementNumber, readNumber, writeInteger},
    {K::movementTotal, readNumber, writeInteger},
    {K::bpm, readNumber, writeUnsigned},
    {K::rating, readNumber, writeByte},
    {K::artwork, readArtwork, writeArtwork},
    {K::frames, readFrames},
    {K::framesCount, readFramesCount},
    {K::bitDepth, readBitDepth},
    {K::isDRMProtected, readIsDRMProtected},
    {K::format, readFormat},
    {K::tagVersion, readTagVersion},
};

constexpr auto handlersByKey = HRFHandlersByKey(handlers);

} // namespace

const HRFFieldHandler<MP4MetaData> *MP4FieldHandlerForKey(HRFTagKey key)
{
    return handlersByKey[std::size_t(key)];
}
