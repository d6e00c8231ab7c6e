#pragma once

#include <QByteArrayView>
#include <QString>

class HRFTagStream;

/// The byte order of the sizes in a chunked file.
enum class IFFByteOrder { LittleEndian, BigEndian };

/// Whether the stream begins like a chunked file: the container identifier, four bytes of size, and
/// one of the given form types (four characters each, one behind the other).
bool IFFHasHeader(HRFTagStream &stream, QByteArrayView container, QByteArrayView formTypes);

/// Why a chunk that is added would land in the wrong place; empty when it would not. In a file that
/// was cut off, or whose recording was broken off, a chunk states more bytes than there are, and
/// TagLib would put a tag before it. Chunks of EA IFF 85 and RIFF have 32-bit sizes and even
/// starts.
QString IFFObstacleToSaving(HRFTagStream &stream, IFFByteOrder order);
