#pragma once

#include <array>
#include <string_view>

/// The ten bytes in front of every frame of ID3v2.3 and ID3v2.4 (ID3v2.4.0 structure §4), read
/// without the allocations of TagLib's class.
class ID3FrameHeader
{
public:
    static constexpr unsigned int length = 10;
    static constexpr unsigned int sizeOffset = 4;
    static constexpr unsigned int formatFlagsOffset = 9;

    /// @param bytes at least length bytes
    /// @param version the tag's major version, 3 or 4
    ID3FrameHeader(const char *bytes, unsigned int version);

    std::string_view frameID() const { return {m_frameID.data(), m_frameID.size()}; }
    /// The size of what follows. Some ID3v2.4 writers state larger ones in the way of ID3v2.3; this
    /// is what the format says.
    unsigned int frameSize() const { return m_frameSize; }
    unsigned char formatFlags() const { return m_formatFlags; }
    /// Whether this is no frame but the padding behind the last one.
    bool isPadding() const { return m_frameID[0] == '\0'; }

private:
    std::array<char, 4> m_frameID{};
    unsigned int m_frameSize;
    unsigned char m_formatFlags;
};

/// A size of four bytes of which seven bits count (ID3v2.4.0 structure §6.2).
unsigned int ID3SynchSafeSize(const char *bytes);
