#include "tags/ID3Version3.h"

#include "tags/HRFTagEngine.h"
#include "tags/HRFTagStream.h"
#include "tags/ID3FrameHeader.h"

#include <taglib/id3v2tag.h>
#include <taglib/textidentificationframe.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

using namespace TagLib;

namespace ID3Version3 {

namespace {

/// Absent from ID3v2.3 (ID3v2.4.0 changes §4); TMCL is there, but only as part of IPLS.
constexpr HRFTagKey userTextKeys[] = {
    HRFTagKey::mood,        HRFTagKey::producedNotice, HRFTagKey::releaseTime,
    HRFTagKey::taggingTime, HRFTagKey::subtitleForSet, HRFTagKey::musicianCreditsList,
};

ID3v2::TextIdentificationFrame *firstTextFrame(const ID3v2::Tag &tag, const char *frameID)
{
    const auto found = tag.frameListMap().find(frameID);
    if (found == tag.frameListMap().end() || found->second.isEmpty())
        return nullptr;
    return dynamic_cast<ID3v2::TextIdentificationFrame *>(found->second.front());
}

void moveToUserText(ID3v2::Tag &tag, HRFTagKey key)
{
    const char *frameID = HRFTagEngine::ID3FrameForKey(key);
    const auto *first = firstTextFrame(tag, frameID);
    if (!first)
        return;
    StringList texts;
    for (const ID3v2::Frame *frame : std::as_const(tag).frameList(frameID))
        texts.append(frame->toString());
    const String description(HRFTagEngine::APEFrameForKey(key));
    if (auto *old = ID3v2::UserTextIdentificationFrame::find(&tag, description))
        tag.removeFrame(old);
    tag.addFrame(new ID3v2::UserTextIdentificationFrame(description, texts, first->textEncoding()));
    tag.removeFrames(frameID);
}

constexpr unsigned int yearLength = 4;
constexpr unsigned int dateLength = 10;
constexpr unsigned int dateTimeLength = 16;

/// ID3v2.3 has a four-digit year, and day and time to the minute; a time that is none of these
/// stays whole in a user text frame.
void keepRecordingTime(ID3v2::Tag &tag)
{
    auto *frame = firstTextFrame(tag, "TDRC");
    if (!frame)
        return;
    const String text = frame->toString();
    // TagLib makes these from the recording time; an ID3v2.4 tag has them by mistake.
    tag.removeFrames("TYER");
    if (text.size() >= dateLength)
        tag.removeFrames("TDAT");
    if (text.size() >= dateTimeLength)
        tag.removeFrames("TIME");
    constexpr std::array exactLengths = {yearLength, dateLength, dateTimeLength};
    if (text.size() < yearLength) {
        frame->setText(String(std::string(yearLength - text.size(), '0')) + text);
    } else if (std::ranges::find(exactLengths, text.size()) == exactLengths.end()) {
        const String description(HRFTagEngine::APEFrameForKey(HRFTagKey::year));
        if (!ID3v2::UserTextIdentificationFrame::find(&tag, description))
            tag.addFrame(new ID3v2::UserTextIdentificationFrame(description, text, String::UTF8));
    }
}

/// Binary frames that TagLib does not write into ID3v2.3 tags. Under another identifier it does.
struct HiddenFrame
{
    const char *frameID;
    const char *hidden;
};

constexpr HiddenFrame hiddenFrames[] = {
    {"RVA2", "rva2"}, {"EQU2", "equ2"}, {"SEEK", "seek"}, {"SIGN", "sign"}, {"ASPI", "aspi"},
};

void hideFrames(ID3v2::Tag &tag)
{
    for (const HiddenFrame &names : hiddenFrames)
        for (ID3v2::Frame *frame : std::as_const(tag).frameList(names.frameID))
            frame->header()->setFrameID(names.hidden);
}

/// Makes the ID3v2.3 frame the only one of a pair, with all its words. TagLib would make another
/// one from the ID3v2.4 frame, and keep only the year or full pairs in it.
void moveToVersion3Frame(ID3v2::Tag &tag, HRFTagKey key)
{
    const char *frameID = HRFTagEngine::ID3FrameForKey(key);
    const char *version4FrameID = HRFTagEngine::ID3v2_4FrameForKey(key);
    if (const auto *frame = firstTextFrame(tag, version4FrameID)) {
        auto moved =
            std::make_unique<ID3v2::TextIdentificationFrame>(frameID, frame->textEncoding());
        moved->setText(frame->fieldList());
        tag.removeFrames(frameID);
        tag.addFrame(moved.release());
    }
    tag.removeFrames(version4FrameID);
}

/// TagLib writes several genres as references to ID3v1 genres and keeps only one that is not such.
void joinGenres(ID3v2::Tag &tag)
{
    auto *frame = firstTextFrame(tag, "TCON");
    if (frame && frame->fieldList().size() > 1)
        frame->setText(tag.genre());
}

} // namespace

bool isKeptAsUserText(HRFTagKey key)
{
    return std::ranges::find(userTextKeys, key) != std::end(userTextKeys);
}

bool hasFramesToHide(const ID3v2::Tag &tag)
{
    return std::ranges::any_of(hiddenFrames, [&tag](const HiddenFrame &names) {
        return !tag.frameList(names.frameID).isEmpty();
    });
}

void prepare(ID3v2::Tag &tag)
{
    for (const HRFTagKey key : userTextKeys)
        moveToUserText(tag, key);
    moveToVersion3Frame(tag, HRFTagKey::originalReleaseDate);
    moveToVersion3Frame(tag, HRFTagKey::involvedPeopleList);
    joinGenres(tag);
    keepRecordingTime(tag);
    hideFrames(tag);
}

void revealFrames(HRFTagStream &stream, qint64 tagOffset)
{
    std::array<char, ID3FrameHeader::length> header{};
    stream.readAt(tagOffset, header);
    const qint64 end = tagOffset + qint64(header.size()) + ID3SynchSafeSize(header.data() + 6);
    for (qint64 offset = tagOffset + qint64(header.size()); offset < end;) {
        if (stream.readAt(offset, header) < header.size())
            return;
        const ID3FrameHeader frame(header.data(), 3);
        if (frame.isPadding())
            return;
        const auto *names =
            std::ranges::find_if(hiddenFrames, [&frame](const HiddenFrame &candidate) {
                return frame.frameID() == candidate.hidden;
            });
        if (names != std::end(hiddenFrames)) {
            stream.seek(offset, IOStream::Beginning);
            stream.writeBlock(ByteVector(names->frameID, 4));
        }
        offset += qint64(header.size()) + frame.frameSize();
    }
}

} // namespace ID3Version3
