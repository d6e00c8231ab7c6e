#include "tags/ID3MetaData.h"

#include "kit/HRFAssert.h"
#include "kit/HRFUserDefaults.h"
#include "tags/HRFTagStream.h"
#include "tags/ID3Fields.h"
#include "tags/ID3Version3.h"
#include "tags/TagLibText.h"

#include <QCoreApplication>
#include <taglib/id3v2tag.h>
#include <taglib/textidentificationframe.h>
#include <taglib/tfile.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <set>
#include <string_view>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("ID3MetaData", text);
}

QString versionPreference()
{
    return HRFUserDefaults::standard()
        .stringForKey(u"lirra.tagging.ID3v2Version"_s)
        .value_or(QString());
}

String::Type preferredTextEncoding()
{
    switch (versionPreference().mid(1).toInt()) {
    case 1:
        return String::Latin1;
    case 16:
        return String::UTF16;
    default:
        return String::UTF8;
    }
}

/// Text encoding of new frames, for all engines.
std::atomic<String::Type> &textEncoding()
{
    static std::atomic<String::Type> encoding = preferredTextEncoding();
    return encoding;
}

} // namespace

ID3MetaData::ID3MetaData(std::shared_ptr<HRFTagStream> stream) : HRFTagEngine(std::move(stream)) { }

void ID3MetaData::registerStringEncodingPreference()
{
    textEncoding() = preferredTextEncoding();
}

String::Type ID3MetaData::defaultTextEncoding()
{
    return textEncoding();
}

int ID3MetaData::preferredID3v2Version()
{
    return versionPreference().left(1).toInt();
}

HRFText ID3MetaData::stringForID3Tag(const char *frameID) const
{
    const Lock guard = lock();
    const ID3v2::Tag *tag = ID3V2Tag();
    if (!tag)
        return {};
    const auto found = tag->frameListMap().find(frameID);
    if (found == tag->frameListMap().end() || found->second.isEmpty())
        return {};
    return TagLibText::toQString(found->second.front()->toString());
}

/// The first frame is changed where it stands, so that the tag keeps its order.
void ID3MetaData::setStringForID3Tag(const HRFText &value, const char *frameID)
{
    const Lock guard = lock();
    ID3v2::Tag *tag = ID3V2Tag();
    if (!tag)
        return;
    const ID3v2::FrameList frames = std::as_const(*tag).frameList(frameID);
    auto *frame = value && !frames.isEmpty()
        ? dynamic_cast<ID3v2::TextIdentificationFrame *>(frames.front())
        : nullptr;
    for (ID3v2::Frame *old : frames)
        if (old != frame)
            tag->removeFrame(old);
    if (!value)
        return;
    if (!frame) {
        frame = new ID3v2::TextIdentificationFrame(frameID, defaultTextEncoding());
        tag->addFrame(frame);
    }
    frame->setTextEncoding(defaultTextEncoding());
    frame->setText(TagLibText::toTagString(*value));
}

void ID3MetaData::removeValueForID3Tag(const char *frameID)
{
    const Lock guard = lock();
    if (ID3v2::Tag *tag = ID3V2Tag())
        tag->removeFrames(frameID);
}

HRFText ID3MetaData::stringForUserTextIdentificationFrame(const char *description) const
{
    const Lock guard = lock();
    ID3v2::Tag *tag = ID3V2Tag();
    const auto *frame =
        tag ? ID3v2::UserTextIdentificationFrame::find(tag, String(description)) : nullptr;
    if (!frame || frame->fieldList().size() < 2)
        return {};
    return TagLibText::toQString(frame->fieldList()[1]);
}

void ID3MetaData::setStringForUserTextIdentificationFrame(const HRFText &value,
                                                          const char *description)
{
    const Lock guard = lock();
    ID3v2::Tag *tag = ID3V2Tag();
    if (!tag)
        return;
    auto *frame = ID3v2::UserTextIdentificationFrame::find(tag, String(description));
    if (!value || value->isEmpty()) {
        if (frame)
            tag->removeFrame(frame);
        return;
    }
    if (frame)
        frame->setText(TagLibText::toTagString(*value));
    else
        tag->addFrame(new ID3v2::UserTextIdentificationFrame(
            String(description), TagLibText::toTagString(*value), String::UTF8));
}

