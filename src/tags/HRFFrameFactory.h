#pragma once

#include "tags/ID3FrameCheck.h"

#include <QString>
#include <taglib/id3v2framefactory.h>
#include <taglib/tbytevector.h>
#include <taglib/tstringlist.h>

namespace TagLib::ID3v2 {
class Tag;
}

/// Makes the frames of one ID3v2 tag while TagLib parses it.
///
/// Unlike TagLib's own factory it leaves the text encoding of existing frames alone, keeps frames
/// that TagLib would drop on saving, and notices what TagLib leaves unparsed.
class HRFFrameFactory final : public TagLib::ID3v2::FrameFactory
{
public:
    TagLib::ID3v2::Frame *createFrame(const TagLib::ByteVector &data,
                                      const TagLib::ID3v2::Header *tagHeader) const override;

    /// Goes on behind empty frames (against ID3v2.4.0 structure §4, but found in the field), where
    /// TagLib stops parsing. To be called once the tag is read.
    void completeTag(TagLib::ID3v2::Tag &tag) const;
    /// Parses an ID3v2.3 tag with an extended header anew: TagLib takes the size of that header for
    /// one of ID3v2.4 (ID3v2.3.0 §3.2).
    ///
    /// @param body what follows the tag's header
    void parseBehindExtendedHeader(TagLib::ID3v2::Tag &tag, const TagLib::ByteVector &body) const;

    /// Why saving the tag would lose a part of it; empty when it would not.
    const QString &obstacle() const { return m_obstacle; }
    void setObstacle(const QString &obstacle) const { m_obstacle = obstacle; }

private:
    TagLib::ID3v2::Frame *keepWhole(TagLib::ID3v2::Frame *frame, const TagLib::ByteVector &data,
                                    const TagLib::ID3v2::Header &tagHeader) const;
    TagLib::StringList textsOfGenreFrame(TagLib::ByteVector data,
                                         const TagLib::ID3v2::Header &tagHeader) const;
    void parseFrames(TagLib::ID3v2::Tag &tag, TagLib::ByteVector rest) const;

    mutable ID3FrameCheck m_check;
    mutable TagLib::ByteVector m_unparsed; ///< what follows the last frame that could be parsed
    mutable QString m_obstacle;
};
