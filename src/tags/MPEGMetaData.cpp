#include "tags/MPEGMetaData.h"

#include "kit/HRFUserDefaults.h"
#include "tags/HRFTagStream.h"
#include "tags/ID3Fields.h"
#include "tags/ID3TagExcerpt.h"
#include "tags/ID3Version3.h"
#include "tags/MPEGCheck.h"

#include <QCoreApplication>
#include <taglib/apetag.h>
#include <taglib/id3v1tag.h>
#include <taglib/id3v2header.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpegproperties.h>
#include <taglib/xingheader.h>

#include <cerrno>
#include <iterator>
#include <set>
#include <string_view>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"mp2", "mp3", "mpga"};

/// The tag types that are switched on.
int enabledTagTypes()
{
    const HRFUserDefaults &defaults = HRFUserDefaults::standard();
    return (defaults.boolForKey(u"lirra.tagging.MPEG.ID3v2"_s) ? MPEG::File::ID3v2 : 0)
        + (defaults.boolForKey(u"lirra.tagging.MPEG.ID3v1"_s) ? MPEG::File::ID3v1 : 0)
        + (defaults.boolForKey(u"lirra.tagging.MPEG.APE"_s) ? MPEG::File::APE : 0);
}

QVariant channelModeName(const MPEG::Properties &properties)
{
    switch (properties.channelMode()) {
    case MPEG::Header::Stereo:
        return u"Stereo"_s;
    case MPEG::Header::JointStereo:
        return u"Joint Stereo"_s;
    case MPEG::Header::DualChannel:
        return u"Dual Channel"_s;
    case MPEG::Header::SingleChannel:
        return u"Mono"_s;
    }
    return {};
}

QVariant formatName(const MPEG::Properties &properties)
{
    const QString layer =
        properties.layer() >= 1 ? u" layer %1"_s.arg(properties.layer()) : QString();
    switch (properties.version()) {
    case MPEG::Header::Version1:
        return u"MPEG-1"_s + layer;
    case MPEG::Header::Version2:
        return u"MPEG-2"_s + layer;
    case MPEG::Header::Version2_5:
        return u"MPEG-2.5"_s + layer;
    default:
        return {};
    }
}

} // namespace

const HRFEngineClass MPEGMetaData::metadataClass{
    "MPEGMetaData", fileTypes, QT_TRANSLATE_NOOP("HRFTagEngine", "MPEG audio or a tag"),
    &HRFMakeEngine<MPEGMetaData>};

MPEGMetaData::MPEGMetaData(std::shared_ptr<HRFTagStream> file, bool readProperties)
    : APEUnionMetaData(std::move(file)), m_saveTagTypes(enabledTagTypes())
{
    openTagFile(readProperties);
}

void MPEGMetaData::openTagFile(bool readProperties)
{
    frameFactory()->setObstacle({});
    HRFRewind(stream());
    m_tagFile = std::make_unique<MPEG::File>(&stream(), readProperties, AudioProperties::Average,
                                             frameFactory());
}

/// TagLib takes any bytes for an MPEG file, and finds an ID3v2 tag also in the middle of them.
HRFResult<void> MPEGMetaData::checkFile()
{
    const bool beginsWithTag = m_tagFile->hasID3v2Tag() && ID3V2TagOffset() == 0;
    const bool hasTag = beginsWithTag || m_tagFile->hasID3v1Tag() || m_tagFile->hasAPETag();
    if (!hasTag && !MPEGHasAudio(*m_tagFile))
        return std::unexpected(contentsError());
    if (auto checked = APEUnionMetaData::checkFile(); !checked)
        return checked;
    if (beginsWithTag)
        takeOverSecondTag();
    return {};
}

/// TagLib takes a second ID3v2 tag behind the first for padding. Its frames that the first tag
/// lacks are taken over; there may be more such tags.
void MPEGMetaData::takeOverSecondTag()
{
    ID3v2::Tag *first = m_tagFile->ID3v2Tag();
    const auto end = offset_t(first->header()->completeTagSize());
    stream().seek(0, IOStream::Beginning);
    auto offset =
        offset_t(ID3v2::Header(stream().readBlock(ID3v2::Header::size())).completeTagSize());
    while (offset < end) {
        ID3v2::Tag second(m_tagFile.get(), offset, frameFactory());
        stream().seek(offset, IOStream::Beginning);
        const unsigned int size =
            ID3v2::Header(stream().readBlock(ID3v2::Header::size())).completeTagSize();
        const ID3v2::FrameListMap known = first->frameListMap();
        for (ID3v2::Frame *frame : ID3v2::FrameList(second.frameList())) {
            if (known.contains(frame->frameID()))
                continue;
            second.removeFrame(frame, false);
            first->addFrame(frame);
        }
        offset += size;
    }
}

