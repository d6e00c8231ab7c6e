#include "tags/TagLibText.h"

#include <algorithm>

namespace TagLibText {

QString toQString(const TagLib::String &text)
{
    QString result(qsizetype(text.size()), Qt::Uninitialized);
    std::ranges::transform(text, result.begin(),
                           [](wchar_t unit) { return QChar(static_cast<char16_t>(unit)); });
    return result;
}

TagLib::String toTagString(const QString &text)
{
    std::wstring units(std::size_t(text.size()), L'\0');
    std::ranges::transform(text, units.begin(), [](QChar unit) { return wchar_t(unit.unicode()); });
    return TagLib::String(units);
}

} // namespace TagLibText
