#include "tags/HRFTagStream.h"

#include "tags/HRFFileByteStore.h"

#include <climits>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>

HRFTagStream::HRFTagStream(std::unique_ptr<HRFByteStore> store) : m_store(std::move(store))
{
    discard();
}

void HRFTagStream::discard()
{
    m_length = m_store->size();
    m_pieces.assign(1, HRFPiece{.length = m_length});
    m_cursor = {};
    m_position = 0;
    m_windowLength = 0;
}

void HRFTagStream::seek(TagLib::offset_t offset, Position position)
{
    const qint64 base = position == Beginning ? 0 : position == Current ? m_position : m_length;
    // Damaged files make TagLib seek anywhere.
    const qint64 behind = std::numeric_limits<qint64>::max() - base;
    m_position = std::max<qint64>(0, base + std::min<qint64>(offset, behind));
}

TagLib::ByteVector HRFTagStream::readBlock(std::size_t length)
{
    const qint64 available = std::max<qint64>(0, m_length - m_position);
    const qint64 count =
        std::min<qint64>(available, qint64(std::min<std::size_t>(length, INT_MAX)));
    if (count == 0)
        return {};
    TagLib::ByteVector result(static_cast<unsigned int>(count));
    m_position += qint64(readAt(m_position, {result.data(), std::size_t(count)}));
    return result;
}

std::size_t HRFTagStream::readAt(qint64 offset, std::span<char> buffer)
{
    const qint64 available = std::max<qint64>(0, m_length - offset);
    std::span<char> rest = buffer.first(std::min(buffer.size(), std::size_t(available)));
    const std::size_t count = rest.size();
    for (Cursor cursor = locate(offset); !rest.empty(); ++cursor.index) {
        const HRFPiece &piece = m_pieces[cursor.index];
        const qint64 skipped = offset - cursor.start;
        const auto part = rest.first(std::min(rest.size(), std::size_t(piece.length - skipped)));
        if (piece.isNew)
            std::memcpy(part.data(), piece.bytes.data() + skipped, part.size());
        else
            readStore(piece.source + skipped, part);
        offset += qint64(part.size());
        rest = rest.subspan(part.size());
        cursor.start += piece.length;
    }
    return count;
}

/// Small reads come from a window, since parsers read a few bytes here and there. Bytes that cannot
/// be read are zero.
void HRFTagStream::readStore(qint64 offset, std::span<char> buffer)
{
    qint64 count = 0;
    if (buffer.size() > m_window.size() / 2) {
        count = m_store->readAt(offset, buffer);
    } else {
        const qint64 end = offset + qint64(buffer.size());
        if (offset < m_windowOffset || end > m_windowOffset + m_windowLength) {
            m_windowOffset = offset;
            const qint64 rest = std::max<qint64>(0, m_store->size() - offset);
            const auto size = std::min(m_window.size(), std::size_t(rest));
            m_windowLength = m_store->readAt(offset, std::span(m_window).first(size));
        }
        count = std::max<qint64>(0, std::min(end, m_windowOffset + m_windowLength) - offset);
        std::memcpy(buffer.data(), m_window.data() + (offset - m_windowOffset), std::size_t(count));
    }
    std::ranges::fill(buffer.subspan(std::size_t(count)), '\0');
    m_hasReadFailed = m_hasReadFailed || count < qint64(buffer.size());
}

void HRFTagStream::writeBlock(const TagLib::ByteVector &data)
{
    replace(m_position, qint64(data.size()), data);
    m_position += qint64(data.size());
}

void HRFTagStream::insert(const TagLib::ByteVector &data, TagLib::offset_t start,
                          std::size_t replaced)
{
    replace(start, qint64(std::min<std::size_t>(replaced, INT64_MAX)), data);
    m_position = start + qint64(data.size());
}

void HRFTagStream::removeBlock(TagLib::offset_t start, std::size_t length)
{
    replace(start, qint64(std::min<std::size_t>(length, INT64_MAX)), {});
}

