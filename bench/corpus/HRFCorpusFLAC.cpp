#include "corpus/HRFCorpusFLAC.h"

#include "corpus/HRFCorpusBytes.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

using namespace std::string_literals;
using HRFCorpusBytes::bigEndian;

namespace {

constexpr std::size_t paddingSize = 2048;
constexpr std::size_t samplesPerFrame = 4096;
constexpr std::size_t frameSize = 9 + 2 * samplesPerFrame; // headers and checksums, 16-bit samples

/// Types of metadata blocks (RFC 9639 §8.1).
enum class BlockType : char { StreamInfo = 0, Padding = 1, VorbisComment = 4, Picture = 6 };

std::string block(BlockType type, std::string_view content, bool isLast = false)
{
    const char typeByte = static_cast<char>(static_cast<char>(type) | (isLast ? 0x80 : 0));
    return typeByte + bigEndian(content.size(), 3) + std::string(content);
}

/// Mono, 16 bits, 44.1 kHz (RFC 9639 §8.2).
std::string streamInfo(std::size_t frameCount)
{
    constexpr std::uint64_t sampleRate = 44100;
    constexpr std::uint64_t bitsMinusOne = 15;
    const std::uint64_t format =
        sampleRate << 44U | bitsMinusOne << 36U | frameCount * samplesPerFrame;
    return bigEndian(samplesPerFrame, 2) + bigEndian(samplesPerFrame, 2) + bigEndian(frameSize, 3)
        + bigEndian(frameSize, 3) + bigEndian(format, 8) + std::string(16, '\0');
}

std::string littleEndian(std::uint64_t number)
{
    std::string bytes = bigEndian(number, 4);
    std::ranges::reverse(bytes);
    return bytes;
}

std::string withSize(std::string_view text)
{
    return littleEndian(text.size()) + std::string(text);
}

std::string vorbisComment(const HRFCorpusAlbum &album, const HRFCorpusTrack &track)
{
    const std::pair<std::string_view, std::string> fields[] = {
        {"TITLE", track.title},
        {"TRACKNUMBER", std::to_string(track.number)},
        {"TRACKTOTAL", std::to_string(album.tracks.size())},
        {"ISRC", track.isrc},
        {"BPM", track.bpm},
        {"DESCRIPTION", track.comment},
        {"LYRICS", track.lyrics},
        {"RATING", track.rating == 0 ? ""s : std::to_string(track.rating)},
        {"ALBUM", album.title},
        {"ARTIST", album.artist},
        {"ALBUMARTIST", album.artist},
        {"COMPOSER", album.composer},
        {"GENRE", album.genre},
        {"LABEL", album.publisher},
        {"COPYRIGHT", album.copyright},
        {"DATE", std::to_string(album.year)},
        {"DISCNUMBER", std::to_string(album.discNumber)},
        {"DISCTOTAL", std::to_string(album.discTotal)},
        {"CATALOGNUMBER", "CAT-" + std::to_string(album.number)},
    };
    std::string list;
    std::size_t count = 0;
    for (const auto &[name, text] : fields) {
        if (text.empty())
            continue;
        list += withSize(std::string(name) + '=' + text);
        ++count;
    }
    return withSize("Lirra") + littleEndian(count) + list;
}

/// The front cover (RFC 9639 §8.8). Its dimensions may be left out.
std::string picture(std::string_view image)
{
    constexpr int frontCover = 3;
    constexpr std::string_view mimeType = "image/jpeg";
    return bigEndian(frontCover, 4) + bigEndian(mimeType.size(), 4) + std::string(mimeType)
        + bigEndian(0, 4) + std::string(16, '\0') + bigEndian(image.size(), 4) + std::string(image);
}

/// RFC 9639 §9.1.8 and §9.3.
std::uint64_t checksum(std::string_view bytes, unsigned int bitCount, std::uint64_t polynomial)
{
    const std::uint64_t highBit = 1ULL << (bitCount - 1);
    std::uint64_t sum = 0;
    for (const char byte : bytes) {
        sum ^= std::uint64_t(static_cast<unsigned char>(byte)) << (bitCount - 8);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & highBit) != 0 ? (sum << 1U) ^ polynomial : sum << 1U;
    }
    return sum & (2 * highBit - 1);
}

/// The samples as they are (RFC 9639 §9.2.2): all of them silence.
std::string frame(std::size_t number)
{
    std::string bytes = "\xFF\xF8\xC9\x08"s + static_cast<char>(number);
    bytes += bigEndian(checksum(bytes, 8, 0x07), 1);
    bytes += "\x02"s + std::string(2 * samplesPerFrame, '\0');
    return bytes + bigEndian(checksum(bytes, 16, 0x8005), 2);
}

} // namespace

std::string HRFMakeCorpusFLAC(const HRFCorpusAlbum &album, const HRFCorpusTrack &track,
                              std::size_t audioSize)
{
    const std::size_t frameCount = audioSize / frameSize;
    std::string file = "fLaC" + block(BlockType::StreamInfo, streamInfo(frameCount))
        + block(BlockType::VorbisComment, vorbisComment(album, track))
        + block(BlockType::Picture, picture(album.picture))
        + block(BlockType::Padding, std::string(paddingSize, '\0'), true);
    for (std::size_t number = 0; number < frameCount; ++number)
        file += frame(number);
    return file;
}
