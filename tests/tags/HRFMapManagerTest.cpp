#include "tags/HRFMapManager.h"

#include "support/HRFTestFile.h"
#include "tags/HRFFrameRows.h"

using namespace Qt::StringLiterals;
using K = HRFTagKey;

TEST(HRFMapManager, NamesTheFieldsOfEveryFormat)
{
    constexpr auto ID3 = HRFTagEngine::ID3FrameForKey;
    constexpr auto ID3v2_4 = HRFTagEngine::ID3v2_4FrameForKey;
    constexpr auto MP4 = HRFTagEngine::atomNameForKey;
    constexpr auto APE = HRFTagEngine::APEFrameForKey;
    constexpr auto Vorbis = HRFTagEngine::xiphTagNameForKey;
    constexpr auto INFO = HRFTagEngine::INFOChunkIDForKey;
    // clang-format off
    const std::tuple<const char *(*)(K key), K, const char *> rows[] = {
        {ID3, K::title, "TIT2"}, {ID3, K::trackTotal, "TRCK"}, {ID3, K::bitRate, nullptr},
        {ID3, K::originalReleaseDate, "TORY"}, {ID3v2_4, K::originalReleaseDate, "TDOR"},
        {ID3, K::involvedPeopleList, "IPLS"}, {ID3v2_4, K::involvedPeopleList, "TIPL"},
        {ID3, K::date, "TDRC"}, {ID3v2_4, K::title, "TIT2"}, {MP4, K::artist, "\251ART"},
        {MP4, K::key, "----:com.apple.iTunes:INITIALKEY"}, {MP4, K::trackTotal, "trkn"},
        {APE, K::trackTotal, "TOTALTRACKS"}, {APE, K::encoderSettings, "ENCODING"},
        {APE, K::comment, "COMMENT"}, {APE, K::artwork, "COVER ART (FRONT)"},
        {Vorbis, K::trackNumber, "TRACKNUMBER"}, {Vorbis, K::trackTotal, "TRACKTOTAL"},
        {Vorbis, K::comment, "DESCRIPTION"}, {Vorbis, K::artwork, "METADATA_BLOCK_PICTURE"},
        {Vorbis, K::year, "DATE"}, {Vorbis, K::rating, "RATING"}, {INFO, K::year, "ICRD"},
        {INFO, K::date, "DATE"}, {INFO, K::discNumber, "IFRM"}, {INFO, K::lyrics, nullptr},
    };
    // clang-format on
    for (const auto &[lookUp, key, field] : rows)
        EXPECT_STREQ(lookUp(key), field) << int(key);
}

TEST(HRFMapManager, DescribesEveryField)
{
    for (const HRFFrameRow &row : HRFFrameRows) {
        const auto name = row.key == K::date
            ? u"date"_s
            : HRFTagProperties::propertyNames().at(qsizetype(row.key));
        EXPECT_FALSE(HRFMapManager::frameDescriptions().value(name).isEmpty()) << qPrintable(name);
    }
}
