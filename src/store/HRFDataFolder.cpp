#include "store/HRFDataFolder.h"

#include "kit/HRFAssert.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> currentFolder; // set on the main thread, before there are others

/// The descriptor of the locked file in a folder; -1, and errno says why, when another process
/// holds the lock, or when the file cannot be opened.
int lockFolder(const QString &path)
{
    constexpr mode_t mode = 0600;
    const QByteArray file = QFile::encodeName(path + u"/lock"_s);
    const int descriptor =
        ::open(file.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, mode);
    if (descriptor < 0 || ::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        return descriptor;
    const int reason = errno;
    ::close(descriptor);
    errno = reason;
    return -1;
}

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFDataFolder", text);
}

HRFError folderError(const QString &path, int code)
{
    return {.domain = QString::fromLatin1(HRFPOSIXErrorDomain),
            .code = code,
            .description = code == EWOULDBLOCK ? tr("The folder is in use by another program.")
                                               : tr("The folder cannot be used."),
            .path = path,
            .underlying = std::make_shared<HRFError>(HRFError::fromErrno(code))};
}

} // namespace

HRFDataFolder::HRFDataFolder(QString path, int lock) : m_path(std::move(path)), m_lock(lock)
{
    currentFolder = m_path;
}

HRFDataFolder::~HRFDataFolder()
{
    if (m_lock >= 0)
        ::close(m_lock);
    if (currentFolder == m_path)
        currentFolder.reset();
}

QString HRFDataFolder::userFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/lirra"_s;
}

QString HRFDataFolder::current()
{
    HRFRequire(currentFolder.has_value(), "HRFDataFolder::take");
    return *currentFolder;
}

HRFResult<std::unique_ptr<HRFDataFolder>> HRFDataFolder::take(const QString &path)
{
    const QString folder = QDir(path).absolutePath();
    QDir().mkpath(folder);
    const int lock = lockFolder(folder);
    if (const int reason = errno; lock < 0)
        return std::unexpected(folderError(folder, reason));
    removeSessions(folder + u"/windowSessions"_s);
    return std::unique_ptr<HRFDataFolder>(new HRFDataFolder(folder, lock));
}

std::unique_ptr<HRFDataFolder> HRFDataFolder::temporary()
{
    return std::unique_ptr<HRFDataFolder>(new HRFDataFolder({}, -1));
}

void HRFDataFolder::removeSessions(const QString &folder)
{
    if (QFileInfo(folder).isSymLink())
        return;
    for (const QString &name : QDir(folder).entryList({u"*.sqlite*"_s}, QDir::Files))
        QFile::remove(folder + u'/' + name);
    QDir().rmdir(folder); // unless there is anything else in it
}
