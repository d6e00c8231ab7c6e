#include "tags/ID3Genres.h"

#include <taglib/textidentificationframe.h>
#include <taglib/tstringlist.h>

using namespace TagLib;

namespace {

bool isReference(const String &code)
{
    constexpr int largestNumber = 255;
    bool isNumber = false;
    const int number = code.toInt(&isNumber);
    return (isNumber && number >= 0 && number <= largestNumber) || code == "RX" || code == "CR";
}

/// Takes the references off the front of a text.
StringList takeReferences(String &text)
{
    StringList codes;
    while (text.startsWith("(")) {
        const int end = text.find(")");
        const String code = text.substr(1, end < 0 ? 0 : static_cast<unsigned int>(end) - 1);
        if (!isReference(code))
            break;
        codes.append(code);
        text = text.substr(static_cast<unsigned int>(end) + 1);
    }
    return codes;
}

} // namespace

void ID3RestoreGenres(ID3v2::TextIdentificationFrame &frame, const StringList &texts)
{
    StringList genres;
    bool hasLost = false;
    for (String text : texts) {
        genres.append(takeReferences(text));
        hasLost = hasLost || text.startsWith("(");
        if (!text.isEmpty())
            genres.append(text);
    }
    if (hasLost)
        frame.setText(genres);
}
