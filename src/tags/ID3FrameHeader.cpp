#include "tags/ID3FrameHeader.h"

#include <QtEndian>

#include <algorithm>

namespace {

unsigned int plainSize(const char *bytes)
{
    return qFromBigEndian<quint32>(bytes);
}

} // namespace

/// A byte of more than seven bits comes from a writer that knows plain numbers only.
unsigned int ID3SynchSafeSize(const char *bytes)
{
    const quint32 size = plainSize(bytes);
    if ((size & 0x80808080U) != 0)
        return size;
    return (size & 0x7FU) | (size & 0x7F00U) >> 1 | (size & 0x7F0000U) >> 2
        | (size & 0x7F000000U) >> 3;
}

ID3FrameHeader::ID3FrameHeader(const char *bytes, unsigned int version)
    : m_frameSize(version == 4 ? ID3SynchSafeSize(bytes + sizeOffset)
                               : plainSize(bytes + sizeOffset))
    , m_formatFlags(static_cast<unsigned char>(bytes[formatFlagsOffset]))
{
    std::copy_n(bytes, m_frameID.size(), m_frameID.begin());
}
