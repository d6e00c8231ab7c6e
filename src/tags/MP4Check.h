#pragma once

#include <QString>

namespace TagLib {
class File;
}

/// Why saving an MP4 file with TagLib would damage it; empty when it would not.
QString MP4ObstacleToSaving(TagLib::File &file);

/// How many bytes the audio may move towards the end of the file until a chunk offset of 32 bits
/// cannot hold its place any more.
qint64 MP4RoomForMoving(TagLib::File &file);

/// Why the audio must not have moved by @p distance when TagLib saved the tags; empty when it may.
/// There was @p room before.
QString MP4ObstacleToMoving(TagLib::File &file, qint64 distance, qint64 room);
