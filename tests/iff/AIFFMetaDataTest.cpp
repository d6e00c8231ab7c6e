#include "tags/AIFFMetaData.h"

#include "iff/IFFTestFile.h"

namespace {

using namespace IFFTest;

std::string chunk(const char *name, const std::string &contents)
{
    const std::string padding(contents.size() % 2, '\0');
    return name + number(contents.size(), 4, true) + contents + padding;
}

std::string file(const std::string &chunks)
{
    const std::string common =
        chunk("COMM", literal("\0\1\0\0\x1F\x40\0\x10\x40\x0B\xFA\0\0\0\0\0\0\0"));
    return chunk("FORM", "AIFF" + common + chunks);
}

std::string sound()
{
    return chunk("SSND", std::string(8, '\0') + audio());
}

std::vector<Case> cases()
{
    const char *brokenOff =
        "The file has audio behind its last chunk; its recording was broken off.";
    const std::string first = chunk("ID3 ", ID3({{"TIT2", "First"}}));
    return {
        {"Plain", file(sound() + chunk("NAME", "odd")), "", {"NAME"}},
        {"NoSoundSize", file("SSND" + number(0, 4, true) + audio()), brokenOff},
        {"SmallSoundSize", file("SSND" + number(4008, 4, true) + audio()), brokenOff},
        {"Truncated", file("SSND" + number(20000, 4, true) + audio()), "The file is truncated."},
        {"ShortJunk", file(sound()) + std::string(300, '\1'), "", {std::string(300, '\1')}},
        {"LongJunk", file(sound()) + std::string(9000, '\1'), brokenOff},
        {"MoreFrames",
         file(sound() + first + chunk("id3 ", ID3({{"TPE1", "Second"}}))),
         "",
         {"First", "Second"}},
        {"OtherFrames", file(sound() + first + chunk("id3 ", ID3({{"TIT2", "Second"}}))),
         "It has several ID3v2 tags that differ; one would be lost."},
        {"OtherFrames",
         file(sound() + first + chunk("id3 ", ID3({{"TIT2", "Second"}}))),
         "",
         {},
         true,
         {"First", "Second"}},
        {"CutOffTag",
         file(sound() + chunk("ID3 ", ID3({{"TIT2", "First"}}).substr(0, 18))
              + chunk("ANNO", "more than the tag is short of")),
         "Its ID3v2 tag is cut off; a part of it would be lost."},
    };
}

class AIFFMetaDataTest : public testing::TestWithParam<Case>
{
};

TEST_P(AIFFMetaDataTest, KeepsFile)
{
    run(AIFFMetaData::metadataClass, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Files, AIFFMetaDataTest, testing::ValuesIn(cases()), nameOf);

TEST(AIFFMetaDataTest, RefusesMoreThan4GiB)
{
    constexpr qint64 size = 0xFFFFFFF0;
    std::string bytes = file("SSND");
    bytes += number(quint64(size) - bytes.size() - 4, 4, true);
    const std::string before = bytes;
    const auto engine = open(AIFFMetaData::metadataClass, bytes, size);
    ASSERT_TRUE(engine.has_value());
    EXPECT_EQ(change(**engine, false),
              "The file would be larger than 4 GiB, more than its format can hold.");
    EXPECT_EQ(bytes, before);
}

} // namespace
