#include "tags/HRFFrameFactory.h"

#include "tags/ID3FrameHeader.h"
#include "tags/ID3FrameRepair.h"
#include "tags/ID3Genres.h"
#include "tags/ID3KeptFrame.h"

#include <QCoreApplication>
#include <taglib/id3v2synchdata.h>
#include <taglib/id3v2tag.h>
#include <taglib/textidentificationframe.h>
#include <taglib/urllinkframe.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

using namespace TagLib;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFFrameFactory", text);
}

struct Renaming
{
    const char *version2;
    const char *version3;
};

/// Frames of ID3v2.2 that TagLib does not rename, since ID3v2.4 does not have them (ID3v2.2.0 §4).
constexpr Renaming renamings[] = {
    {"TDA", "TDAT"}, {"TIM", "TIME"}, {"TSI", "TSIZ"}, {"RVA", "RVAD"}, {"EQU", "EQUA"},
};

unsigned int headerSize(unsigned int version)
{
    return version < 3 ? 6 : ID3FrameHeader::length;
}

/// There are ID3v2.3 tags with the three-letter identifiers of ID3v2.2 in the field.
bool hasVersion2Identifier(const ByteVector &data, unsigned int version)
{
    return version < 3 || data[3] == '\0';
}

/// Answers whether a frame with an identifier of ID3v2.2 has one of later versions now.
bool takesLaterIdentifier(ID3v2::Frame &frame)
{
    const ByteVector id = frame.frameID();
    const auto *renaming = std::ranges::find_if(
        renamings, [&id](const Renaming &candidate) { return id == candidate.version2; });
    if (renaming == std::end(renamings))
        return id.size() > 3;
    frame.header()->setFrameID(renaming->version3);
    return true;
}

/// Whether a frame with a well-formed identifier but without content begins here.
bool beginsWithEmptyFrame(const ByteVector &data, unsigned int version)
{
    const ID3v2::Frame::Header header(data, version);
    const ByteVector id = header.frameID();
    return header.frameSize() == 0 && id.size() == (version < 3 ? 3U : 4U)
        && std::ranges::all_of(id, [](char character) {
               return (character >= 'A' && character <= 'Z')
                   || (character >= '0' && character <= '9');
           });
}

/// Whether a frame, as most of them, has no format flags, nothing embedded and is no address.
bool isPlainFrame(const ByteVector &data, unsigned int version)
{
    if (version < 3 || data.size() < ID3FrameHeader::length)
        return false;
    const ID3FrameHeader header(data.data(), version);
    const std::string_view id = header.frameID();
    return header.formatFlags() == 0 && id != "CHAP" && id != "CTOC" && id != "WFED";
}

/// A podcast's address is text to TagLib, with an encoding byte in front; others write a plain URL.
ID3v2::Frame *createURLFrame(const ByteVector &data, const ID3v2::Header *tagHeader)
{
    constexpr char largestEncoding = 3;
    const ID3v2::Frame::Header header(data, tagHeader->majorVersion());
    const ByteVector content = data.mid(header.size(), header.frameSize());
    if (header.frameID() != "WFED" || content.isEmpty() || content[0] <= largestEncoding)
        return nullptr;
    auto frame = std::make_unique<ID3v2::UrlLinkFrame>(header.frameID());
    frame->setUrl(String(content, String::Latin1));
    frame->header()->setVersion(tagHeader->majorVersion());
    frame->header()->setFrameSize(header.frameSize());
    return frame.release();
}

/// TagLib folds day and time into the recording time, and makes them anew for ID3v2.3.
void removeFoldedFrames(ID3v2::Tag &tag)
{
    constexpr unsigned int dateLength = 10;
    constexpr unsigned int dateTimeLength = 16;
    const ID3v2::FrameList &times = std::as_const(tag).frameList("TDRC");
    const unsigned int length = times.isEmpty() ? 0 : times.front()->toString().size();
    if (length >= dateLength)
        tag.removeFrames("TDAT");
    if (length >= dateTimeLength)
        tag.removeFrames("TIME");
}

} // namespace

