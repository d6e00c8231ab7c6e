#include "corpus/HRFCorpusKind.h"

#include "corpus/HRFCorpusFLAC.h"
#include "corpus/HRFCorpusID3.h"
#include "corpus/HRFCorpusMP4.h"
#include "corpus/HRFCorpusMPEG.h"

#include <algorithm>
#include <numeric>
#include <span>

namespace {

constexpr std::size_t audioSize = 60 << 10;

template <HRFCorpusID3Version Version>
std::string mp3Contents(const HRFCorpusAlbum &album, const HRFCorpusTrack &track)
{
    return HRFMakeCorpusID3(album, track, Version) + HRFMakeCorpusMPEG(album.bitRate, audioSize);
}

template <auto Make> std::string contents(const HRFCorpusAlbum &album, const HRFCorpusTrack &track)
{
    return Make(album, track, audioSize);
}

constexpr HRFCorpusKind kinds[] = {
    {"mp3", 5, mp3Contents<HRFCorpusID3Version::v4>},
    {"flac", 2, contents<HRFMakeCorpusFLAC>},
    {"mp3", 2, mp3Contents<HRFCorpusID3Version::v3>},
    {"m4a", 1, contents<HRFMakeCorpusMP4>},
};

constexpr int sharesTotal =
    std::accumulate(std::begin(kinds), std::end(kinds), 0,
                    [](int sum, const HRFCorpusKind &kind) { return sum + kind.share; });

} // namespace

const HRFCorpusKind &HRFCorpusKindOfAlbum(int albumNumber)
{
    int place = albumNumber % sharesTotal;
    return *std::ranges::find_if(kinds, [&place](const HRFCorpusKind &kind) {
        place -= kind.share;
        return place < 0;
    });
}
