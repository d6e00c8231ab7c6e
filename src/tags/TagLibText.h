#pragma once

#include <QByteArray>
#include <QString>
#include <taglib/tbytevector.h>
#include <taglib/tstring.h>

/// Conversions between the program's texts and data and TagLib's.
namespace TagLibText {

/// TagLib keeps UTF-16 code units in wide characters.
QString toQString(const TagLib::String &text);
TagLib::String toTagString(const QString &text);

inline QByteArray toQByteArray(const TagLib::ByteVector &data)
{
    return QByteArray(data.data(), qsizetype(data.size()));
}

inline TagLib::ByteVector toByteVector(const QByteArray &data)
{
    return TagLib::ByteVector(data.constData(), static_cast<unsigned int>(data.size()));
}

} // namespace TagLibText
