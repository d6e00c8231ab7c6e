#include "tags/WAVMetaData.h"

#include "iff/IFFTestFile.h"

namespace {

using namespace IFFTest;

std::string chunk(const char *name, const std::string &contents)
{
    const std::string padding(contents.size() % 2, '\0');
    return name + number(contents.size(), 4, false) + contents + padding;
}

std::string file(const std::string &chunks)
{
    const std::string format = chunk("fmt ", literal("\1\0\1\0\x40\x1F\0\0\x80\x3E\0\0\2\0\x10\0"));
    return chunk("RIFF", "WAVE" + format + chunks);
}

std::string data()
{
    return chunk("data", audio());
}

std::string info(const std::string &fields)
{
    return chunk("LIST", "INFO" + fields);
}

std::vector<Case> structureCases()
{
    const char *brokenOff =
        "The file has audio behind its last chunk; its recording was broken off.";
    const std::string broken = file("data" + number(0, 4, false) + audio());
    std::string unsized = broken;
    unsized.replace(4, 4, 4, '\0');
    return {
        {"Plain", file(data())},
        {"OddEnd", file(chunk("data", audio(15999))), "", {}},
        {"NoDataSize", broken, brokenOff},
        {"NoSizes", unsized, brokenOff},
        {"NoSizes", unsized, brokenOff, {}, true},
        {"SmallDataSize", file("data" + number(4000, 4, false) + audio()), brokenOff},
        {"LargeDataSize", file("data" + number(20000, 4, false) + audio()),
         "The file is truncated."},
        {"ShortJunk", file(data()) + "\1\2\3junk", "", {"\1\2\3junk"}},
        {"LongJunk", file(data()) + std::string(9000, '\1'), brokenOff},
        {"RF64", "RF64" + file(data()).substr(4), "RF64 files are not supported"},
        {"BW64", "BW64" + file(data()).substr(4), "RF64 files are not supported"},
        {"NotWave", "RIFX" + file(data()).substr(4), "It does not contain WAVE audio"},
    };
}

std::vector<Case> infoCases()
{
    const std::string first = chunk("IART", literal("First\0"));
    const std::string second = chunk("IART", literal("Second\0"));
    const std::string title = chunk("INAM", literal("Title\0"));
    const char *twice = "It has an INFO field twice; one of them would be lost.";
    const char *damaged = "Its INFO list is damaged; a part of it would be lost.";
    return {
        {"UTF8",
         file(data() + info(chunk("IART", literal("Bj\xC3\xB6rk\0")))),
         "",
         {"Bj\xC3\xB6rk"}},
        {"Latin1", file(data() + info(chunk("IART", literal("Bj\xF6rk\0")))), "", {"Bj\xC3\xB6rk"}},
        {"Latin1End",
         file(data() + info(chunk("IART", literal("Caf\xE9\0")))),
         "",
         {"Caf\xC3\xA9"}},
        {"Windows1252",
         file(data() + info(chunk("IART", literal("\x80uro\0")))),
         "",
         {"\xE2\x82\xACuro"}},
        {"BehindNUL", file(data() + info(chunk("IART", literal("Art\0\xFF\xFF")))), "", {"Art"}},
        {"TwoLists", file(info(first) + data() + info(title)), "", {"First", "Title"}},
        {"EqualFields", file(data() + info(first + first)), "", {"First"}},
        {"TwoFields", file(data() + info(first + second)), twice},
        {"TwoFieldsInTwoLists", file(info(first) + data() + info(second)), twice},
        {"TwoFields", file(info(first) + data() + info(second)), "", {}, true, {"First", "Second"}},
        {"UnpaddedField",
         file(data() + info("IART" + number(3, 4, false) + "Art" + title)),
         "",
         {"Art", "Title"}},
        {"FieldTooLong", file(data() + info(first + "INAM" + number(900, 4, false) + "Title")),
         damaged},
        {"ZerosInList", file(data() + info(first + std::string(20, '\0'))), "", {"First"}},
        {"OtherList", file(chunk("LIST", "adtlmark") + data()), "", {"adtlmark"}},
    };
}

std::vector<Case> ID3Cases()
{
    const std::string tag = chunk("ID3 ", ID3({{"TIT2", "First"}}));
    const char *differ = "It has several ID3v2 tags that differ; one would be lost.";
    return {
        {"MoreFrames",
         file(data() + tag + chunk("id3 ", ID3({{"TPE1", "Second"}}))),
         "",
         {"First", "Second"}},
        {"EqualTags", file(data() + tag + chunk("id3 ", ID3({{"TIT2", "First"}}))), "", {"First"}},
        {"OtherFrames", file(data() + tag + chunk("id3 ", ID3({{"TIT2", "Second"}}))), differ},
        {"SameName", file(data() + tag + chunk("ID3 ", ID3({{"TIT2", "Second"}}))), differ},
        {"CutOffTag",
         file(data() + chunk("ID3 ", ID3({{"TIT2", "First"}}).substr(0, 18))
              + chunk("note", "more than the tag is short of")),
         "Its ID3v2 tag is cut off; a part of it would be lost."},
        {"NoTagInChunk", file(data() + chunk("ID3 ", literal("tagged\0\0\0\1else"))),
         "Its ID3v2 tag is damaged; a part of it would be lost."},
    };
}

class WAVMetaDataTest : public testing::TestWithParam<Case>
{
};

TEST_P(WAVMetaDataTest, KeepsFile)
{
    run(WAVMetaData::metadataClass, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Structure, WAVMetaDataTest, testing::ValuesIn(structureCases()), nameOf);
INSTANTIATE_TEST_SUITE_P(Info, WAVMetaDataTest, testing::ValuesIn(infoCases()), nameOf);
INSTANTIATE_TEST_SUITE_P(ID3, WAVMetaDataTest, testing::ValuesIn(ID3Cases()), nameOf);

TEST(WAVMetaDataTest, RefusesMoreThan4GiB)
{
    constexpr qint64 size = 0xFFFFFFF0;
    std::string bytes = file("data");
    bytes += number(quint64(size) - bytes.size() - 4, 4, false);
    const std::string before = bytes;
    const auto engine = open(WAVMetaData::metadataClass, bytes, size);
    ASSERT_TRUE(engine.has_value());
    EXPECT_EQ(change(**engine, false),
              "The file would be larger than 4 GiB, more than its format can hold.");
    EXPECT_EQ(bytes, before);
}

TEST(WAVMetaDataTest, ReadsTextsInEitherEncoding)
{
    for (const std::string &artist : {literal("Bj\xF6rk\0"), literal("Bj\xC3\xB6rk\0")}) {
        std::string bytes = file(data() + info(chunk("IART", artist)));
        const auto engine = open(WAVMetaData::metadataClass, bytes);
        ASSERT_TRUE(engine.has_value());
        EXPECT_EQ(text(**engine, HRFTagKey::artist), "Bj\xC3\xB6rk");
    }
}

} // namespace
