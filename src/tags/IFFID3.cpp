#include "tags/IFFID3.h"

#include "tags/HRFFrameFactory.h"
#include "tags/HRFTagStream.h"

#include <QCoreApplication>
#include <taglib/id3v2frame.h>
#include <taglib/id3v2header.h>
#include <taglib/id3v2tag.h>
#include <taglib/tfile.h>

#include <algorithm>
#include <iterator>
#include <ranges>
#include <utility>
#include <vector>

using namespace TagLib;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("IFFID3", text);
}

bool containsEqual(const ID3v2::FrameList &frames, const ID3v2::Frame &frame)
{
    const ByteVector bytes = frame.render();
    return std::ranges::any_of(
        frames, [&bytes](const ID3v2::Frame *other) { return other->render() == bytes; });
}

/// Moves the frames whose identifiers @p tag has not; answers whether it has equals of all others.
bool mergeFrames(ID3v2::Tag &tag, ID3v2::Tag &other)
{
    const ID3v2::FrameListMap known = std::as_const(tag).frameListMap();
    // TagLib's own list would release the frames that have moved.
    const ID3v2::FrameList &list = std::as_const(other).frameList();
    const std::vector<ID3v2::Frame *> frames(list.begin(), list.end());
    bool hasAll = true;
    for (ID3v2::Frame *frame : frames) {
        const auto equals = known.find(frame->frameID());
        if (equals == known.end()) {
            other.removeFrame(frame, false);
            tag.addFrame(frame);
        } else {
            hasAll = hasAll && containsEqual(equals->second, *frame);
        }
    }
    return hasAll;
}

} // namespace

bool IFFIsID3(const IFFChunk &chunk)
{
    return chunk.name == "ID3 " || chunk.name == "id3 ";
}

QString IFFObstacleInID3(HRFTagStream &stream, qint64 offset, qint64 size)
{
    const ByteVector data =
        IFFReadBytes(stream, offset, std::min<qint64>(size, ID3v2::Header::size()));
    // Some programs empty a tag by writing zeros over it.
    if (data.isEmpty() || data[0] == '\0')
        return {};
    if (data.size() < ID3v2::Header::size() || !data.startsWith("ID3"))
        return tr("Its ID3v2 tag is damaged; a part of it would be lost.");
    if (qint64(ID3v2::Header(data).completeTagSize()) > size)
        return tr("Its ID3v2 tag is cut off; a part of it would be lost.");
    return {};
}

QString IFFMergeID3(HRFTagStream &stream, std::span<const IFFChunk> chunks, File &file,
                    ID3v2::Tag &tag)
{
    std::vector<IFFChunk> tags;
    std::ranges::copy_if(chunks, std::back_inserter(tags), IFFIsID3);
    for (const IFFChunk &chunk : tags) {
        if (QString obstacle = IFFObstacleInID3(stream, chunk.offset, chunk.size);
            !obstacle.isEmpty())
            return obstacle;
    }
    for (const IFFChunk &chunk : tags | std::views::drop(1)) {
        HRFFrameFactory factory;
        ID3v2::Tag other(&file, chunk.offset, &factory);
        factory.completeTag(other);
        if (!factory.obstacle().isEmpty())
            return factory.obstacle();
        if (!mergeFrames(tag, other))
            return tr("It has several ID3v2 tags that differ; one would be lost.");
    }
    return {};
}