ID3v2::Tag *MPEGMetaData::ID3V2Tag() const
{
    ID3v2::Tag *tag = m_tagFile->ID3v2Tag(false);
    return tag || !mayCreateTag(MPEG::File::ID3v2) ? tag : m_tagFile->ID3v2Tag(true);
}

ID3v1::Tag *MPEGMetaData::ID3V1Tag() const
{
    ID3v1::Tag *tag = m_tagFile->ID3v1Tag(false);
    return tag || !mayCreateTag(MPEG::File::ID3v1) ? tag : m_tagFile->ID3v1Tag(true);
}

APE::Tag *MPEGMetaData::APETag() const
{
    APE::Tag *tag = m_tagFile->APETag(false);
    return tag || !mayCreateTag(MPEG::File::APE) ? tag : m_tagFile->APETag(true);
}

bool MPEGMetaData::mayCreateTag(int type) const
{
    return (m_saveTagTypes & type) != 0 && !stream().readOnly();
}

HRFResult<void> MPEGMetaData::saveTags()
{
    const bool hasTag = ID3V2TagOffset() == 0 || m_tagFile->hasID3v1Tag() || m_tagFile->hasAPETag();
    if (!hasTag && m_tagFile->tag()->isEmpty())
        return {};
    if (auto prepared = prepareSaving(preferredID3v2Version()); !prepared)
        return prepared;
    const auto version = preferredID3v2Version() == 3 ? ID3v2::v3 : ID3v2::v4;
    if (!m_tagFile->save(m_saveTagTypes, File::StripOthers, version, File::DoNotDuplicate))
        return std::unexpected(HRFError::fromErrno(EIO));
    if (version == ID3v2::v3 && ID3V2TagOffset() == 0)
        ID3Version3::revealFrames(stream(), 0);
    return {};
}

/// When there is only an ID3v2 tag, the frames of the properties are enough.
std::shared_ptr<HRFTagStream>
MPEGMetaData::streamForReading(const std::map<HRFTagKey, QVariant> &values) const
{
    // Properties that are more than the text of their own frame may read from these.
    constexpr std::string_view sharedFrameIDs[] = {"TXXX", "TDRC", "TYER", "TDAT", "TIME",
                                                   "TORY", "TDOR", "IPLS", "TIPL"};
    std::set<std::string_view> frameIDs;
    for (const auto &[key, value] : values) {
        if (const char *frameID = ID3FrameForKey(key))
            frameIDs.insert(frameID);
        if (ID3FieldHandlerForKey(key) || ID3Version3::isKeptAsUserText(key))
            frameIDs.insert(std::begin(sharedFrameIDs), std::end(sharedFrameIDs));
    }
    if (m_saveTagTypes == MPEG::File::ID3v2 && !values.empty())
        if (auto excerpt = ID3TagExcerpt(stream(), frameIDs))
            return excerpt;
    return APEUnionMetaData::streamForReading(values);
}

/// What was set before is gone with the tags, also from those that the file does not have: TagLib
/// strips only what it has found in the file.
HRFResult<void> MPEGMetaData::stripTags()
{
    const Lock guard = lock();
    const bool readsProperties = m_tagFile->audioProperties() != nullptr;
    startAnew();
    openTagFile(readsProperties);
    if (!canUpdateFile())
        return std::unexpected(HRFError::fromErrno(EACCES));
    // Behind a tag there may be another one; but within the audio, TagLib may take any three bytes
    // for the beginning of one.
    offset_t length = -1;
    for (int types = MPEG::File::AllTags; length != stream().length();) {
        length = stream().length();
        if (!m_tagFile->strip(types))
            return std::unexpected(HRFError::fromErrno(EIO));
        openTagFile(false);
        types =
            MPEG::File::ID3v1 | MPEG::File::APE | (ID3V2TagOffset() == 0 ? MPEG::File::ID3v2 : 0);
    }
    const HRFResult<void> committed = stream().commit();
    startAnew();
    openTagFile(readsProperties);
    return committed;
}

QVariant MPEGMetaData::readValue(HRFTagKey key) const
{
    const MPEG::Properties *properties = m_tagFile->audioProperties();
    switch (key) {
    case HRFTagKey::isVBR:
        return properties && properties->xingHeader() && properties->xingHeader()->isValid();
    case HRFTagKey::isDRMProtected:
        return properties && properties->protectionEnabled();
    case HRFTagKey::channelMode:
        return properties ? channelModeName(*properties) : QVariant();
    case HRFTagKey::format:
        return properties ? formatName(*properties) : QVariant();
    case HRFTagKey::tagVersion:
        return m_tagFile->tag()->isEmpty() ? QVariant() : APEUnionMetaData::readValue(key);
    default:
        return APEUnionMetaData::readValue(key);
    }
}
