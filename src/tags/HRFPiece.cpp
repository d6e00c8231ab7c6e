#include "tags/HRFPiece.h"

#include "tags/HRFByteStore.h"

#include <QCoreApplication>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <functional>
#include <numeric>
#include <ranges>
#include <utility>

namespace {

constexpr qsizetype blockSize = 512;

/// How many whole blocks, in bytes, are equal at the start.
qsizetype equalStart(QByteArrayView left, QByteArrayView right)
{
    const qsizetype length = std::min(left.size(), right.size());
    qsizetype count = 0;
    while (count + blockSize <= length
           && std::memcmp(left.data() + count, right.data() + count, blockSize) == 0)
        count += blockSize;
    return count;
}

/// The same at the end of views of one size.
qsizetype equalEnd(QByteArrayView left, QByteArrayView right)
{
    qsizetype end = left.size();
    while (end >= blockSize
           && std::memcmp(left.data() + end - blockSize, right.data() + end - blockSize, blockSize)
               == 0)
        end -= blockSize;
    return left.size() - end;
}

class PieceWriter
{
public:
    explicit PieceWriter(HRFByteStore &store) : m_store(store) { }

    HRFResult<void> write(const std::vector<HRFPiece> &pieces);

private:
    struct Placed
    {
        const HRFPiece *piece;
        qint64 offset;
    };

    HRFResult<void> writePlaced(const std::vector<Placed> &placed);
    HRFResult<void> moveUndoably(const Placed &placed);
    HRFResult<void> overwriteUndoably(const Placed &placed);
    HRFResult<void> keepAside(qint64 offset, qint64 length);
    HRFResult<QByteArray> readOld(qint64 offset, qint64 length);
    void restoreOnFailure(qint64 offset, const QByteArray &old);
    HRFResult<void> move(qint64 from, qint64 to, qint64 length, qint64 &moved);
    HRFError undo(HRFError cause, qint64 oldSize);

