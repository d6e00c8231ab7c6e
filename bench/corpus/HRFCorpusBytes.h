#pragma once

#include <cstdint>
#include <string>

/// Numbers as bytes, the highest byte first.
namespace HRFCorpusBytes {

inline std::string bigEndian(std::uint64_t number, int byteCount, unsigned int bitsPerByte = 8)
{
    std::string bytes;
    for (int i = byteCount - 1; i >= 0; --i) {
        const std::uint64_t shifted = number >> (bitsPerByte * unsigned(i));
        bytes += static_cast<char>(shifted & ((1U << bitsPerByte) - 1));
    }
    return bytes;
}

/// Four bytes of seven bits (ID3v2.4.0 structure §6.2).
inline std::string syncSafe(std::uint64_t number)
{
    return bigEndian(number, 4, 7);
}

} // namespace HRFCorpusBytes
