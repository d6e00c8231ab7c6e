#include "conversions/HRFString+FileNames.h"

#include <algorithm>

QString HRFStringByStrippingCharactersInSet(const QString &string, const HRFCharacterSet &set)
{
    const auto isInSet = [&](QChar character) { return set.test(character.unicode()); };
    if (std::ranges::none_of(string, isInSet))
        return string;
    QString stripped = string;
    stripped.removeIf(isInSet);
    return stripped;
}

QString HRFSanitizedFileNameString(const QString &string)
{
    return QString(string).replace(u'/', u':');
}

QString HRFUnDotPrefixedString(const QString &string)
{
    const auto start =
        std::ranges::find_if(string, [](QChar character) { return character != u'.'; });
    return string.sliced(start - string.begin());
}
