#include "tags/HRFMapManager.h"

#include "support/HRFSettings.h"
#include "tags/HRFFrameRows.h"
#include "tags/HRFTagEngine.h"

#include <gtest/gtest.h>

#include <cstdlib>

using namespace Qt::StringLiterals;
using K = HRFTagKey;

namespace {

struct Row
{
    const char *(*lookUp)(K key);
    K key;
    const char *field; ///< nullptr: none
};

constexpr auto ID3 = HRFTagEngine::ID3FrameForKey;
constexpr auto ID3v2_4 = HRFTagEngine::ID3v2_4FrameForKey;
constexpr auto MP4 = HRFTagEngine::atomNameForKey;
constexpr auto APE = HRFTagEngine::APEFrameForKey;
constexpr auto Vorbis = HRFTagEngine::xiphTagNameForKey;
constexpr auto INFO = HRFTagEngine::INFOChunkIDForKey;

// clang-format off
constexpr Row rows[] = {
    {ID3, K::title, "TIT2"}, {ID3, K::trackTotal, "TRCK"}, {ID3, K::originalReleaseDate, "TORY"},
    {ID3, K::involvedPeopleList, "IPLS"}, {ID3, K::date, "TDRC"}, {ID3, K::bitRate, nullptr},
    {ID3v2_4, K::originalReleaseDate, "TDOR"}, {ID3v2_4, K::involvedPeopleList, "TIPL"},
    {ID3v2_4, K::title, "TIT2"}, {MP4, K::artist, "\251ART"},
    {MP4, K::key, "----:com.apple.iTunes:INITIALKEY"}, {MP4, K::trackTotal, "trkn"},
    {APE, K::trackTotal, "TOTALTRACKS"}, {APE, K::encoderSettings, "ENCODING"},
    {APE, K::comment, "COMMENT"}, {APE, K::artwork, "COVER ART (FRONT)"},
    {Vorbis, K::trackNumber, "TRACKNUMBER"}, {Vorbis, K::trackTotal, "TRACKTOTAL"},
    {Vorbis, K::comment, "DESCRIPTION"}, {Vorbis, K::artwork, "METADATA_BLOCK_PICTURE"},
    {Vorbis, K::year, "DATE"}, {Vorbis, K::rating, "RATING"}, {INFO, K::year, "ICRD"},
    {INFO, K::date, "DATE"}, {INFO, K::discNumber, "IFRM"}, {INFO, K::lyrics, nullptr},
};
// clang-format on

/// Grouping and work in the base table, then in that of ID3v2.4.
std::vector<std::string> dependentFrames()
{
    return {ID3(K::grouping), ID3(K::work), ID3v2_4(K::grouping), ID3v2_4(K::work)};
}

/// Whether a process that starts with the preference on keeps the ID3v2.4 rows when it goes off.
bool keepsRowsOfStartUp()
{
    const QString key = u"lirra.tagging.iTunesID3v2Compatibility"_s;
    HRFUserDefaults::standard().setOverride(true, key);
    if (dependentFrames() != std::vector<std::string>{"GRP1", "TIT1", "GRP1", "TIT1"})
        return false;
    HRFUserDefaults::standard().setOverride(false, key);
    HRFMapManager::sharedMapManager().updateMappingPreferences();
    return dependentFrames() == std::vector<std::string>{"TIT1", "TXXX", "GRP1", "TIT1"};
}

} // namespace

TEST(HRFMapManager, NamesTheFieldsOfEveryFormat)
{
    for (const Row &row : rows)
        EXPECT_STREQ(row.lookUp(row.key), row.field) << int(row.key);
}

TEST(HRFMapManager, DescribesEveryField)
{
    const auto &descriptions = HRFMapManager::frameDescriptions();
    for (const HRFFrameRow &row : HRFFrameRows) {
        const QString name = row.key == K::date
            ? u"date"_s
            : HRFTagProperties::propertyNames().at(qsizetype(row.key));
        EXPECT_FALSE(descriptions.value(name).isEmpty()) << qPrintable(name);
    }
}

TEST(HRFMapManager, SwitchesTheCompatibleFramesAtRunTime)
{
    HRFSettings settings;
    const auto before = dependentFrames();
    EXPECT_EQ(before[0], "TIT1");
    EXPECT_EQ(before[1], "TXXX");
    settings.set("iTunesID3v2Compatibility", true);
    EXPECT_EQ(dependentFrames(), (std::vector<std::string>{"GRP1", "TIT1", before[2], before[3]}));
}

// The tables are made once in a process, so this takes one of its own.
TEST(HRFMapManagerDeathTest, TakesThePreferenceOfStartUpForID3v24)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::_Exit(keepsRowsOfStartUp() ? 0 : 1), testing::ExitedWithCode(0), "");
}
