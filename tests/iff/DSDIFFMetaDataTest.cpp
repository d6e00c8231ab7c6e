#include "tags/DSDIFFMetaData.h"

#include "iff/IFFTestFile.h"

namespace {

using namespace IFFTest;

std::string chunk(const char *name, const std::string &contents)
{
    const std::string padding(contents.size() % 2, '\0');
    return name + number(contents.size(), 8, true) + contents + padding;
}

std::string file(const std::string &chunks)
{
    return chunk("FRM8", "DSD " + chunks);
}

std::string properties(const std::string &more = "")
{
    return chunk("FVER", literal("\1\5\0\0"))
        + chunk("PROP",
                "SND " + chunk("FS  ", number(2822400, 4, true))
                    + chunk("CHNL", literal("\0\2SLFTSRGT")) + more);
}

std::string tag(const char *title)
{
    return chunk("ID3 ", ID3({{"TIT2", title}}));
}

std::string field(const char *name, const std::string &value)
{
    return chunk(name, number(value.size(), 4, true) + value);
}

std::string information()
{
    return chunk("DIIN", field("EMID", "Mark") + field("DITI", "Song") + field("DIAR", "Artist"));
}

std::string withoutLastByte(std::string bytes)
{
    bytes.pop_back();
    return bytes;
}

std::vector<Case> tagCases()
{
    const std::string sound = chunk("DSD ", audio());
    const char *several = "It has several ID3v2 tags; all but one would be lost.";
    const std::string all = properties(tag("Inner")) + information() + sound + tag("Root");
    return {
        {"Plain", file(properties() + sound)},
        {"TagFirst",
         file(tag("First") + properties() + information() + sound),
         "",
         {"First", "Song", "Artist"}},
        {"TagFirst",
         file(tag("First") + properties() + information() + sound),
         "",
         {"Mark"},
         true,
         {"ID3 ", "First"}},
        {"TagInPROP", file(properties(tag("Inner")) + information() + sound), "", {"Inner"}},
        {"TagInPROP",
         file(information() + properties(tag("Inner")) + sound),
         "",
         {},
         true,
         {"Inner"}},
        {"RootAndPROP", file(all), several},
        {"RootAndPROP", file(all), "", {"Mark"}, true, {"Inner", "Root"}},
        {"TwoTags", file(properties() + sound + tag("First") + tag("Second")), several},
        {"TwoTags",
         file(properties() + sound + tag("First") + tag("Second")),
         "",
         {},
         true,
         {"First", "Second"}},
    };
}

std::vector<Case> structureCases()
{
    const std::string sound = chunk("DSD ", audio());
    const std::string lie = chunk("DIIN", chunk("DITI", number(4000, 4, true) + "Song"));
    const std::string endless = chunk("PROP",
                                      "SND "
                                      "loop"
                                          + number(quint64(-12), 8, true));
    const char *unknown = "It does not contain DSDIFF audio";
    return {
        {"TextTooLong", file(properties() + lie + sound), "", {lie}},
        {"TextTooLong", file(properties() + lie + sound), "", {lie}, true, {}},
        {"TagCutOff",
         file(properties() + sound + chunk("ID3 ", ID3({{"TIT2", "T"}}).substr(0, 18))
              + chunk("COMT", "more than the tag is short of")),
         "Its ID3v2 tag is cut off; a part of it would be lost."},
        {"Trailing", file(properties() + sound) + "JUNK", "", {"JUNK"}},
        {"OddEnd", withoutLastByte(file(properties() + chunk("DSD ", audio(15999))))},
        {"OtherContainer", "XXXX" + file(properties() + sound).substr(4), unknown},
        {"OtherForm", chunk("FRM8", "AIFF" + properties() + sound), unknown},
        {"Endless", file(endless + sound), "Its chunks are damaged"},
    };
}

class DSDIFFMetaDataTest : public testing::TestWithParam<Case>
{
};

TEST_P(DSDIFFMetaDataTest, KeepsFile)
{
    const std::string bytes = run(DSDIFFMetaData::metadataClass, GetParam());
    const std::size_t trailing = bytes.ends_with("JUNK") ? 4 : 0;
    if (!*GetParam().reason) {
        EXPECT_EQ(bytes.substr(4, 8), number(bytes.size() - trailing - 12, 8, true));
    }
}

INSTANTIATE_TEST_SUITE_P(Tags, DSDIFFMetaDataTest, testing::ValuesIn(tagCases()), nameOf);
INSTANTIATE_TEST_SUITE_P(Structure, DSDIFFMetaDataTest, testing::ValuesIn(structureCases()),
                         nameOf);

TEST(DSDIFFMetaDataTest, WritesTexts)
{
    const std::string sound = chunk("DSD ", audio());
    const std::string odd = chunk("DIIN", field("EMID", "odd"));
    for (const std::string &more : {std::string(), information(), odd}) {
        std::string bytes = file(properties() + more + sound);
        const auto engine = open(DSDIFFMetaData::metadataClass, bytes);
        ASSERT_TRUE(engine.has_value());
        (*engine)->setValueForKey(QStringLiteral("Other"), HRFTagKey::title);
        ASSERT_TRUE((*engine)->updateFileWithError().has_value());
        EXPECT_THAT(bytes, testing::HasSubstr(field("DITI", "Other")));
        const auto again = open(DSDIFFMetaData::metadataClass, bytes);
        ASSERT_TRUE(again.has_value());
        EXPECT_EQ(text(**again, HRFTagKey::artist), more == information() ? "Artist" : "");
    }
}

} // namespace
