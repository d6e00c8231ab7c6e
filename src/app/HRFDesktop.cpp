#include "app/HRFDesktop.h"

#include "app/HRFFileURIs.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

void openFolderOf(const HRFFileReference &file)
{
    QDesktopServices::openUrl(
        QUrl::fromLocalFile(QFileInfo(QFile::decodeName(file.nativePath())).path()));
}

} // namespace

namespace HRFDesktop {

void revealFiles(const std::vector<HRFFileReference> &files)
{
    if (files.empty())
        return;
    QStringList uris;
    for (const HRFFileReference &file : files)
        uris.append(QString::fromLatin1(HRFFileURIs::uriOf(file)));
    QDBusMessage call = QDBusMessage::createMethodCall(
        u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
        u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
    call.setArguments({uris, QString()});
    auto *watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), qApp);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [first = files.front()](QDBusPendingCallWatcher *finished) {
                         finished->deleteLater();
                         if (QDBusPendingReply<>(*finished).isError())
                             openFolderOf(first);
                     });
}

void notify(const QString &title, const QString &text)
{
    constexpr int usualTime = -1;
    QDBusMessage call = QDBusMessage::createMethodCall(
        u"org.freedesktop.Notifications"_s, u"/org/freedesktop/Notifications"_s,
        u"org.freedesktop.Notifications"_s, u"Notify"_s);
    call.setArguments({QGuiApplication::applicationDisplayName(), 0U, u"com.harrowfield.lirra"_s,
                       title, text, QStringList(), QVariantMap(), usualTime});
    QDBusConnection::sessionBus().asyncCall(call);
}

} // namespace HRFDesktop
