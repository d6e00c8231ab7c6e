#include "tags/ID3UnionMetaData.h"

#include "tags/TagLibText.h"

#include <taglib/id3v1tag.h>

#include <algorithm>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

struct TextField
{
    HRFTagKey key;
    String (Tag::*read)() const;
    void (Tag::*write)(const String &);
};

struct NumberField
{
    HRFTagKey key;
    unsigned int (Tag::*read)() const;
    void (Tag::*write)(unsigned int);
};

constexpr TextField textFields[] = {
    {HRFTagKey::artist, &Tag::artist, &Tag::setArtist},
    {HRFTagKey::title, &Tag::title, &Tag::setTitle},
    {HRFTagKey::album, &Tag::album, &Tag::setAlbum},
    {HRFTagKey::genre, &Tag::genre, &Tag::setGenre},
    {HRFTagKey::comment, &Tag::comment, &Tag::setComment},
};

constexpr NumberField numberFields[] = {
    {HRFTagKey::year, &Tag::year, &Tag::setYear},
    {HRFTagKey::trackNumber, &Tag::track, &Tag::setTrack},
};

} // namespace

QVariant ID3UnionMetaData::secondValueForKey(HRFTagKey key) const
{
    const Tag *tag = ID3V1Tag();
    if (!tag)
        return {};
    if (const auto *field = std::ranges::find(textFields, key, &TextField::key);
        field != std::end(textFields)) {
        const String text = (tag->*field->read)();
        return text.isEmpty() ? QVariant() : QVariant(TagLibText::toQString(text));
    }
    if (const auto *field = std::ranges::find(numberFields, key, &NumberField::key);
        field != std::end(numberFields)) {
        const unsigned int number = (tag->*field->read)();
        return number == 0 ? QVariant() : QVariant(qlonglong(number));
    }
    return {};
}

void ID3UnionMetaData::setSecondValueForKey(const QVariant &value, HRFTagKey key)
{
    Tag *tag = ID3V1Tag();
    if (!tag)
        return;
    if (const auto *field = std::ranges::find(textFields, key, &TextField::key);
        field != std::end(textFields))
        (tag->*field->write)(TagLibText::toTagString(value.toString()));
    if (const auto *field = std::ranges::find(numberFields, key, &NumberField::key);
        field != std::end(numberFields))
        (tag->*field->write)(static_cast<unsigned int>(value.toLongLong()));
}

QString ID3UnionMetaData::secondTagVersion() const
{
    return ID3V1Tag() && !ID3V1Tag()->isEmpty() ? u"ID3v1"_s : QString();
}
