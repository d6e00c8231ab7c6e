#include "tags/ID3Version3.h"

#include "tags/HRFTagEngine.h"

#include <taglib/id3v2tag.h>
#include <taglib/textidentificationframe.h>

#include <algorithm>
#include <memory>

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
    const auto *frame = firstTextFrame(tag, frameID);
    if (!frame)
        return;
    const String description(HRFTagEngine::APEFrameForKey(key));
    if (auto *old = ID3v2::UserTextIdentificationFrame::find(&tag, description))
        tag.removeFrame(old);
    tag.addFrame(new ID3v2::UserTextIdentificationFrame(description, frame->toString(),
                                                        frame->textEncoding()));
    tag.removeFrames(frameID);
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

void prepare(ID3v2::Tag &tag)
{
    for (const HRFTagKey key : userTextKeys)
        moveToUserText(tag, key);
    moveToVersion3Frame(tag, HRFTagKey::originalReleaseDate);
    moveToVersion3Frame(tag, HRFTagKey::involvedPeopleList);
    joinGenres(tag);
}

} // namespace ID3Version3
