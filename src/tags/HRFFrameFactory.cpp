#include "tags/HRFFrameFactory.h"

#include <QCoreApplication>
#include <taglib/id3v2tag.h>

#include <algorithm>
#include <memory>
#include <utility>

using namespace TagLib;

namespace {

/// TagLib folds these into the recording time and makes them anew for ID3v2.3.
bool isFoldedIntoRecordingTime(const ByteVector &frameID)
{
    return frameID == "TDAT" || frameID == "TIME";
}

/// Whether a frame with a well-formed identifier but without content begins here.
bool beginsWithEmptyFrame(const ByteVector &data, unsigned int version)
{
    const ID3v2::Frame::Header header(data, version);
    const ByteVector id = header.frameID();
    return header.frameSize() == 0 && id.size() == (version < 3 ? 3U : 4U)
        && std::all_of(id.begin(), id.end(), [](char character) {
               return (character >= 'A' && character <= 'Z')
                   || (character >= '0' && character <= '9');
           });
}

} // namespace

ID3v2::Frame *HRFFrameFactory::createFrame(const ByteVector &data,
                                           const ID3v2::Header *tagHeader) const
{
    ID3v2::Frame *frame = FrameFactory::createFrame(data, tagHeader);
    if (!frame) {
        m_unparsed = data;
        return nullptr;
    }
    if (frame->header()->encryption())
        m_obstacle =
            QCoreApplication::translate("HRFFrameFactory", "Its ID3v2 tag has encrypted frames.");
    if (!isFoldedIntoRecordingTime(frame->frameID()))
        frame->header()->setTagAlterPreservation(false);
    return frame;
}

void HRFFrameFactory::completeTag(ID3v2::Tag &tag) const
{
    const unsigned int version = tag.header()->majorVersion();
    const unsigned int headerSize = ID3v2::Frame::Header(ByteVector(), version).size();
    for (ByteVector rest = std::exchange(m_unparsed, {}); rest.size() > headerSize;) {
        if (rest[0] == '\0')
            return;
        if (beginsWithEmptyFrame(rest, version)) {
            rest = rest.mid(headerSize);
            continue;
        }
        std::unique_ptr<ID3v2::Frame> frame(createFrame(rest, tag.header()));
        if (!frame) {
            m_obstacle = QCoreApplication::translate(
                "HRFFrameFactory", "Its ID3v2 tag is damaged; a part of it would be lost.");
            return;
        }
        rest = rest.mid(headerSize + ID3v2::Frame::Header(rest, version).frameSize());
        tag.addFrame(frame.release());
    }
}
