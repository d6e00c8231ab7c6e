#include "tags/WAVInfo.h"

#include "tags/HRFTagStream.h"
#include "tags/TagLibText.h"

#include <QCoreApplication>
#include <QStringDecoder>
#include <taglib/infotag.h>

#include <algorithm>

using namespace TagLib;

namespace {

/// Windows-1252 where it differs from Latin-1, from 0x80 on.
constexpr char16_t windows1252[] =
    u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D\u017D"
    u"\u008F\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D"
    u"\u017E\u0178";

QString textFromWindows1252(QByteArrayView data)
{
    QString text = QString::fromLatin1(data);
    for (QChar &character : text)
        if (character >= u'\u0080' && character <= u'\u009F')
            character = windows1252[character.unicode() - 0x80];
    return text;
}

/// INFO texts end with a NUL (RIFF, "ZSTR").
QString textFromInfo(const ByteVector &bytes)
{
    const auto end = std::ranges::find(bytes, '\0');
    const QByteArrayView data(bytes.data(), end - bytes.begin());
    // A character that is cut off at the end is an error, too.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(data);
    return decoder.hasError() ? textFromWindows1252(data) : text;
}

QString tr(const char *text)
{
    return QCoreApplication::translate("WAVInfo", text);
}

bool isAllZero(const ByteVector &bytes)
{
    return std::ranges::all_of(bytes, [](char c) { return c == '\0'; });
}

/// Adds the fields of one list; answers like WAVReadInfo.
QString readList(HRFTagStream &stream, const IFFChunk &list, RIFF::Info::Tag &tag)
{
    QString obstacle;
    const qint64 end = list.offset + list.size;
    const IFFChunkList fields = IFFReadChunks(stream, RIFFLayout, list.offset + 4, end);
    for (const IFFChunk &field : fields.chunks) {
        const String text =
            TagLibText::toTagString(textFromInfo(IFFReadBytes(stream, field.offset, field.size)));
        const String known = tag.fieldText(field.name);
        if (known.isEmpty())
            tag.setFieldText(field.name, text);
        else if (!text.isEmpty() && text != known)
            obstacle = tr("It has an INFO field twice; one of them would be lost.");
    }
    if (!isAllZero(IFFReadBytes(stream, fields.end, end - fields.end)))
        obstacle = tr("Its INFO list is damaged; a part of it would be lost.");
    return obstacle;
}

} // namespace

QString WAVReadInfo(HRFTagStream &stream, std::span<const IFFChunk> chunks, RIFF::Info::Tag &tag)
{
    for (const auto &[name, text] : tag.fieldListMap())
        tag.removeField(name);
    QString obstacle;
    for (const IFFChunk &chunk : chunks) {
        if (chunk.name != "LIST" || IFFReadBytes(stream, chunk.offset, 4) != "INFO")
            continue;
        if (const QString found = readList(stream, chunk, tag); !found.isEmpty())
            obstacle = found;
    }
    return obstacle;
}
