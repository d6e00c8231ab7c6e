#include "app/HRFInstance.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr auto streamVersion = QDataStream::Qt_6_4;
constexpr char thanks = '!';

/// In the folder for such things, which no other user can look into.
QString socketName(const QString &dataFolder)
{
    const QByteArray folder = QFile::encodeName(QDir(dataFolder).absolutePath());
    const QByteArray digest =
        QCryptographicHash::hash(folder, QCryptographicHash::Sha256).toHex().first(16);
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + u"/lirra-"_s
        + QString::fromLatin1(digest);
}

} // namespace

HRFInstance::HRFInstance(const QString &dataFolder)
{
    const QString name = socketName(dataFolder);
    QLocalServer::removeServer(name); // that of a killed program
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    if (!m_server.listen(name))
        qWarning("%s: %s", qUtf8Printable(name), qUtf8Printable(m_server.errorString()));
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *socket = m_server.nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, this, [this, socket] { receive(socket); });
            receive(socket);
        }
    });
}

void HRFInstance::receive(QLocalSocket *socket)
{
    QDataStream stream(socket);
    stream.setVersion(streamVersion);
    stream.startTransaction();
    QByteArrayList nativePaths;
    stream >> nativePaths;
    if (!stream.commitTransaction())
        return; // there is more to come
    if (!m_server.isListening())
        return socket->abort();
    socket->putChar(thanks);
    socket->flush();
    socket->disconnectFromServer();
    std::vector<HRFFileReference> paths;
    for (const QByteArray &path : nativePaths)
        paths.push_back(HRFFileReference::fromNativePath(path));
    Q_EMIT pathsDidArrive(paths);
}

bool HRFInstance::handOver(const std::vector<HRFFileReference> &paths, const QString &dataFolder)
{
    constexpr int patience = 5000;
    QByteArrayList nativePaths;
    for (const HRFFileReference &path : paths)
        nativePaths.append(path.nativePath());
    QLocalSocket socket;
    socket.connectToServer(socketName(dataFolder));
    if (!socket.waitForConnected(patience))
        return false;
    QDataStream stream(&socket);
    stream.setVersion(streamVersion);
    stream << nativePaths;
    char answer = 0;
    while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(patience)) { }
    return socket.waitForReadyRead(patience) && socket.getChar(&answer) && answer == thanks;
}
