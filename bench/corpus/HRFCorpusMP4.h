#pragma once

#include "corpus/HRFCorpusAlbum.h"

/// An MPEG-4 audio file that says everything about the track, with the picture and padding, and
/// about
/// @p audioSize bytes of silent audio.
std::string HRFMakeCorpusMP4(const HRFCorpusAlbum &album, const HRFCorpusTrack &track,
                             std::size_t audioSize);