void HRFTagStream::truncate(TagLib::offset_t length)
{
    if (length < m_length)
        replace(length, m_length - length, {});
    else
        replace(length, 0, {});
}

/// Puts @p data in the place of the given range. A range that begins behind the end is preceded by
/// zeros, as in a file.
void HRFTagStream::replace(qint64 start, qint64 length, const TagLib::ByteVector &data)
{
    while (start > m_length) {
        const qint64 count = std::min<qint64>(start - m_length, INT_MAX);
        replace(m_length, 0, TagLib::ByteVector(static_cast<unsigned int>(count), '\0'));
    }
    length = std::min(length, m_length - start);
    const std::size_t first = splitAt(start);
    const std::size_t last = splitAt(start + length);
    const auto erased =
        m_pieces.erase(m_pieces.begin() + qsizetype(first), m_pieces.begin() + qsizetype(last));
    m_length += qint64(data.size()) - length;
    m_cursor = {first, start};
    if (data.isEmpty())
        return;
    // Writing on behind new bytes is common (one number after the other) and makes no new piece.
    HRFPiece *before = first > 0 ? &m_pieces[first - 1] : nullptr;
    if (before && before->isNew && before->length + qint64(data.size()) <= INT_MAX) {
        before->bytes.append(data);
        before->length += qint64(data.size());
        m_cursor.start += qint64(data.size());
    } else {
        m_pieces.insert(erased,
                        HRFPiece{.length = qint64(data.size()), .bytes = data, .isNew = true});
    }
}

/// The piece that holds the byte at the given offset; behind the last byte, the end of the pieces.
HRFTagStream::Cursor HRFTagStream::locate(qint64 offset)
{
    if (offset < m_cursor.start)
        m_cursor = {};
    while (m_cursor.index < m_pieces.size()
           && offset >= m_cursor.start + m_pieces[m_cursor.index].length)
        m_cursor.start += m_pieces[m_cursor.index++].length;
    return m_cursor;
}

/// Makes a piece begin at the given offset and answers its index; the number of pieces at the end.
std::size_t HRFTagStream::splitAt(qint64 offset)
{
    const Cursor cursor = locate(offset);
    if (cursor.start == offset || cursor.index == m_pieces.size())
        return cursor.index;
    HRFPiece &piece = m_pieces[cursor.index];
    const qint64 head = offset - cursor.start;
    HRFPiece tail = piece;
    tail.source += head;
    tail.length -= head;
    piece.length = head;
    if (piece.isNew) {
        const auto headSize = static_cast<unsigned int>(head);
        tail.bytes = piece.bytes.mid(headSize);
        piece.bytes = piece.bytes.mid(0, headSize);
    }
    m_pieces.insert(m_pieces.begin() + qsizetype(cursor.index) + 1, std::move(tail));
    return cursor.index + 1;
}

bool HRFTagStream::isUnchanged() const
{
    if (m_length != m_store->size())
        return false;
    return m_pieces.empty() || (m_pieces.size() == 1 && !m_pieces[0].isNew);
}

HRFResult<void> HRFTagStream::commit()
{
    if (isUnchanged())
        return {};
    if (m_hasReadFailed)
        return std::unexpected(HRFError::fromErrno(EIO));
    // Where most of the file moves, a new one costs no more, and no half is left of it. Elsewhere
    // the writes in place are short.
    const bool isReplaced = 2 * HRFMovedBytes(m_pieces) > m_length && m_store->replace(m_pieces);
    if (auto written = isReplaced ? HRFResult<void>() : HRFWritePieces(*m_store, m_pieces);
        !written)
        return written;
    const qint64 position = m_position;
    discard();
    m_position = position;
    return {};
}

HRFResult<std::shared_ptr<HRFTagStream>> openTagStream(const HRFFileReference &file)
{
    auto store = HRFFileByteStore::open(file);
    if (!store)
        return std::unexpected(std::move(store.error()));
    return std::make_shared<HRFTagStream>(std::move(*store));
}
