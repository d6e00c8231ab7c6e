#pragma once

#include "tags/IFFChunks.h"

/// A chunk of a DSD interchange file (DSDIFF 1.5) below PROP or DIIN, or at the root.
struct DSDIFFChunk : IFFChunk
{
    qint64 parent = 0; ///< offset of the contents of the chunk around it; 0 at the root
};

/// The chunks in a chunk of the root.
IFFChunkList DSDIFFChildren(HRFTagStream &stream, const IFFChunk &parent);
/// The chunks with ID3v2 tags: those at the root, and those in PROP.
std::vector<DSDIFFChunk> DSDIFFID3Chunks(HRFTagStream &stream);

/// Puts tags into a DSD interchange file. TagLib's own writer reads before the first chunk when
/// that one is removed, loses its place in PROP when a chunk before it changes, and removes what
/// follows the last chunk.
class DSDIFFWriter
{
public:
    explicit DSDIFFWriter(HRFTagStream &stream);

    /// Replaces all ID3v2 tags by one; by none when it is empty.
    void setID3(const TagLib::ByteVector &tag);
    /// Replaces all chunks in DIIN with the name by one; by none when it is to have no contents.
    void setInDIIN(const char *name, const TagLib::ByteVector &contents);
    /// Removes DIIN when nothing is in it.
    void removeEmptyDIIN();
    /// To be called last; answers whether the file is still in order.
    [[nodiscard]] bool finish();

private:
    std::vector<DSDIFFChunk> chunksInDIIN(const char *name) const;
    void replaceAll(const std::vector<DSDIFFChunk> &chunks, TagLib::ByteVector replacement);
    void appendToRoot(const TagLib::ByteVector &chunk);
    void appendToDIIN(const TagLib::ByteVector &chunk);
    void changeSize(qint64 contents, qint64 difference);

    HRFTagStream &m_stream;
    const qint64 m_trailing; ///< number of bytes behind the last chunk
};