/// A key whose native frame ID3v2.3 lacks may stand in a user text frame instead.
HRFText ID3MetaData::stringForKey(HRFTagKey key) const
{
    const char *frameID = ID3FrameForKey(key);
    if (!frameID)
        return {};
    if (qstrcmp(frameID, "TXXX") == 0)
        return stringForUserTextIdentificationFrame(APEFrameForKey(key));
    const Lock guard = lock();
    HRFText text = stringForID3Tag(frameID);
    if (!text && ID3Version3::isKeptAsUserText(key))
        text = stringForUserTextIdentificationFrame(APEFrameForKey(key));
    return text;
}

void ID3MetaData::setStringForKey(const HRFText &value, HRFTagKey key)
{
    const char *frameID = ID3FrameForKey(key);
    if (!frameID)
        return;
    if (qstrcmp(frameID, "TXXX") == 0)
        return setStringForUserTextIdentificationFrame(value, APEFrameForKey(key));
    const Lock guard = lock();
    setStringForID3Tag(value, frameID);
    if (ID3Version3::isKeptAsUserText(key))
        setStringForUserTextIdentificationFrame({}, APEFrameForKey(key));
}

QVariant ID3MetaData::readValue(HRFTagKey key) const
{
    if (const auto *handler = ID3FieldHandlerForKey(key))
        return handler->read(*this, key);
    if (!HRFRowForKey(key).isTag)
        return HRFTagEngine::readValue(key);
    return valueFromText(ID3MetaData::stringForKey(key), HRFRowForKey(key).type);
}

void ID3MetaData::writeValue(const QVariant &value, HRFTagKey key)
{
    if (const auto *handler = ID3FieldHandlerForKey(key))
        return handler->write(*this, key, value);
    ID3MetaData::setStringForKey(textFromValue(value, HRFRowForKey(key).type), key);
}

HRFResult<void> ID3MetaData::stripTags()
{
    const Lock guard = lock();
    forgetChanges();
    m_frameFactory.setObstacle({});
    ID3v2::Tag *tag = ID3V2Tag();
    if (!tag)
        return {};
    std::vector<ByteVector> frameIDs;
    for (const auto &[frameID, frames] : std::as_const(*tag).frameListMap())
        frameIDs.push_back(frameID);
    for (const ByteVector &frameID : frameIDs)
        tag->removeFrames(frameID);
    return {};
}

HRFResult<void> ID3MetaData::checkFile()
{
    if (auto checked = HRFTagEngine::checkFile(); !checked)
        return checked;
    ID3v2::Tag *tag = ID3V2Tag();
    if (!tag || tag->header()->tagSize() == 0)
        return {};
    // Within a chunk, TagLib takes the name of a following "ID3 " chunk for a second tag.
    if (ID3V2TagOffset() >= 0 && qint64(tag->header()->completeTagSize()) > stream().length())
        return std::unexpected(reasonError(tr("Its ID3v2 tag is cut off")));
    if (tag->header()->extendedHeader() && tag->header()->majorVersion() == 3)
        readBehindExtendedHeader(*tag);
    m_frameFactory.completeTag(*tag);
    return {};
}

void ID3MetaData::readBehindExtendedHeader(ID3v2::Tag &tag)
{
    const qint64 offset = ID3V2TagOffset();
    if (offset < 0)
        return m_frameFactory.setObstacle(tr("Its ID3v2.3 tag has an extended header."));
    stream().seek(offset + ID3v2::Header::size(), IOStream::Beginning);
    m_frameFactory.parseBehindExtendedHeader(tag, stream().readBlock(tag.header()->tagSize()));
}

qint64 ID3MetaData::ID3V2TagOffset() const
{
    std::array<char, 3> start{};
    stream().readAt(0, start);
    return std::string_view(start.data(), start.size()) == "ID3" ? 0 : -1;
}

HRFResult<void> ID3MetaData::prepareSaving(int version)
{
    ID3v2::Tag *tag = ID3V2Tag();
    if (!m_frameFactory.obstacle().isEmpty())
        return std::unexpected(reasonError(m_frameFactory.obstacle()));
    if (!tag || tag->isEmpty())
        return {};
    if (version != 3)
        return {};
    if (ID3Version3::hasFramesToHide(*tag) && ID3V2TagOffset() < 0)
        return std::unexpected(reasonError(tr("Its tag has frames that ID3v2.3 lacks.")));
    ID3Version3::prepare(*tag);
    return {};
}

HRFResult<void> ID3MetaData::saveAsVersion4(File &file)
{
    if (auto prepared = prepareSaving(4); !prepared)
        return prepared;
    if (!file.save())
        return std::unexpected(HRFError::fromErrno(EIO));
    return {};
}
