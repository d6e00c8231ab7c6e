#pragma once

#include "kit/HRFFileReference.h"
#include "tags/HRFByteStore.h"

#include <taglib/tiostream.h>

#include <array>
#include <memory>
#include <vector>

/// The stream through which TagLib reads and changes a file.
///
/// Changes are collected in memory and reach the file only with commit(): until then the file is
/// untouched, and everything read through the stream already shows the changes. So a save can be
/// checked before it happens, and one that fails half-way in TagLib costs nothing.
class HRFTagStream : public TagLib::IOStream
{
public:
    explicit HRFTagStream(std::unique_ptr<HRFByteStore> store);

    /// Writes the changes: in place, or, where most of the file would have to move, into a new file
    /// that replaces it. The file is as before when that fails.
    [[nodiscard]] HRFResult<void> commit();
    /// Forgets the changes.
    void discard();
    /// Whether there is nothing to commit.
    bool isUnchanged() const;
    /// Whether bytes could not be read, so that what was read is not what the file holds.
    bool hasReadFailed() const { return m_hasReadFailed; }

    /// Fills the buffer with the present contents from the given offset on, as far as they reach.
    ///
    /// @return how many bytes there are
    std::size_t readAt(qint64 offset, std::span<char> buffer);

    TagLib::FileName name() const override { return m_store->name().constData(); }
    TagLib::ByteVector readBlock(std::size_t length) override;
    void writeBlock(const TagLib::ByteVector &data) override;
    void insert(const TagLib::ByteVector &data, TagLib::offset_t start,
                std::size_t replace) override;
    void removeBlock(TagLib::offset_t start, std::size_t length) override;
    bool readOnly() const override { return !m_store->isWritable(); }
    bool isOpen() const override { return true; }
    void seek(TagLib::offset_t offset, Position position) override;
    TagLib::offset_t tell() const override { return m_position; }
    TagLib::offset_t length() override { return m_length; }
    void truncate(TagLib::offset_t length) override;

private:
    void replace(qint64 start, qint64 length, const TagLib::ByteVector &data);
    /// A piece by its index, with the offset at which it begins in the present contents.
    struct Cursor
    {
        std::size_t index = 0;
        qint64 start = 0;
    };

    Cursor locate(qint64 offset);
    std::size_t splitAt(qint64 offset);
    void readStore(qint64 offset, std::span<char> buffer);

    std::unique_ptr<HRFByteStore> m_store;
    std::vector<HRFPiece> m_pieces; ///< in order; together the present contents
    Cursor m_cursor; ///< where the last search ended; searches mostly go forwards
    qint64 m_length = 0;
    qint64 m_position = 0;
    std::array<char, 4096> m_window{}; ///< bytes of the store around the last small read
    qint64 m_windowOffset = 0;
    qint64 m_windowLength = 0;
    bool m_hasReadFailed = false;
};

/// Opens a file for an engine. All access of the engines to a file's bytes goes through here.
HRFResult<std::shared_ptr<HRFTagStream>> openTagStream(const HRFFileReference &file);
