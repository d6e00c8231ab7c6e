#include "app/HRFPicture.h"

#include "kit/HRFFileReferenceTable.h"
#include "kit/HRFImageType.h"
#include "tags/HRFTagEngine.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeData>
#include <QMimeDatabase>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// Every player shows these.
const QStringList usualFormats{u"image/jpeg"_s, u"image/png"_s};

HRFError errorOf(const QString &path, const QString &description)
{
    return {.domain = QString::fromLatin1(HRFLirraErrorDomain),
            .description = description,
            .path = path};
}

} // namespace

namespace HRFPicture {

QByteArray inFile(const QString &fileURL)
{
    const auto file = HRFFileReferenceTable::fileForURL(fileURL);
    if (!file)
        return {};
    const auto engine = HRFTagEngine::initWithURL(*file);
    return engine ? (*engine)->valueForKey(HRFTagKey::artwork).toByteArray() : QByteArray();
}

QImage scaled(QByteArray data, QSize bounds)
{
    QBuffer buffer(&data);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const auto isTooLarge = [bounds](QSize size) {
        return size.width() > bounds.width() || size.height() > bounds.height();
    };
    if (const QSize whole = reader.size(); !whole.isEmpty() && isTooLarge(whole))
        reader.setScaledSize(whole.scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1}));
    const QImage image = reader.read();
    return isTooLarge(image.size())
        ? image.scaled(bounds, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        : image;
}

HRFResult<QByteArray> fromFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(errorOf(path, file.errorString()));
    QByteArray data = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::unexpected(errorOf(path, file.errorString()));
    const bool isUsable = bitmapImageType(data) && bitmapImageSize(data);
    const QString refusal =
        QCoreApplication::translate("HRFPicture", "“%1” is no picture that can be used.");
    if (!isUsable)
        return std::unexpected(errorOf(path, refusal.arg(QFileInfo(path).fileName())));
    return data;
}

QString fileIn(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile())
        return {};
    const QString path = urls.front().toLocalFile();
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension);
    return type.name().startsWith("image/"_L1) ? path : QString();
}

QByteArray imageIn(const QMimeData &data)
{
    for (const QString &format : usualFormats)
        if (data.hasFormat(format))
            return data.data(format);
    QByteArray encoded;
    QBuffer buffer(&encoded);
    if (data.hasImage())
        data.imageData().value<QImage>().save(&buffer, "PNG");
    return encoded;
}

bool isIn(const QMimeData &data)
{
    return data.hasImage() || !fileIn(data).isEmpty();
}

} // namespace HRFPicture
