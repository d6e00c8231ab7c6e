#include "tags/DSFMetaData.h"

#include "iff/IFFTestFile.h"

namespace {

using namespace IFFTest;

constexpr quint64 tagStart = 28 + 52 + 12 + 8192;

/// A file with audio, whose header says what it is told to.
std::string file(quint64 fileSize, quint64 tagOffset, const std::string &tail = "",
                 quint64 audioSize = 12 + 8192)
{
    const auto number32 = [](quint64 value) { return number(value, 4, false); };
    const auto number64 = [](quint64 value) { return number(value, 8, false); };
    return "DSD " + number64(28) + number64(fileSize) + number64(tagOffset) + "fmt " + number64(52)
        + number32(1) + number32(0) + number32(2) + number32(2) + number32(2822400) + number32(1)
        + number64(32768) + number32(4096) + number32(0) + "data" + number64(audioSize)
        + audio(8192) + tail;
}

std::vector<Case> cases()
{
    const char *damaged = "Its header does not fit its contents.";
    const std::string tag = ID3({{"TIT2", "Title"}});
    const quint64 tagEnd = tagStart + tag.size();
    std::vector<Case> all = {
        {"NoTag", file(tagStart, 0)},
        {"Tag", file(tagEnd, tagStart, tag), "", {"Title"}},
        {"TagInAudio", file(tagStart, 200), damaged},
        {"NoTagAtOffset", file(tagStart + 8, tagStart, "whatever"), damaged},
        {"SizeZero", file(0, 0), damaged},
        {"SizeInAudio", file(4000, 0), damaged},
        {"SizeNegative", file(quint64(-5), 0), "It does not contain DSF audio"},
        {"NoAudioSize", file(tagStart, 0, "", 0), damaged},
        {"AudioNegative", file(tagStart, 0, "", quint64(-5)), damaged},
        {"AudioCutOff", file(tagStart, 0, "", 9000), "The file is truncated."},
        {"Trailing", file(tagStart, 0, "TRAILING"), "", {"TRAILING"}},
        {"TrailingBehindTag", file(tagEnd, tagStart, tag + "TRAILING"), "", {"TRAILING", "Title"}},
        {"TagCutOff", file(tagEnd - 5, tagStart, tag),
         "Its ID3v2 tag is cut off; a part of it would be lost."},
    };
    for (std::size_t i = 0, count = all.size(); i < count; ++i) {
        Case stripped = all[i];
        stripped.strips = true;
        stripped.gone = {"Title"};
        std::erase(stripped.kept, "Title");
        all.push_back(stripped);
    }
    return all;
}

class DSFMetaDataTest : public testing::TestWithParam<Case>
{
};

TEST_P(DSFMetaDataTest, KeepsAudio)
{
    const std::string bytes = run(DSFMetaData::metadataClass, GetParam());
    if (*GetParam().reason)
        return;
    const quint64 trailing = bytes.ends_with("TRAILING") ? 8 : 0;
    EXPECT_EQ(bytes.substr(12, 8), number(bytes.size() - trailing, 8, false));
    EXPECT_EQ(bytes.substr(20, 8), number(GetParam().strips ? 0 : tagStart, 8, false));
}

INSTANTIATE_TEST_SUITE_P(Files, DSFMetaDataTest, testing::ValuesIn(cases()), nameOf);

} // namespace
