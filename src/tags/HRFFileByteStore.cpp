#include "tags/HRFFileByteStore.h"

#include "tags/HRFFileReplacement.h"

#include <QCoreApplication>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

HRFError changedMeanwhileError()
{
    HRFError error = HRFError::fromErrno(EBUSY);
    error.description = QCoreApplication::translate("HRFFileByteStore",
                                                    "Another program changed the file meanwhile");
    return error;
}

HRFError notRegularError()
{
    HRFError error = HRFError::fromErrno(EINVAL);
    error.description = QCoreApplication::translate("HRFFileByteStore", "It is not a regular file");
    return error;
}

std::unexpected<HRFError> lastError()
{
    return std::unexpected(HRFError::fromErrno(errno));
}

HRFResult<void> writeAll(int descriptor, qint64 offset, std::span<const char> data)
{
    while (!data.empty()) {
        const ssize_t count = ::pwrite(descriptor, data.data(), data.size(), offset);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return lastError();
        data = data.subspan(std::size_t(count));
        offset += count;
    }
    return {};
}

} // namespace

HRFResult<std::unique_ptr<HRFFileByteStore>> HRFFileByteStore::open(const HRFFileReference &file)
{
    // Without O_NONBLOCK, opening a named pipe would wait for its other end.
    const QByteArray &path = file.nativePath();
    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return lastError();
    struct stat status{};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(descriptor);
        return std::unexpected(notRegularError());
    }
    return std::unique_ptr<HRFFileByteStore>(
        new HRFFileByteStore(path, descriptor, Identity::of(status)));
}

HRFFileByteStore::HRFFileByteStore(QByteArray path, int descriptor, const Identity &identity)
    : m_path(std::move(path)), m_readDescriptor(descriptor), m_identity(identity)
{
}

HRFFileByteStore::~HRFFileByteStore()
{
    if (m_writeDescriptor >= 0)
        ::close(m_writeDescriptor);
    ::close(m_readDescriptor);
}

HRFFileByteStore::Identity HRFFileByteStore::Identity::of(const struct stat &status)
{
    return Identity{status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
                    status.st_mtim.tv_nsec};
}

HRFResult<HRFFileByteStore::Identity> HRFFileByteStore::identityOf(int descriptor)
{
    struct stat status{};
    if (::fstat(descriptor, &status) != 0)
        return lastError();
    return Identity::of(status);
}

bool HRFFileByteStore::isWritable() const
{
    if (!m_isWritable)
        m_isWritable = ::access(m_path.constData(), W_OK) == 0;
    return *m_isWritable;
}

qint64 HRFFileByteStore::readAt(qint64 offset, std::span<char> buffer)
{
    std::size_t done = 0;
    while (done < buffer.size()) {
        const ssize_t count = ::pread(m_readDescriptor, buffer.data() + done, buffer.size() - done,
                                      offset + qint64(done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        done += std::size_t(count);
    }
    return qint64(done);
}

HRFResult<void> HRFFileByteStore::prepareWriting(qint64 newSize)
{
    if (m_writeDescriptor >= 0)
        ::close(m_writeDescriptor);
    m_writeDescriptor = ::open(m_path.constData(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
    if (m_writeDescriptor < 0)
        return lastError();
    const HRFResult<Identity> present = identityOf(m_writeDescriptor);
    if (!present)
        return std::unexpected(present.error());
    if (*present != m_identity)
        return std::unexpected(changedMeanwhileError());
    if (newSize <= m_identity.size)
        return {};
    const int failure =
        ::posix_fallocate(m_writeDescriptor, m_identity.size, newSize - m_identity.size);
    if (failure == 0)
        return {};
    // Part of the room may have been made already.
    if (!finishWriting(m_identity.size))
        qWarning("Could not give back the room made at the end of %s", m_path.constData());
    return std::unexpected(HRFError::fromErrno(failure));
}

HRFResult<void> HRFFileByteStore::writeAt(qint64 offset, std::span<const char> data)
{
    return writeAll(m_writeDescriptor, offset, data);
}

bool HRFFileByteStore::replace(const std::vector<HRFPiece> &pieces)
{
    const HRFResult<Identity> present = identityOf(m_readDescriptor);
    if (!isWritable() || !present || *present != m_identity)
        return false;
    const auto replacement = HRFFileReplacement::begin(m_path, m_readDescriptor);
    if (!replacement)
        return false;
    qint64 offset = 0;
    for (const HRFPiece &piece : pieces)
        if (!copyPiece(piece, replacement->descriptor(),
                       std::exchange(offset, offset + piece.length)))
            return false;
    if (!replacement->takePlace())
        return false;
    ::close(std::exchange(m_readDescriptor, replacement->releaseDescriptor()));
    m_identity = identityOf(m_readDescriptor).value_or(Identity());
    return true;
}

bool HRFFileByteStore::copyPiece(const HRFPiece &piece, int copy, qint64 offset)
{
    if (piece.isNew)
        return writeAll(copy, offset, {piece.bytes.data(), piece.bytes.size()}).has_value();
    constexpr qint64 chunkSize = 1 << 20;
    std::vector<char> buffer(std::size_t(std::min(chunkSize, piece.length)));
    for (qint64 done = 0; done < piece.length;) {
        const auto chunk =
            std::span(buffer).first(std::size_t(std::min(chunkSize, piece.length - done)));
        if (readAt(piece.source + done, chunk) != qint64(chunk.size())
            || !writeAll(copy, offset + done, chunk))
            return false;
        done += qint64(chunk.size());
    }
    return true;
}

HRFResult<void> HRFFileByteStore::finishWriting(qint64 newSize)
{
    HRFResult<Identity> identity = identityOf(m_writeDescriptor);
    if (identity && identity->size != newSize) {
        if (::ftruncate(m_writeDescriptor, newSize) != 0)
            return lastError();
        identity = identityOf(m_writeDescriptor);
    }
    if (!identity)
        return std::unexpected(identity.error());
    m_identity = *identity;
    // Network file systems report a failed write only here.
    if (::close(std::exchange(m_writeDescriptor, -1)) != 0)
        return lastError();
    return {};
}
