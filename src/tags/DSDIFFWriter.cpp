#include "tags/DSDIFFWriter.h"

#include "tags/HRFTagStream.h"
#include "tags/IFFID3.h"

#include <algorithm>
#include <ranges>

using namespace TagLib;

namespace {

ByteVector wholeChunk(const char *name, const ByteVector &contents)
{
    ByteVector bytes(name);
    bytes.append(IFFBytesFromSize(DSDIFFLayout, qint64(contents.size())));
    bytes.append(contents);
    if (contents.size() % 2 == 1)
        bytes.append('\0');
    return bytes;
}

qint64 trailingBytes(HRFTagStream &stream)
{
    return stream.length() - IFFReadChunks(stream, DSDIFFLayout).end;
}

template <class Matches>
void appendChildren(std::vector<DSDIFFChunk> &found, HRFTagStream &stream, const IFFChunk &parent,
                    Matches matches)
{
    for (const IFFChunk &child : DSDIFFChildren(stream, parent).chunks)
        if (matches(child))
            found.push_back({child, parent.offset});
}

/// A chunk behind one that ends at an odd offset brings along the byte that pads that one.
ByteVector withPadding(qint64 offset, const ByteVector &chunk)
{
    return offset % 2 == 1 ? ByteVector(1, '\0') + chunk : chunk;
}

} // namespace

IFFChunkList DSDIFFChildren(HRFTagStream &stream, const IFFChunk &parent)
{
    // The contents of PROP begin with the kind of the properties, "SND ".
    const qint64 start = parent.offset + (parent.name == "PROP" ? 4 : 0);
    return IFFReadChunks(stream, DSDIFFLayout, start, parent.offset + parent.size);
}

std::vector<DSDIFFChunk> DSDIFFID3Chunks(HRFTagStream &stream)
{
    std::vector<DSDIFFChunk> found;
    for (const IFFChunk &chunk : IFFReadChunks(stream, DSDIFFLayout).chunks) {
        if (IFFIsID3(chunk))
            found.push_back({chunk});
        if (chunk.name == "PROP")
            appendChildren(found, stream, chunk, IFFIsID3);
    }
    return found;
}

DSDIFFWriter::DSDIFFWriter(HRFTagStream &stream)
    : m_stream(stream), m_trailing(trailingBytes(stream))
{
}

void DSDIFFWriter::setID3(const ByteVector &tag)
{
    const std::vector<DSDIFFChunk> chunks = DSDIFFID3Chunks(m_stream);
    const ByteVector chunk = tag.isEmpty() ? ByteVector() : wholeChunk("ID3 ", tag);
    if (!chunks.empty())
        replaceAll(chunks, chunk);
    else if (!chunk.isEmpty())
        appendToRoot(chunk);
}

void DSDIFFWriter::setInDIIN(const char *name, const ByteVector &contents)
{
    const std::vector<DSDIFFChunk> chunks = chunksInDIIN(name);
    const ByteVector chunk = contents.isEmpty() ? ByteVector() : wholeChunk(name, contents);
    if (!chunks.empty())
        replaceAll(chunks, chunk);
    else if (!chunk.isEmpty())
        appendToDIIN(chunk);
}

void DSDIFFWriter::removeEmptyDIIN()
{
    std::vector<DSDIFFChunk> empty;
    for (const IFFChunk &chunk : IFFReadChunks(m_stream, DSDIFFLayout).chunks)
        if (chunk.name == "DIIN" && chunk.size == 0)
            empty.push_back({chunk});
    replaceAll(empty, {});
}

bool DSDIFFWriter::finish()
{
    const IFFChunkList root = IFFReadChunks(m_stream, DSDIFFLayout);
    m_stream.insert(IFFBytesFromSize(DSDIFFLayout, root.end - DSDIFFLayout.headerSize()), 4, 8);
    return m_stream.length() - root.end == m_trailing;
}

std::vector<DSDIFFChunk> DSDIFFWriter::chunksInDIIN(const char *name) const
{
    const auto isNamed = [name](const IFFChunk &chunk) { return chunk.name == name; };
    std::vector<DSDIFFChunk> found;
    for (const IFFChunk &chunk : IFFReadChunks(m_stream, DSDIFFLayout).chunks)
        if (chunk.name == "DIIN")
            appendChildren(found, m_stream, chunk, isNamed);
    return found;
}

/// Begins with the last chunk, so that the offsets of the others stay right.
void DSDIFFWriter::replaceAll(const std::vector<DSDIFFChunk> &chunks, ByteVector replacement)
{
    for (const DSDIFFChunk &chunk : std::views::reverse(chunks)) {
        const qint64 start = chunk.offset - DSDIFFLayout.headerSize();
        const qint64 length = chunk.end - start;
        m_stream.insert(replacement, start, std::size_t(length));
        if (chunk.parent > 0)
            changeSize(chunk.parent, qint64(replacement.size()) - length);
        replacement.clear();
    }
}

void DSDIFFWriter::appendToRoot(const ByteVector &chunk)
{
    const qint64 end = IFFReadChunks(m_stream, DSDIFFLayout).end;
    m_stream.insert(withPadding(end, chunk), end, 0);
}

void DSDIFFWriter::appendToDIIN(const ByteVector &chunk)
{
    const std::vector<IFFChunk> root = IFFReadChunks(m_stream, DSDIFFLayout).chunks;
    const auto parent = std::ranges::find(root, ByteVector("DIIN"), &IFFChunk::name);
    if (parent == root.end())
        return appendToRoot(wholeChunk("DIIN", chunk));
    const ByteVector bytes = withPadding(parent->end, chunk);
    m_stream.insert(bytes, parent->end, 0);
    // The byte that padded DIIN now lies within it.
    changeSize(parent->offset, parent->end - parent->offset - parent->size + qint64(bytes.size()));
}

void DSDIFFWriter::changeSize(qint64 contents, qint64 difference)
{
    const qint64 offset = contents - DSDIFFLayout.sizeWidth;
    const qint64 size =
        IFFSizeFromBytes(DSDIFFLayout, IFFReadBytes(m_stream, offset, DSDIFFLayout.sizeWidth));
    m_stream.insert(IFFBytesFromSize(DSDIFFLayout, size + difference), offset,
                    std::size_t(DSDIFFLayout.sizeWidth));
}
