// What is particular to MP4 files.

#include "formats/HRFFormatFile.h"
#include "tags/MP4MetaData.h"

#include <taglib/mp4file.h>

using namespace Qt::StringLiterals;
using namespace TagLib;
using K = HRFTagKey;

namespace {

template <class Change> void changeNatively(const HRFFormatFile &file, const Change &change)
{
    MP4::File native(file.path().constData());
    change(*native.tag());
    ASSERT_TRUE(native.save());
}

MP4::Item nativeItem(const HRFFormatFile &file, const char *atom)
{
    return MP4::File(file.path().constData()).tag()->item(atom);
}

std::pair<int, int> nativePair(const HRFFormatFile &file, const char *atom)
{
    const MP4::Item::IntPair pair = nativeItem(file, atom).toIntPair();
    return {pair.first, pair.second};
}

} // namespace

TEST(MP4Rules, ReadsPairs)
{
    const HRFFormatFile file("aac.m4a");
    const struct
    {
        int number, total;
        QVariant readNumber, readTotal;
    } cases[] = {{0, 0, 0LL, 0LL}, {7, 0, 7LL, {}}, {0, 12, {}, 12LL}, {7, 12, 7LL, 12LL}};
    for (const auto &[number, total, readNumber, readTotal] : cases) {
        changeNatively(file, [number, total](MP4::Tag &tag) {
            tag.setItem("trkn", MP4::Item(number, total));
            tag.setItem("disk", MP4::Item(number, total));
        });
        EXPECT_EQ(file.value(K::trackNumber), readNumber) << number << '/' << total;
        EXPECT_EQ(file.value(K::trackTotal), readTotal) << number << '/' << total;
        EXPECT_EQ(file.value(K::discNumber), readNumber) << number << '/' << total;
        EXPECT_EQ(file.value(K::discTotal), readTotal) << number << '/' << total;
    }
}

TEST(MP4Rules, RemovesAnEmptiedPair)
{
    const HRFFormatFile file("aac.m4a");
    file.set({{K::trackNumber, 1LL}, {K::trackTotal, 2LL}});
    EXPECT_EQ(nativePair(file, "trkn"), std::pair(1, 2));
    file.set({{K::trackNumber, 0LL}, {K::trackTotal, QVariant()}});
    EXPECT_FALSE(nativeItem(file, "trkn").isValid());
}

TEST(MP4Rules, KeepsTheDiscTotalInThePairOnly)
{
    const HRFFormatFile file("aac.m4a");
    changeNatively(file, [](MP4::Tag &tag) {
        tag.setItem("----:com.apple.iTunes:DISCTOTAL", StringList("9"));
        tag.setItem("disk", MP4::Item(1, 3));
    });
    EXPECT_EQ(file.value(K::discTotal), 3);
    file.set(K::discTotal, 4LL);
    EXPECT_EQ(nativePair(file, "disk"), std::pair(1, 4));
}

TEST(MP4Rules, WritesEachAtomInItsType)
{
    const HRFFormatFile file("no-udta.m4a");
    file.set({{K::bpm, 128LL},
              {K::rating, 300LL},
              {K::movementNumber, 2LL},
              {K::movementTotal, 3LL},
              {K::isPodcast, true},
              {K::isPartOfACompilation, true},
              {K::isrc, u"X"_s}});
    using enum MP4::Item::Type;
    const struct
    {
        const char *atom;
        MP4::Item::Type type;
        int value;
    } cases[] = {{"tmpo", Int, 128},
                 {"rtng", Byte, 255},
                 {"\251mvi", Int, 2},
                 {"\251mvc", Int, 3},
                 {"pcst", Bool, 1},
                 {"cpil", Bool, 1},
                 {"----:com.apple.iTunes:ISRC", StringList, 0}};
    for (const auto &[atom, type, value] : cases) {
        const MP4::Item item = nativeItem(file, atom);
        EXPECT_EQ(item.type(), type) << atom;
        EXPECT_EQ(type == Byte       ? item.toByte()
                      : type == Bool ? item.toBool()
                                     : item.toInt(),
                  value)
            << atom;
    }
    EXPECT_EQ(file.value(K::rating), 255);
    file.set({{K::isPartOfACompilation, false}, {K::rating, 0LL}});
    EXPECT_FALSE(nativeItem(file, "cpil").isValid());
    EXPECT_FALSE(nativeItem(file, "rtng").isValid());
    EXPECT_EQ(file.value(K::isPartOfACompilation), QVariant());
}

TEST(MP4Rules, ReadsTheFirstOfSeveralTextsAndListsAll)
{
    const HRFFormatFile file("aac.m4a");
    changeNatively(file, [](MP4::Tag &tag) {
        tag.setItem("\251ART", TagLib::StringList("one").append("two"));
        tag.setItem("tmpo", MP4::Item(120));
    });
    const auto engine = file.open();
    EXPECT_EQ(engine->artist(), u"one"_s);
    EXPECT_EQ(engine->framesCount(), 3);
    EXPECT_EQ(
        engine->frames(),
        (QList<HRFFrameDescription>{{u"©ART"_s, u"one, two"_s}, {u"©nam"_s, u"MP4 title"_s}}));
    EXPECT_EQ(dynamic_cast<MP4MetaData &>(*engine).stringForTag("tmpo"), u""_s);
    EXPECT_EQ(HRFFormatFile("no-udta.m4a").open()->frames(), HRFFrameList());
}

TEST(MP4Rules, TypesCoversByTheirFirstByte)
{
    const HRFFormatFile file("aac.m4a");
    using enum MP4::CoverArt::Format;
    for (const auto &[data, format] :
         {std::pair(HRFSampleJPEG, JPEG), {HRFSamplePNG, PNG}, {HRFSampleGIF, Unknown}}) {
        file.set(K::artwork, data);
        const MP4::CoverArtList covers = nativeItem(file, "covr").toCoverArtList();
        EXPECT_EQ(covers.size(), 1U);
        EXPECT_EQ(covers.front().format(), format);
    }
}

TEST(MP4Rules, KeepsChapters)
{
    const HRFFormatFile file("chapters.m4b");
    const QByteArray before = file.bytes();
    const QByteArray chapters = before.mid(before.indexOf("chpl"), 40);
    file.set(K::title, u"A title"_s);
    EXPECT_TRUE(file.bytes().contains(chapters));
    file.strip();
    EXPECT_TRUE(file.bytes().contains(chapters));
}

TEST(MP4Rules, RefusesToSaveWithADamagedOffsetTable)
{
    for (const auto &[fixture, table] : {std::pair("aac.m4a", "stco"), {"co64.m4a", "co64"}}) {
        const HRFFormatFile file(fixture);
        QByteArray bytes = file.bytes();
        bytes.replace(bytes.indexOf(table) + 8, 2, "\x0F\xFF", 2);
        file.setBytes(bytes);
        const auto result = file.trySet({{K::title, u"A longer title than before"_s}});
        ASSERT_FALSE(result) << fixture;
        EXPECT_TRUE(result.error().fullText().contains(u"chunk offsets"_s)) << fixture;
        EXPECT_TRUE(file.bytes() == bytes) << fixture;
    }
}
