#pragma once

#include <QString>

class HRFTagStream;

/// Why TagLib must not read a DSDIFF file; empty when it may. A chunk of negative size leads it
/// backwards, so that it never ends. Bytes that are no DSDIFF file at all are left to TagLib.
QString DSDIFFObstacleToOpening(HRFTagStream &stream);

/// Why TagLib would write into the wrong chunks; empty when it would not. It remembers the places
/// of the chunks that hold others and does not notice when one before them goes away.
QString DSDIFFObstacleToSaving(HRFTagStream &stream);