    HRFByteStore &m_store;
    std::vector<std::function<HRFResult<void>()>> m_undoSteps;
    bool m_isDamaged = false;
};

HRFResult<void> PieceWriter::write(const std::vector<HRFPiece> &pieces)
{
    std::vector<Placed> placed;
    placed.reserve(pieces.size());
    qint64 newSize = 0;
    for (const HRFPiece &piece : pieces)
        placed.push_back({&piece, std::exchange(newSize, newSize + piece.length)});

    const qint64 oldSize = m_store.size();
    if (auto prepared = m_store.prepareWriting(newSize); !prepared)
        return prepared;
    if (auto written = writePlaced(placed); !written)
        return std::unexpected(undo(std::move(written.error()), oldSize));
    return m_store.finishWriting(newSize);
}

/// Stored pieces keep their order. Those that move towards the end never overwrite one that stays
/// or moves towards the beginning, when taken from the last to the first; and the other way round.
HRFResult<void> PieceWriter::writePlaced(const std::vector<Placed> &placed)
{
    HRFResult<void> result;
    for (const Placed &item : placed | std::views::reverse)
        if (result && !item.piece->isNew && item.offset > item.piece->source)
            result = moveUndoably(item);
    for (const Placed &item : placed)
        if (result && !item.piece->isNew && item.offset < item.piece->source)
            result = moveUndoably(item);
    for (const Placed &item : placed)
        if (result && item.piece->isNew)
            result = overwriteUndoably(item);
    return result;
}

/// A move overwrites its own source, which it has copied before, and bytes beside it, which no
/// piece needs any more: those are kept aside.
HRFResult<void> PieceWriter::moveUndoably(const Placed &placed)
{
    const qint64 from = placed.piece->source;
    const qint64 to = placed.offset;
    const qint64 length = placed.piece->length;
    const qint64 besideStart = to < from ? to : std::max(to, from + length);
    const qint64 besideEnd = to < from ? std::min(from, to + length) : to + length;
    if (auto kept = keepAside(besideStart, besideEnd - besideStart); !kept)
        return kept;
    qint64 moved = 0;
    const HRFResult<void> result = move(from, to, length, moved);
    m_undoSteps.emplace_back([this, from, to, length, moved] {
        const qint64 skipped = to > from ? length - moved : 0;
        qint64 movedBack = 0;
        return move(to + skipped, from + skipped, moved, movedBack);
    });
    return result;
}

/// Makes the given range be restored when a later step fails.
HRFResult<void> PieceWriter::keepAside(qint64 offset, qint64 length)
{
    auto old = readOld(offset, length);
    if (!old)
        return std::unexpected(std::move(old.error()));
    if (!old->isEmpty())
        restoreOnFailure(offset, *old);
    return {};
}

/// What the store holds in the given range, as far as the old contents reach.
HRFResult<QByteArray> PieceWriter::readOld(qint64 offset, qint64 length)
{
    QByteArray old(std::clamp<qint64>(m_store.size() - offset, 0, length), Qt::Uninitialized);
    if (m_store.readAt(offset, {old.data(), std::size_t(old.size())}) != old.size())
        return std::unexpected(HRFError::fromErrno(EIO));
    return old;
}

void PieceWriter::restoreOnFailure(qint64 offset, const QByteArray &old)
{
    m_undoSteps.emplace_back([this, offset, old] {
        return m_store.writeAt(offset, {old.constData(), std::size_t(old.size())});
    });
}

/// Only what differs is written: most of a saved tag is as it was.
HRFResult<void> PieceWriter::overwriteUndoably(const Placed &placed)
{
    QByteArrayView bytes(placed.piece->bytes.data(), qsizetype(placed.piece->bytes.size()));
    qint64 offset = placed.offset;
    auto kept = readOld(offset, bytes.size());
    if (!kept)
        return std::unexpected(std::move(kept.error()));
    QByteArrayView old(*kept);
    const qsizetype start = equalStart(bytes, old);
    offset += start;
    bytes = bytes.sliced(start);
    old = old.sliced(start);
    if (old == bytes)
        return {};
    if (old.size() == bytes.size()) {
        const qsizetype end = equalEnd(bytes, old);
        bytes.chop(end);
        old.chop(end);
    }
    restoreOnFailure(offset, old.toByteArray());
    return m_store.writeAt(offset, {bytes.data(), std::size_t(bytes.size())});
}

/// Copies chunk by chunk, from the end when moving towards the end; @p moved counts what is done.
HRFResult<void> PieceWriter::move(qint64 from, qint64 to, qint64 length, qint64 &moved)
{
    constexpr qint64 chunkSize = 1 << 20;
    std::vector<char> buffer(std::size_t(std::min(chunkSize, length)));
    while (moved < length) {
        const qint64 count = std::min(chunkSize, length - moved);
        const qint64 position = to > from ? length - moved - count : moved;
        const std::span<char> chunk(buffer.data(), std::size_t(count));
        if (m_store.readAt(from + position, chunk) != count)
            return std::unexpected(HRFError::fromErrno(EIO));
        if (auto written = m_store.writeAt(to + position, chunk); !written) {
            // A part of the chunk may have been written over its own source.
            if (!m_store.writeAt(from + position, chunk))
                m_isDamaged = true;
            return written;
        }
        moved += count;
    }
    return {};
}

/// Restores the old contents and answers the error to report.
HRFError PieceWriter::undo(HRFError cause, qint64 oldSize)
{
    bool isRestored = !m_isDamaged;
    for (const auto &step : m_undoSteps | std::views::reverse)
        isRestored = step().has_value() && isRestored;
    isRestored = m_store.finishWriting(oldSize).has_value() && isRestored;
    if (!isRestored)
        cause.recoverySuggestion = QCoreApplication::translate(
            "HRFTagStream", "The old contents could not be restored; the file may be damaged.");
    return cause;
}

} // namespace

qint64 HRFMovedBytes(const std::vector<HRFPiece> &pieces)
{
    qint64 moved = 0;
    qint64 offset = 0;
    for (const HRFPiece &piece : pieces) {
        moved += !piece.isNew && piece.source != offset ? piece.length : 0;
        offset += piece.length;
    }
    return moved;
}

HRFResult<void> HRFWritePieces(HRFByteStore &store, const std::vector<HRFPiece> &pieces)
{
    return PieceWriter(store).write(pieces);
}
