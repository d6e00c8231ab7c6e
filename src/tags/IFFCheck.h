#pragma once

#include "tags/IFFChunks.h"

#include <QByteArrayView>
#include <QString>

/// Whether the stream begins like a chunked file: the container identifier, its size, and one of
/// the given form types (four characters each, one behind the other).
bool IFFHasHeader(HRFTagStream &stream, IFFLayout layout, QByteArrayView container,
                  QByteArrayView formTypes);

/// Why a chunk that is added would land in the wrong place; empty when it would not. In a file that
/// was cut off, or whose recording was broken off, a chunk states more or fewer bytes than there
/// are, and TagLib would put a tag before the rest of it.
///
/// @param audioName the name of the chunk with the audio
QString IFFObstacleToSaving(HRFTagStream &stream, IFFLayout layout, const char *audioName);

/// Why the file, with the changes made so far, is not a chunked file any more; empty when it is
/// one.
QString IFFObstacleToKeeping(HRFTagStream &stream, IFFLayout layout);
