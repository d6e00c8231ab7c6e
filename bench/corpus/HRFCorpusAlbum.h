#pragma once

#include <string>
#include <vector>

/// What the tags of one file say. Empty texts and 0 are left out. All texts are UTF-8.
struct HRFCorpusTrack
{
    int number = 0;
    std::string title;
    std::string isrc;
    std::string bpm;
    std::string comment;
    std::string lyrics;
    int rating = 0;
};

struct HRFCorpusAlbum
{
    int number = 0;
    std::string title;
    std::string artist;
    std::string composer;
    std::string genre;
    std::string publisher;
    std::string copyright;
    int year = 0;
    int discNumber = 1;
    int discTotal = 1;
    int bitRate = 128; ///< in kbit/s
    std::string picture; ///< an image file's bytes
    std::vector<HRFCorpusTrack> tracks;
};

/// The album with the given number, always the same one.
HRFCorpusAlbum HRFMakeCorpusAlbum(int number, int trackCount);
