#pragma once

#include <QString>

class HRFTagStream;

/// Why TagLib must not read an MP4 file; empty when it may. It descends into nested atoms without
/// any limit, and keeps every atom in memory.
QString MP4ObstacleToOpening(HRFTagStream &stream);
