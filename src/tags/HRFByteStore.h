#pragma once

#include "kit/HRFError.h"
#include "tags/HRFPiece.h"

#include <QByteArray>

#include <span>
#include <vector>

/// The bytes that a tag stream reads from and writes to: a file, or something in its place in
/// tests. Offsets and sizes are in bytes.
class HRFByteStore
{
public:
    HRFByteStore() = default;
    HRFByteStore(const HRFByteStore &) = delete;
    HRFByteStore &operator=(const HRFByteStore &) = delete;
    virtual ~HRFByteStore() = default;

    /// The path as the system calls take it.
    virtual const QByteArray &name() const = 0;
    /// The size before the first write, until the last one is finished.
    virtual qint64 size() const = 0;
    /// Whether the process may write, as far as can be told without trying.
    virtual bool isWritable() const = 0;

    /// Reads into the whole buffer unless the bytes end earlier or cannot be read; answers how many
    /// bytes it read.
    virtual qint64 readAt(qint64 offset, std::span<char> buffer) = 0;

    /// Puts the contents that the pieces make in the place of the old ones, all at once.
    ///
    /// @return false where that cannot be done: then nothing has happened
    [[nodiscard]] virtual bool replace(const std::vector<HRFPiece> &) { return false; }

    // In place:
    /// Called once before the first write. Makes room for @p newSize bytes, so that a full disk is
    /// noticed before anything is changed.
    [[nodiscard]] virtual HRFResult<void> prepareWriting(qint64 newSize) = 0;
    [[nodiscard]] virtual HRFResult<void> writeAt(qint64 offset, std::span<const char> data) = 0;
    /// Called once after the last write with the final size, which the store is given.
    [[nodiscard]] virtual HRFResult<void> finishWriting(qint64 newSize) = 0;
};
