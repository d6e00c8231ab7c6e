#pragma once

#include "kit/HRFError.h"

#include <taglib/tbytevector.h>

#include <vector>

class HRFByteStore;

/// A run of a changed file's contents: bytes that the store holds, or new bytes.
struct HRFPiece
{
    qint64 source = 0; ///< offset in the store; not used for new bytes
    qint64 length = 0;
    TagLib::ByteVector bytes{}; ///< new bytes, or empty
    bool isNew = false;
};

/// How many of a store's bytes are to be at another offset.
qint64 HRFMovedBytes(const std::vector<HRFPiece> &pieces);

/// Rearranges a store in place so that it holds the given pieces one after the other; stored pieces
/// must be in the order in which the store holds them. Room for a growing store is made first. When
/// a write fails, the steps already taken are undone, so that the store holds its old contents.
[[nodiscard]] HRFResult<void> HRFWritePieces(HRFByteStore &store,
                                             const std::vector<HRFPiece> &pieces);
