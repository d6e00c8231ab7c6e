#pragma once

// clang-format off
// In this order: <mpegheader.h> means TagLib::File where TagLib::MPEG::File is not declared yet.
#include <taglib/mpegheader.h>
#include <taglib/mpegfile.h>
// clang-format on

/// Whether the file holds MPEG audio: frames that follow one another and agree (ISO/IEC 11172-3
/// §2.4.2.3). One frame header alone is found by chance in any large file.
bool MPEGHasAudio(TagLib::MPEG::File &file);
