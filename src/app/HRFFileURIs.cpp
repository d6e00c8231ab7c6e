#include "app/HRFFileURIs.h"

#include <QMimeData>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace HRFFileURIs {

QByteArray uriOf(const HRFFileReference &file)
{
    return "file://" + file.nativePath().toPercentEncoding("/");
}

std::unique_ptr<QMimeData> mimeData(const std::vector<HRFFileReference> &files)
{
    QByteArray list;
    for (const HRFFileReference &file : files)
        list += uriOf(file) + "\r\n";
    auto data = std::make_unique<QMimeData>();
    data->setData(u"text/uri-list"_s, list);
    return data;
}

std::vector<HRFFileReference> filesOf(const QMimeData &data)
{
    std::vector<HRFFileReference> files;
    for (const QByteArray &line : data.data(u"text/uri-list"_s).split('\n'))
        if (const QUrl url = QUrl::fromEncoded(line.trimmed()); url.isLocalFile())
            files.push_back(HRFFileReference::fromUrl(url));
    return files;
}

} // namespace HRFFileURIs
