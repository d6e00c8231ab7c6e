#pragma once

#include "corpus/HRFCorpusAlbum.h"

/// The forms in which the corpus has ID3v2 tags.
enum class HRFCorpusID3Version {
    v3, ///< ID3v2.3 with UTF-16
    v4, ///< ID3v2.4 with UTF-8
};

/// The bytes of an ID3v2 tag that says everything about the track, with the picture and padding.
std::string HRFMakeCorpusID3(const HRFCorpusAlbum &album, const HRFCorpusTrack &track,
                             HRFCorpusID3Version version);
