#include "corpus/HRFCorpusPicture.h"

#include "corpus/HRFCorpusBytes.h"

#include <span>
#include <string_view>

using namespace std::string_view_literals;

namespace {

constexpr int sideLengths[] = {300, 500, 600, 1000};
constexpr std::size_t smallestSize = 20 << 10;
constexpr std::size_t largestSize = 80 << 10;

/// ITU-T T.81 §B.1.1.4: the length counts itself but not the marker.
std::string segment(std::string_view marker, std::string_view content)
{
    return std::string(marker) + HRFCorpusBytes::bigEndian(content.size() + 2, 2)
        + std::string(content);
}

std::string frameHeader(int sideLength)
{
    const std::string side = HRFCorpusBytes::bigEndian(std::uint64_t(sideLength), 2);
    return "\x08" + side + side + std::string("\x03\x01\x22\0\x02\x11\0\x03\x11\0"sv);
}

/// Any bytes but those that would begin a marker.
std::string entropyCodedData(HRFCorpusRandom &random, std::size_t size)
{
    std::string data;
    while (data.size() < size)
        data += HRFCorpusBytes::bigEndian(random.next() & 0x7F7F7F7F7F7F7F7FU, 8);
    return data;
}

} // namespace

std::string HRFMakeCorpusPicture(HRFCorpusRandom &random)
{
    constexpr std::size_t coefficients = 64;
    const int sideLength = random.pick(std::span(sideLengths));
    const std::size_t size = random.between(smallestSize, largestSize);
    std::string picture = "\xFF\xD8";
    picture += segment("\xFF\xE0"sv, "JFIF\0\x01\x01\0\0\x01\0\x01\0\0"sv);
    picture += segment("\xFF\xDB"sv, '\0' + std::string(coefficients, '\x10'));
    picture += segment("\xFF\xC0"sv, frameHeader(sideLength));
    picture += segment("\xFF\xDA"sv, "\x03\x01\0\x02\x11\x03\x11\0\x3F\0"sv);
    return picture + entropyCodedData(random, size - picture.size()) + "\xFF\xD9";
}
