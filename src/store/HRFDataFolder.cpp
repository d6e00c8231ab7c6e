#include "store/HRFDataFolder.h"

#include "kit/HRFAssert.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QString currentFolder; // set on the main thread, before there are others

constexpr mode_t forTheOwner = 0700;

/// The descriptor of the locked file in a folder; -1, and errno says why, when another process
/// holds the lock, or when the file cannot be opened.
int lockFolder(const QString &path, bool waits)
{
    constexpr mode_t mode = 0600;
    const QByteArray file = QFile::encodeName(path + u"/lock"_s);
    const int descriptor =
        ::open(file.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, mode);
    int outcome = descriptor;
    while (outcome >= 0 && (outcome = ::flock(descriptor, LOCK_EX | (waits ? 0 : LOCK_NB))) != 0
           && errno == EINTR)
        outcome = descriptor;
    if (descriptor < 0 || outcome == 0)
        return descriptor;
    const int reason = errno;
    ::close(descriptor);
    errno = reason;
    return -1;
}

HRFError folderError(const QString &path, const QString &description, int code)
{
    return {.domain = QString::fromLatin1(HRFPOSIXErrorDomain),
            .code = code,
            .description = description,
            .path = path,
            .underlying = std::make_shared<HRFError>(HRFError::fromErrno(code))};
}

/// Makes a folder that is the user's own, or takes the one that is there.
bool makeOwnFolder(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    if (::mkdir(name.constData(), forTheOwner) == 0)
        return true;
    struct stat status = {};
    return ::lstat(name.constData(), &status) == 0 && S_ISDIR(status.st_mode)
        && status.st_uid == ::getuid() && (status.st_mode & 077) == 0;
}

/// Removes the folders below the given one that no process has locked.
void removeLeftovers(const QString &parent)
{
    for (const QString &name : QDir(parent).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString path = parent + u'/' + name;
        const int lock = lockFolder(path, false);
        if (lock < 0)
            continue;
        QDir(path).removeRecursively();
        ::close(lock);
    }
}

} // namespace

HRFDataFolder::HRFDataFolder(QString path, int lock, bool isTemporary)
    : m_path(std::move(path)), m_lock(lock), m_isTemporary(isTemporary)
{
    currentFolder = m_path;
}

HRFDataFolder::~HRFDataFolder()
{
    if (m_isTemporary)
        QDir(m_path).removeRecursively();
    ::close(m_lock);
    if (currentFolder == m_path)
        currentFolder.clear();
}

QString HRFDataFolder::userFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/lirra"_s;
}

QString HRFDataFolder::current()
{
    HRFRequire(!currentFolder.isEmpty(), "HRFDataFolder::take");
    return currentFolder;
}

HRFResult<std::unique_ptr<HRFDataFolder>> HRFDataFolder::take(const QString &path)
{
    const QString folder = QDir(path).absolutePath();
    QDir().mkpath(folder);
    const int lock = lockFolder(folder, false);
    if (lock < 0)
        return std::unexpected(folderError(folder,
                                           errno == EWOULDBLOCK
                                               ? u"The folder is in use by another program."_s
                                               : u"The folder cannot be used."_s,
                                           errno));
    QDir(folder + u"/windowSessions"_s).removeRecursively();
    return std::unique_ptr<HRFDataFolder>(new HRFDataFolder(folder, lock, false));
}

HRFResult<std::unique_ptr<HRFDataFolder>> HRFDataFolder::takeTemporary()
{
    const QString parent = QDir::tempPath() + u"/lirra-%1"_s.arg(::getuid());
    if (!makeOwnFolder(parent))
        return std::unexpected(folderError(parent, u"The folder cannot be used."_s, EACCES));
    // Held while folders come and go: one just made is not locked yet.
    const int parentLock = lockFolder(parent, true);
    if (parentLock < 0)
        return std::unexpected(folderError(parent, u"The folder cannot be used."_s, errno));
    removeLeftovers(parent);
    auto taken = makeTemporary(parent);
    ::close(parentLock);
    return taken;
}

HRFResult<std::unique_ptr<HRFDataFolder>> HRFDataFolder::makeTemporary(const QString &parent)
{
    QByteArray name = QFile::encodeName(parent + u"/XXXXXX"_s);
    const bool isMade = ::mkdtemp(name.data()) != nullptr;
    const QString path = QFile::decodeName(name);
    const int lock = isMade ? lockFolder(path, false) : -1;
    if (lock >= 0)
        return std::unique_ptr<HRFDataFolder>(new HRFDataFolder(path, lock, true));
    const int reason = errno;
    if (isMade)
        QDir(path).removeRecursively();
    return std::unexpected(folderError(path, u"The folder cannot be made."_s, reason));
}
