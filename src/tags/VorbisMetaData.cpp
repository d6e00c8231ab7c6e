#include "tags/VorbisMetaData.h"

#include "kit/HRFAssert.h"
#include "tags/FLACPicture.h"
#include "tags/HRFFieldHandler.h"
#include "tags/HRFTagStream.h"
#include "tags/TagLibText.h"

#include <QCoreApplication>
#include <taglib/tfile.h>

#include <set>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

using K = HRFTagKey;

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

/// TagLib knows the old names of these fields, too.
template <unsigned int (Tag::*Read)() const> QVariant readNumber(const VorbisMetaData &engine, K)
{
    const Ogg::XiphComment *comment = engine.xiphTag();
    const unsigned int number = comment ? (comment->*Read)() : 0;
    return number == 0 ? QVariant() : QVariant(qlonglong(number));
}

template <void (Tag::*Write)(unsigned int)>
void writeNumber(VorbisMetaData &engine, K, const QVariant &value)
{
    if (Ogg::XiphComment *comment = engine.xiphTag())
        (comment->*Write)(static_cast<unsigned int>(value.toLongLong()));
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

/// Values are UTF-8 (Vorbis I §5.2.1), but old writers put Latin-1 there.
String decodedValue(const QByteArray &value)
{
    return TagLibText::toTagString(value.isValidUtf8() ? QString::fromUtf8(value)
                                                       : QString::fromLatin1(value));
}

/// Gives the comment the fields of the packet, also those whose text TagLib does not read.
void readFields(Ogg::XiphComment &comment, const VorbisCommentPacket &packet)
{
    comment.removeAllFields();
    for (const QByteArray &entry : packet.entries) {
        const QByteArray name = VorbisEntryName(entry);
        if (!VorbisIsPictureName(name))
            comment.addField(String(name.toStdString()), decodedValue(entry.mid(name.size() + 1)),
                             false);
    }
}

/// The names of the fields that differ.
std::set<QByteArray> changedFields(const Ogg::FieldListMap &before, const Ogg::FieldListMap &now)
{
    std::set<QByteArray> names;
    const auto addMissing = [&names](const Ogg::FieldListMap &fields,
                                     const Ogg::FieldListMap &others) {
        for (const auto &[name, values] : fields) {
            const auto other = others.find(name);
            if (other == others.end() || other->second != values)
                names.insert(QByteArray::fromStdString(name.to8Bit()));
        }
    };
    addMissing(before, now);
    addMissing(now, before);
    return names;
}

QByteArray renderedEntry(const QByteArray &name, const ByteVector &value)
{
    return name + '=' + TagLibText::toQByteArray(value);
}

constexpr HRFFieldHandler<VorbisMetaData> handlers[] = {
    {K::comment, readComment, writeComment},
    {K::year, readNumber<&Tag::year>, writeNumber<&Tag::setYear>},
    {K::trackNumber, readNumber<&Tag::track>, writeNumber<&Tag::setTrack>},
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
    m_hasChangedPictures = true;
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
    if (!m_packet)
        m_packet.emplace();
    m_packet->entries.clear();
    m_packet->rest = strippedRest(m_packet->rest);
    m_fields = {};
    return {};
}

QByteArray VorbisMetaData::strippedRest(const QByteArray &) const
{
    return {};
}

HRFResult<void> VorbisMetaData::checkFile()
{
    if (auto checked = HRFTagEngine::checkFile(); !checked)
        return checked;
    const auto bytes = readCommentBytes();
    m_packet = bytes ? VorbisCommentPacket::parse(*bytes) : VorbisCommentPacket();
    Ogg::XiphComment *comment = xiphTag();
    if (comment && m_packet) {
        readFields(*comment, *m_packet);
        m_fields = comment->fieldListMap();
    }
    return {};
}

VorbisCommentPacket VorbisMetaData::packetOfValues(VorbisCommentPacket packet,
                                                   const std::map<HRFTagKey, QVariant> &values)
{
    // TagLib reads the year, the track number and the comment from several fields.
    std::set<QByteArray> names = {"DATE",     "YEAR",        "TRACKNUMBER",
                                  "TRACKNUM", "DESCRIPTION", "COMMENT"};
    for (const auto &[key, value] : values)
        if (const char *name = xiphTagNameForKey(key))
            names.insert(name);
    packet.entries.removeIf(
        [&names](const QByteArray &entry) { return !names.contains(VorbisEntryName(entry)); });
    return packet;
}

/// The given packet with the entries replaced whose fields have changed. All others stay as they
/// are, readable or not.
VorbisCommentPacket VorbisMetaData::changedPacket(VorbisCommentPacket packet,
                                                  Ogg::XiphComment &comment) const
{
    const Ogg::FieldListMap &fields = comment.fieldListMap();
    const auto changed = changedFields(m_fields, fields);
    packet.entries.removeIf([&](const QByteArray &entry) {
        const QByteArray name = VorbisEntryName(entry);
        return VorbisIsPictureName(name) ? m_hasChangedPictures : changed.contains(name);
    });
    for (const QByteArray &name : changed)
        for (const String &value : fields.value(String(name.toStdString())))
            packet.entries.append(renderedEntry(name, value.data(String::UTF8)));
    if (!m_hasChangedPictures)
        return packet;
    for (const FLAC::Picture *picture : comment.pictureList()) {
        const ByteVector value = picture->render().toBase64();
        packet.entries.append(renderedEntry("METADATA_BLOCK_PICTURE", value));
    }
    return packet;
}

HRFResult<void> VorbisMetaData::saveTags()
{
    Ogg::XiphComment *comment = xiphTag();
    if (!m_packet || !comment) {
        return std::unexpected(reasonError(QCoreApplication::translate(
            "VorbisMetaData",
            "Its tag is damaged: it ends before the last field that it states.")));
    }
    VorbisCommentPacket packet = changedPacket(*m_packet, *comment);
    if (auto saved = writeCommentBytes(packet.render()); !saved)
        return saved;
    m_packet = std::move(packet);
    m_fields = comment->fieldListMap();
    m_hasChangedPictures = false;
    return {};
}