ID3v2::Frame *HRFFrameFactory::createFrame(const ByteVector &data,
                                           const ID3v2::Header *tagHeader) const
{
    const unsigned int version = tagHeader->majorVersion();
    const bool isPlain = isPlainFrame(data, version);
    if (ID3v2::Frame *frame = isPlain ? nullptr : createURLFrame(data, tagHeader))
        return frame;
    const std::optional<ByteVector> repaired = ID3RepairedFrame(data, version);
    const ByteVector &readable = repaired ? *repaired : data;
    ID3v2::Frame *frame = isPlain || m_check.isSafe(readable, *tagHeader)
        ? FrameFactory::createFrame(readable, tagHeader)
        : nullptr;
    if (!frame) {
        m_unparsed = data;
        return nullptr;
    }
    frame = keepWhole(frame, readable, *tagHeader);
    // The parser goes on behind as many bytes as the frame says it has.
    if (repaired)
        frame->header()->setFrameSize(ID3v2::Frame::Header(data, version).frameSize());
    if (frame->header()->encryption())
        m_obstacle = tr("Its ID3v2 tag has encrypted frames.");
    if (hasVersion2Identifier(data, version) && !takesLaterIdentifier(*frame))
        m_obstacle = tr("Its ID3v2.2 tag has frames that later versions lack.");
    frame->header()->setTagAlterPreservation(false);
    return frame;
}

/// Replaces what TagLib has made of a frame when it would not be saved whole.
ID3v2::Frame *HRFFrameFactory::keepWhole(ID3v2::Frame *frame, const ByteVector &data,
                                         const ID3v2::Header &tagHeader) const
{
    const unsigned int version = tagHeader.majorVersion();
    const std::string_view id(data.data(), hasVersion2Identifier(data, version) ? 3 : 4);
    if (id == "TCON" || id == "TCO") {
        const ByteVector whole = data.mid(0, headerSize(version) + frame->size());
        auto *genres = dynamic_cast<ID3v2::TextIdentificationFrame *>(frame);
        if (genres && whole.find('(') >= 0)
            ID3RestoreGenres(*genres, textsOfGenreFrame(whole, tagHeader));
        return frame;
    }
    const bool isCoded = version > 3 && tagHeader.unsynchronisation();
    if (isCoded || hasVersion2Identifier(data, version) || !isPlainFrame(data, version)
        || !ID3KeptFrame::isMeantFor(id, data.at(headerSize(version))))
        return frame;
    const std::unique_ptr<ID3v2::Frame> understood(frame);
    return new ID3KeptFrame(*understood, data, version);
}

/// TagLib leaves the texts of other frames alone.
StringList HRFFrameFactory::textsOfGenreFrame(ByteVector data, const ID3v2::Header &tagHeader) const
{
    const bool isShort = hasVersion2Identifier(data, tagHeader.majorVersion());
    std::ranges::copy(std::string_view(isShort ? "TT1" : "TIT1"), data.begin());
    const std::unique_ptr<ID3v2::Frame> frame(FrameFactory::createFrame(data, &tagHeader));
    const auto *texts = dynamic_cast<ID3v2::TextIdentificationFrame *>(frame.get());
    return texts ? texts->fieldList() : StringList();
}

void HRFFrameFactory::completeTag(ID3v2::Tag &tag) const
{
    parseFrames(tag, std::exchange(m_unparsed, {}));
    rebuildAggregateFrames(&tag);
    removeFoldedFrames(tag);
}

void HRFFrameFactory::parseBehindExtendedHeader(ID3v2::Tag &tag, const ByteVector &body) const
{
    while (!tag.frameList().isEmpty())
        tag.removeFrame(tag.frameList().front());
    m_unparsed.clear();
    m_obstacle.clear();
    const ByteVector data =
        tag.header()->unsynchronisation() ? ID3v2::SynchData::decode(body) : body;
    parseFrames(tag, data.mid(4 + data.toUInt(0U)));
    rebuildAggregateFrames(&tag);
}

void HRFFrameFactory::parseFrames(ID3v2::Tag &tag, ByteVector rest) const
{
    const unsigned int version = tag.header()->majorVersion();
    while (rest.size() > headerSize(version) && rest[0] != '\0') {
        if (beginsWithEmptyFrame(rest, version)) {
            rest = rest.mid(headerSize(version));
            continue;
        }
        std::unique_ptr<ID3v2::Frame> frame(createFrame(rest, tag.header()));
        if (!frame) {
            m_obstacle = tr("Its ID3v2 tag is damaged; a part of it would be lost.");
            return;
        }
        rest = rest.mid(headerSize(version) + ID3v2::Frame::Header(rest, version).frameSize());
        tag.addFrame(frame.release());
    }
}
