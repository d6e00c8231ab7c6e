#include "kit/HRFFileReference.h"

#include "kit/HRFAssert.h"

#include <QFile>

namespace {

/// What follows the last slash, disregarding slashes at the end; the root's name is "/".
QByteArrayView lastComponent(QByteArrayView path)
{
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    return path.size() > 1 ? path.sliced(path.lastIndexOf('/') + 1) : path;
}

/// The host as the beginning of a path, in the form that QUrl::toLocalFile gives it.
QByteArray hostPrefix(const QUrl &url)
{
    const QByteArray host = url.host().toUtf8();
    return host.isEmpty() || host == "localhost" ? QByteArray() : "//" + host;
}

} // namespace

HRFFileReference HRFFileReference::fromNativePath(const QByteArray &nativePath)
{
    HRFFileReference reference;
    reference.m_nativePath = nativePath;
    return reference;
}

HRFFileReference HRFFileReference::fromPath(const QString &path)
{
    return fromNativePath(QFile::encodeName(path));
}

HRFFileReference HRFFileReference::fromUrl(const QUrl &url)
{
    HRFRequire(url.isLocalFile(), "url.isFileURL");
    // QUrl::toLocalFile loses bytes that are not UTF-8.
    const QByteArray encodedPath = url.path(QUrl::FullyEncoded).toLatin1();
    return fromNativePath(hostPrefix(url) + QByteArray::fromPercentEncoding(encodedPath));
}

QString HRFFileReference::displayPath() const
{
    return QString::fromUtf8(m_nativePath);
}

QString HRFFileReference::displayName() const
{
    return QString::fromUtf8(lastComponent(m_nativePath));
}

QByteArray HRFFileReference::lowerCaseExtension() const
{
    const QByteArrayView name = lastComponent(m_nativePath);
    const qsizetype dot = name.lastIndexOf('.');
    return dot > 0 ? name.sliced(dot + 1).toByteArray().toLower() : QByteArray();
}

HRFFileReference HRFFileReference::withDisplayName(const QString &name) const
{
    const qsizetype nameStart = m_nativePath.lastIndexOf('/') + 1;
    const QByteArray oldName = m_nativePath.sliced(nameStart);
    const auto baseOf = [](const auto &whole) {
        const qsizetype dot = whole.lastIndexOf('.');
        return dot > 0 ? whole.first(dot) : whole;
    };
    QByteArray newName = QFile::encodeName(name);
    const QByteArray newBase = baseOf(newName);
    if (const QByteArray oldBase = baseOf(oldName);
        QString::fromUtf8(oldBase) == QString::fromUtf8(newBase))
        newName.replace(0, newBase.size(), oldBase);
    return fromNativePath(m_nativePath.first(nameStart) + newName);
}

bool HRFFileReference::isValidUtf8() const
{
    return m_nativePath.isValidUtf8();
}
