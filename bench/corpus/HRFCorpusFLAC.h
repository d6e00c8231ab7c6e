#pragma once

#include "corpus/HRFCorpusAlbum.h"

/// A FLAC file that says everything about the track, with the picture and padding, and about
/// @p audioSize bytes of silent audio.
std::string HRFMakeCorpusFLAC(const HRFCorpusAlbum &album, const HRFCorpusTrack &track,
                              std::size_t audioSize);
