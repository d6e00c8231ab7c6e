#pragma once

#include <taglib/mp4itemfactory.h>

#include <map>
#include <vector>

/// Makes the items of one MP4 tag while TagLib parses it.
///
/// Unlike TagLib's own factory it remembers the atoms that each item was read from and writes them
/// as they are, so that nothing in them is lost unless the item gets another value: further atoms
/// of the same name, data that cannot be read, and every detail that TagLib has no place for.
class MP4ItemFactory final : public TagLib::MP4::ItemFactory
{
public:
    std::pair<TagLib::String, TagLib::MP4::Item>
    parseItem(const TagLib::MP4::Atom *atom, const TagLib::ByteVector &data) const override;
    TagLib::ByteVector renderItem(const TagLib::String &key,
                                  const TagLib::MP4::Item &item) const override;

    /// To be called when the item gets another value: that is written instead of its atoms.
    void forgetAtoms(const TagLib::String &key) { m_atoms.erase(key); }

    /// To be called before the tag is parsed anew.
    void forgetAllAtoms() { m_atoms.clear(); }

    /// The key of the item that stands for the atoms of a name that cannot be read.
    static TagLib::String keyOfUnreadable(const TagLib::String &key);

protected:
    NameHandlerMap nameHandlerMap() const override;

private:
    struct Atom
    {
        TagLib::ByteVector name;
        TagLib::ByteVector data;
    };

    std::pair<TagLib::String, TagLib::MP4::Item> readItem(const TagLib::MP4::Atom *atom,
                                                          const TagLib::ByteVector &data) const;

    mutable std::map<TagLib::String, std::vector<Atom>> m_atoms; ///< by key
};
