#include "document/HRFSortDescriptor.h"

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView keyPathKey("keyPath");
constexpr QLatin1StringView ascendingKey("ascending");

} // namespace

QString HRFArchivedSortDescriptors(const HRFSortDescriptors &descriptors)
{
    QCborArray archive;
    for (const HRFSortDescriptor &descriptor : descriptors)
        archive.append(
            QCborMap{{keyPathKey, descriptor.keyPath}, {ascendingKey, descriptor.ascending}});
    return QString::fromLatin1(QCborValue(archive).toCbor().toBase64());
}

HRFSortDescriptors HRFUnarchivedSortDescriptors(const QVariant &archive)
{
    const auto bytes = QByteArray::fromBase64Encoding(archive.toString().toLatin1(),
                                                      QByteArray::AbortOnBase64DecodingErrors);
    QCborParserError problem;
    const QCborArray entries = QCborValue::fromCbor(*bytes, &problem).toArray();
    if (problem.error != QCborError::NoError)
        return {};
    HRFSortDescriptors descriptors;
    for (const QCborValue &entry : entries)
        if (entry[keyPathKey].isString() && entry[ascendingKey].isBool())
            descriptors.push_back({entry[keyPathKey].toString(), entry[ascendingKey].toBool()});
    return descriptors;
}
