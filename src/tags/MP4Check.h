#pragma once

#include <QString>

#include <cstdint>

namespace TagLib {
class File;
}

/// What saving the tags of an MP4 file depends on.
struct MP4Layout
{
    /// Why saving the file with TagLib would damage it; empty when it would not.
    QString obstacle;
    /// How many bytes the audio may move towards the end of the file until a chunk offset of 32
    /// bits cannot hold its place any more.
    qint64 roomForMoving = INT64_MAX;
};

MP4Layout MP4LayoutBeforeSaving(TagLib::File &file);

/// Corrects what TagLib leaves alone when the audio moves by @p distance while the tags are saved;
/// there was @p room before. Answers why that is not possible; empty when it is.
QString MP4FinishMoving(TagLib::File &file, qint64 distance, qint64 room);
