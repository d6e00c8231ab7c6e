#include "corpus/HRFCorpusUTF16.h"

#include <QString>

#include <cstddef>

std::string HRFUTF16WithMark(std::string_view utf8)
{
    std::string bytes = "\xFF\xFE";
    for (const QChar unit : QString::fromUtf8(QByteArrayView(utf8))) {
        bytes += static_cast<char>(unit.cell());
        bytes += static_cast<char>(unit.row());
    }
    return bytes;
}
