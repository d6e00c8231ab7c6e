#include "corpus/HRFCorpusAlbum.h"

#include "corpus/HRFCorpusPicture.h"
#include "corpus/HRFCorpusRandom.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

using namespace std::string_literals;

namespace {

using Words = std::span<const char *const>;

constexpr const char *plainWords[] = {
    "Winter", "River",  "Silent", "Golden",  "Hours",  "Paper",   "Stone",  "Garden",
    "Light",  "Second", "Nobody", "Harbour", "Letter", "Evening", "Copper", "Distance",
    "Island", "Mirror", "Summer", "Window",  "Engine", "Thunder", "Velvet", "Morning",
};
constexpr const char *accentedWords[] = {
    "Frühling", "Straße", "Ærlig",  "Ombre", "Éclair", "Niño",   "Übermut", "Château",
    "Sør",      "Çırak",  "Žluťák", "Łódź",  "Señor",  "Mañana", "Größe",   "Fjörður",
};
constexpr const char *cyrillicWords[] = {
    "Ветер", "Город", "Тишина", "Письмо", "Река", "Полночь", "Зеркало", "Дорога", "Осень", "Море",
};
constexpr const char *japaneseWords[] = {
    "夜明け", "東京", "雨音", "約束", "さくら", "青い空", "記憶", "ひかり", "風の歌", "旅人",
};

/// The alphabets take turns: most albums are plain.
constexpr Words alphabets[] = {
    plainWords, plainWords,    plainWords, accentedWords, plainWords,
    plainWords, cyrillicWords, plainWords, plainWords,    japaneseWords,
};

constexpr const char *genreNames[] = {"Rock",      "Jazz", "Electronic", "Classical",
                                      "Folk-Rock", "Pop",  "Ambient",    "Hip-Hop"};
constexpr int bitRates[] = {128, 192, 256, 320};

/// Makes the texts of one album.
class Writer
{
public:
    explicit Writer(int albumNumber)
        : random(std::uint64_t(albumNumber))
        , m_words(alphabets[std::size_t(albumNumber) % std::size(alphabets)])
    {
    }

    std::string words(std::size_t atLeast, std::size_t atMost)
    {
        std::string text;
        for (std::size_t left = random.between(atLeast, atMost); left > 0; --left)
            text += (text.empty() ? ""s : " "s) + random.pick(m_words);
        return text;
    }

    std::string lyrics()
    {
        constexpr std::size_t usualSize = 1000;
        std::string text;
        while (text.size() < usualSize)
            text += words(4, 7) + '\n';
        return text;
    }

    HRFCorpusRandom random;

private:
    Words m_words;
};

std::string trackISRC(const HRFCorpusAlbum &album, int track)
{
    constexpr int firstOfSixDigits = 100000;
    return "XX" + std::to_string(firstOfSixDigits + album.number).substr(1)
        + std::to_string(firstOfSixDigits + track).substr(1);
}

HRFCorpusTrack makeTrack(Writer &writer, const HRFCorpusAlbum &album, int number)
{
    HRFCorpusTrack track;
    track.number = number;
    track.title = writer.words(1, 5);
    track.isrc = trackISRC(album, number);
    track.comment = writer.words(3, 12);
    if (album.number % 2 == 0)
        track.bpm = std::to_string(writer.random.between(60, 180));
    if (writer.random.below(4) == 0)
        track.lyrics = writer.lyrics();
    if (writer.random.below(3) == 0)
        track.rating = int(writer.random.between(1, 255));
    return track;
}

} // namespace

HRFCorpusAlbum HRFMakeCorpusAlbum(int number, int trackCount)
{
    Writer writer(number);
    HRFCorpusAlbum album;
    album.number = number;
    album.title = writer.words(1, 4);
    album.artist = writer.words(1, 3);
    album.composer = writer.words(2, 2);
    album.genre = writer.random.pick(std::span(genreNames));
    album.publisher = writer.words(1, 2) + " Records";
    album.year = int(writer.random.between(1960, 2024));
    album.copyright = std::to_string(album.year) + ' ' + album.publisher;
    album.discTotal = int(writer.random.between(1, 2));
    album.discNumber = int(writer.random.between(1, std::size_t(album.discTotal)));
    album.bitRate = writer.random.pick(std::span(bitRates));
    album.picture = HRFMakeCorpusPicture(writer.random);
    for (int track = 1; track <= trackCount; ++track)
        album.tracks.push_back(makeTrack(writer, album, track));
    return album;
}
