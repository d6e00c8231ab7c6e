#pragma once

#include "corpus/HRFCorpusAlbum.h"

/// One kind of files in the corpus.
struct HRFCorpusKind
{
    const char *extension;
    int share; ///< how many albums of a cycle through all kinds
    std::string (*fileContents)(const HRFCorpusAlbum &album, const HRFCorpusTrack &track);
};

/// The kind of all files of an album.
const HRFCorpusKind &HRFCorpusKindOfAlbum(int albumNumber);
