#include "corpus/HRFCorpusMPEG.h"

#include <algorithm>
#include <iterator>

namespace {

/// ISO/IEC 11172-3 §2.4.2.3: a bit rate's place in the list is its index.
constexpr int bitRates[] = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
constexpr int sampleRate = 44100;
constexpr int bytesPerFrameAndBit = 144; // 1152 samples of a frame / 8 bits

std::string frame(int bitRate, int size, bool isPadded)
{
    const auto index = std::ranges::find(bitRates, bitRate) - std::begin(bitRates);
    std::string bytes = "\xFF\xFB"; // MPEG-1, layer 3, no checksum
    bytes += static_cast<char>(index << 4 | (isPadded ? 2 : 0)); // 44.1 kHz
    bytes.resize(std::size_t(size)); // stereo; no side information means silence
    return bytes;
}

} // namespace

std::string HRFMakeCorpusMPEG(int bitRate, std::size_t size)
{
    constexpr int bitsPerKilobit = 1000;
    const int bytesTimesRate = bytesPerFrameAndBit * bitRate * bitsPerKilobit;
    std::string audio;
    int rest = 0;
    while (audio.size() < size) {
        // A frame has a byte more whenever the missing fractions of a byte have made up one.
        rest += bytesTimesRate % sampleRate;
        const bool isPadded = rest >= sampleRate;
        rest -= isPadded ? sampleRate : 0;
        audio += frame(bitRate, bytesTimesRate / sampleRate + (isPadded ? 1 : 0), isPadded);
    }
    return audio;
}
