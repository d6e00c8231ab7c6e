#include "tags/MP4ItemFactory.h"

#include <taglib/mp4atom.h>

#include <cstring>
#include <type_traits>

using namespace TagLib;

namespace {

/// The data type as the file states it, which need not be one that the enumeration has.
int dataType(const MP4::AtomData &value)
{
    std::underlying_type_t<MP4::AtomDataType> type{};
    static_assert(sizeof type == sizeof value.type);
    std::memcpy(&type, &value.type, sizeof type);
    return static_cast<int>(type);
}

/// Well-known data types: QuickTime File Format, table "Well-known types".
bool isText(const MP4::AtomData &value)
{
    switch (dataType(value)) {
    case MP4::TypeUTF8:
    case MP4::TypeUTF16:
    case MP4::TypeURL:
        return true;
    case MP4::TypeImplicit:
        return value.data.isEmpty() || value.data.at(0) != '\0';
    default:
        return false;
    }
}

String text(const MP4::AtomData &value)
{
    if (dataType(value) == MP4::TypeUTF16)
        return {value.data, String::UTF16BE};
    const String result(value.data, String::UTF8);
    // TagLib makes an empty text of what is not UTF-8.
    const bool isUTF8 = !result.isEmpty() || value.data.isEmpty() || value.data.at(0) == '\0';
    return isUTF8 ? result : String(value.data, String::Latin1);
}

MP4::Item textItem(const MP4::AtomDataList &values)
{
    StringList texts;
    for (const MP4::AtomData &value : values)
        if (isText(value))
            texts.append(text(value));
    return texts.isEmpty() ? MP4::Item() : MP4::Item(texts);
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The number takes as many bytes as its writer chose; some writers make a text of it.
MP4::Item numberItem(const MP4::AtomDataList &values)
{
    if (values.isEmpty())
        return {};
    const ByteVector &bytes = values.front().data;
    if (dataType(values.front()) == MP4::TypeUTF8 && std::ranges::all_of(bytes, isDigit))
        return textItem(values);
    if (bytes.size() == 8)
        return {bytes.toLongLong()};
    if (bytes.isEmpty() || bytes.size() > 4)
        return {};
    return {static_cast<long long>(bytes.toUInt(0, bytes.size(), true))};
}

} // namespace

std::pair<String, MP4::Item> MP4ItemFactory::parseItem(const MP4::Atom *atom,
                                                       const ByteVector &data) const
{
    auto [key, item] = readItem(atom, data);
    if (!item.isValid()) {
        key = keyOfUnreadable(key);
        item = MP4::Item(ByteVectorList());
    }
    m_atoms[key].push_back({atom->name(), data});
    return {key, item};
}

std::pair<String, MP4::Item> MP4ItemFactory::readItem(const MP4::Atom *atom,
                                                      const ByteVector &data) const
{
    switch (handlerTypeForName(atom->name())) {
    case ItemHandlerType::Text:
        return {atom->name(), textItem(parseData2(atom, data))};
    case ItemHandlerType::Int:
    case ItemHandlerType::UInt:
    case ItemHandlerType::LongLong:
    case ItemHandlerType::Byte:
        return {atom->name(), numberItem(parseData2(atom, data))};
    case ItemHandlerType::FreeForm: {
        MP4::AtomDataList values = parseData2(atom, data, -1, true);
        auto result = parseFreeForm(atom, data);
        if (!result.second.isValid())
            return result;
        values.erase(values.begin()); // the two parts of the name
        values.erase(values.begin());
        if (const MP4::Item texts = textItem(values); texts.isValid())
            result.second = texts;
        return result;
    }
    default:
        return ItemFactory::parseItem(atom, data);
    }
}

ByteVector MP4ItemFactory::renderItem(const String &key, const MP4::Item &item) const
{
    const auto found = m_atoms.find(key);
    if (found == m_atoms.end())
        return ItemFactory::renderItem(key, item);
    ByteVector result;
    for (const Atom &atom : found->second)
        result.append(renderAtom(atom.name, atom.data));
    return result;
}

/// TagLib would make the map for every factory, that is, for every file.
MP4ItemFactory::NameHandlerMap MP4ItemFactory::nameHandlerMap() const
{
    static const NameHandlerMap map = ItemFactory::nameHandlerMap();
    return map;
}

String MP4ItemFactory::keyOfUnreadable(const String &key)
{
    return key + String(std::wstring(1, L'\uE000'));
}
