#pragma once

#include <taglib/id3v2frame.h>
#include <taglib/tstringlist.h>

#include <string_view>

/// A frame that the program shows but never changes: its content is saved byte for byte, while
/// TagLib would make it anew from what it has understood of it.
class ID3KeptFrame final : public TagLib::ID3v2::Frame
{
public:
    /// Whether frames with the identifier are of this kind.
    ///
    /// @param firstByte of the content: a text encoding that ID3v2.3 lacks must not be kept
    static bool isMeantFor(std::string_view frameID, char firstByte);

    /// @param frame what TagLib has made of the frame
    /// @param data bytes that begin with the frame, without format flags (ID3v2.4.0 structure
    ///        §4.1.2), of a tag of @p version
    ID3KeptFrame(const Frame &frame, const TagLib::ByteVector &data, unsigned int version);

    TagLib::String toString() const override { return m_texts.toString(" "); }
    TagLib::StringList toStringList() const override { return m_texts; }

protected:
    void parseFields(const TagLib::ByteVector &) override { }
    TagLib::ByteVector renderFields() const override { return m_content; }

private:
    TagLib::StringList m_texts;
    TagLib::ByteVector m_content;
};
