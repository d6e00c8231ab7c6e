#include "corpus/HRFCorpusMP4.h"

#include "corpus/HRFCorpusBytes.h"

#include <initializer_list>
#include <string_view>

using namespace std::string_literals;
using namespace std::string_view_literals;
using HRFCorpusBytes::bigEndian;

namespace {

constexpr int sampleRate = 44100;
constexpr int samplesPerFrame = 1024;
constexpr std::size_t framesPerChunk = 22; // about half a second
constexpr std::size_t paddingSize = 2048;
/// One frame of silence: AAC-LC, stereo.
constexpr std::string_view silentFrame = "\x21\x00\x49\x90\x02\x19\x00\x23\x80"sv;

std::string atom(std::string_view type, std::string_view content)
{
    return bigEndian(content.size() + 8, 4) + std::string(type) + std::string(content);
}

/// An atom with version and flags (ISO/IEC 14496-12 §4.2).
std::string fullAtom(std::string_view type, std::string_view content)
{
    return atom(type, bigEndian(0, 4) + std::string(content));
}

std::string number(std::uint64_t value)
{
    return bigEndian(value, 4);
}

/// Types of an item's data.
enum class DataType { Implicit = 0, UTF8 = 1, JPEG = 13, Integer = 21 };

std::string data(DataType type, std::string_view value)
{
    return atom("data", bigEndian(std::uint64_t(type), 4) + bigEndian(0, 4) + std::string(value));
}

std::string textItem(std::string_view name, std::string_view text)
{
    return text.empty() ? ""s : atom(name, data(DataType::UTF8, text));
}

std::string freeformItem(std::string_view name, std::string_view text)
{
    if (text.empty())
        return {};
    return atom("----",
                fullAtom("mean", "com.apple.iTunes") + fullAtom("name", name)
                    + data(DataType::UTF8, text));
}

std::string pairItem(std::string_view name, int value, std::size_t total, int trailingBytes)
{
    return atom(name,
                data(DataType::Implicit,
                     bigEndian(std::uint64_t(value), 4) + bigEndian(total, 2)
                         + std::string(std::size_t(trailingBytes), '\0')));
}

std::string itemList(const HRFCorpusAlbum &album, const HRFCorpusTrack &track)
{
    std::string items = textItem("\251nam", track.title) + textItem("\251ART", album.artist)
        + textItem("aART", album.artist) + textItem("\251alb", album.title)
        + textItem("\251wrt", album.composer) + textItem("\251gen", album.genre)
        + textItem("\251day", std::to_string(album.year)) + textItem("cprt", album.copyright)
        + textItem("\251cmt", track.comment) + textItem("\251lyr", track.lyrics)
        + pairItem("trkn", track.number, album.tracks.size(), 2)
        + pairItem("disk", album.discNumber, std::size_t(album.discTotal), 0)
        + freeformItem("LABEL", album.publisher) + freeformItem("ISRC", track.isrc)
        + freeformItem("CATALOGNUMBER", "CAT-" + std::to_string(album.number));
    if (!track.bpm.empty())
        items += atom("tmpo",
                      data(DataType::Integer, bigEndian(std::uint64_t(std::stoi(track.bpm)), 2)));
    return atom("ilst", items + atom("covr", data(DataType::JPEG, album.picture)));
}

std::string userData(const HRFCorpusAlbum &album, const HRFCorpusTrack &track)
{
    const std::string handler = fullAtom("hdlr", "\0\0\0\0mdirappl\0\0\0\0\0\0\0\0\0"sv);
    return atom(
        "udta",
        fullAtom("meta",
                 handler + itemList(album, track) + atom("free", std::string(paddingSize, '\0'))));
}

/// The decoder's settings (ISO/IEC 14496-1 §7.2.6): AAC-LC, 44.1 kHz, stereo.
std::string decoderSettings()
{
    constexpr std::string_view decoderConfig = "\x04\x11\x40\x15\0\0\0\0\0\0\0\0\0\0\0"
                                               "\x05\x02\x12\x10"sv;
    return fullAtom("esds", "\x03\x19\0\0\0"s + std::string(decoderConfig) + "\x06\x01\x02");
}

std::string sampleTable(std::size_t frameCount, std::size_t audioOffset)
{
    const std::string description = std::string(6, '\0') + bigEndian(1, 2) + std::string(8, '\0')
        + bigEndian(2, 2) + bigEndian(16, 2) + number(0) + number(std::uint64_t(sampleRate) << 16U)
        + decoderSettings();
    std::string offsets;
    std::size_t chunkCount = 0;
    for (std::size_t first = 0; first < frameCount; first += framesPerChunk, ++chunkCount)
        offsets += number(audioOffset + first * silentFrame.size());
    return atom("stbl",
                fullAtom("stsd", number(1) + atom("mp4a", description))
                    + fullAtom("stts", number(1) + number(frameCount) + number(samplesPerFrame))
                    + fullAtom("stsc", number(1) + number(1) + number(framesPerChunk) + number(1))
                    + fullAtom("stsz", number(silentFrame.size()) + number(frameCount))
                    + fullAtom("stco", number(chunkCount) + offsets));
}

std::string unityMatrix()
{
    return number(0x10000) + std::string(12, '\0') + number(0x10000) + std::string(12, '\0')
        + number(0x40000000);
}

std::string track(std::size_t frameCount, std::size_t audioOffset)
{
    const std::string duration = number(frameCount * samplesPerFrame);
    const std::string header = bigEndian(7, 4) + number(0) + number(0) + number(1) + number(0)
        + duration + std::string(12, '\0') + bigEndian(0x0100, 2) + bigEndian(0, 2) + unityMatrix()
        + std::string(8, '\0');
    const std::string dataReference =
        atom("dinf", fullAtom("dref", number(1) + atom("url ", bigEndian(1, 4))));
    const std::string media =
        fullAtom("mdhd", number(0) + number(0) + number(sampleRate) + duration + number(0x55C40000))
        + fullAtom("hdlr", "\0\0\0\0soun\0\0\0\0\0\0\0\0\0\0\0\0\0"sv)
        + atom("minf",
               fullAtom("smhd", number(0)) + dataReference + sampleTable(frameCount, audioOffset));
    return atom("trak", atom("tkhd", header) + atom("mdia", media));
}

std::string movie(std::string_view userData, std::size_t frameCount, std::size_t audioOffset)
{
    const std::string header = number(0) + number(0) + number(sampleRate)
        + number(frameCount * samplesPerFrame) + number(0x10000) + bigEndian(0x0100, 2)
        + std::string(10, '\0') + unityMatrix() + std::string(24, '\0') + number(2);
    return atom("moov",
                fullAtom("mvhd", header) + track(frameCount, audioOffset) + std::string(userData));
}

} // namespace

std::string HRFMakeCorpusMP4(const HRFCorpusAlbum &album, const HRFCorpusTrack &track,
                             std::size_t audioSize)
{
    constexpr std::size_t atomHeaderSize = 8;
    const std::size_t chunkCount = audioSize / (framesPerChunk * silentFrame.size());
    const std::size_t frameCount = chunkCount * framesPerChunk;
    const std::string start = atom("ftyp", "M4A \0\0\0\0M4A mp42isom"sv);
    const std::string tags = userData(album, track);
    const std::size_t audioOffset =
        start.size() + movie(tags, frameCount, 0).size() + atomHeaderSize;
    std::string audio;
    for (std::size_t frame = 0; frame < frameCount; ++frame)
        audio += silentFrame;
    return start + movie(tags, frameCount, audioOffset) + atom("mdat", audio);
}
