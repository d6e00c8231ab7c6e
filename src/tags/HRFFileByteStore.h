#pragma once

#include "kit/HRFFileReference.h"
#include "tags/HRFByteStore.h"

#include <ctime>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <sys/types.h>

/// The bytes of a regular file.
///
/// The file is opened for reading only, so that merely showing it does not look like a change to
/// other programs; it is opened for writing when there is something to write. A file that another
/// program changed in the meantime is not written.
class HRFFileByteStore : public HRFByteStore
{
public:
    static HRFResult<std::unique_ptr<HRFFileByteStore>> open(const HRFFileReference &file);
    ~HRFFileByteStore() override;

    const QByteArray &name() const override { return m_path; }
    qint64 size() const override { return m_identity.size; }
    bool isWritable() const override;
    qint64 readAt(qint64 offset, std::span<char> buffer) override;
    bool replace(const std::vector<HRFPiece> &pieces) override;
    HRFResult<void> prepareWriting(qint64 newSize) override;
    HRFResult<void> writeAt(qint64 offset, std::span<const char> data) override;
    HRFResult<void> finishWriting(qint64 newSize) override;

private:
    /// What tells that a file is still the same, unchanged one.
    struct Identity
    {
        dev_t device = 0;
        ino_t inode = 0;
        qint64 size = 0;
        qint64 modifiedSeconds = 0;
        qint64 modifiedNanoseconds = 0;

        static Identity of(const struct stat &status);
        friend bool operator==(const Identity &, const Identity &) = default;
    };

    HRFFileByteStore(QByteArray path, int descriptor, const Identity &identity);
    static HRFResult<Identity> identityOf(int descriptor);
    bool copyPiece(const HRFPiece &piece, int copy, qint64 offset);

    QByteArray m_path;
    int m_readDescriptor = -1;
    int m_writeDescriptor = -1;
    Identity m_identity;
    mutable std::optional<bool> m_isWritable;
};
