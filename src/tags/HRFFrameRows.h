#pragma once

#include "tags/HRFTagKey.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

/// The native field names of one property in every tag format. An empty id3v24 or vorbis column
/// means the same as the base column (id3v2, ape); an empty base column means that the format has
/// no field.
struct HRFFrameRow
{
    HRFTagKey key;
    std::string_view id3v2; ///< ID3v2 frame identifier
    std::string_view id3v24; ///< where ID3v2.4 differs
    std::string_view mp4; ///< MP4 atom, Latin-1 (\251 is the copyright sign), or freeform atom
    std::string_view ape; ///< APE item key
    std::string_view vorbis; ///< where Vorbis comments differ from APE
    std::string_view info; ///< RIFF INFO chunk identifier
};

/// The only place where a native field name stands.
inline constexpr auto HRFFrameRows = [] {
    using K = HRFTagKey;
#define FREE "----:com.apple.iTunes:"
    // clang-format off
    return std::to_array<HRFFrameRow>({
        {K::originalAlbumTitle, "TOAL", "", FREE "ORIGINALALBUM", "ORIGINALALBUM", "", ""},
        {K::year, "TDRC", "", "\251day", "DATE", "", "ICRD"},
        {K::artist, "TPE1", "", "\251ART", "ARTIST", "", "IART"},
        {K::key, "TKEY", "", FREE "INITIALKEY", "KEY", "", ""},
        {K::albumArtist, "TPE2", "", "aART", "ALBUMARTIST", "", "IAAR"},
        {K::radioStationName, "TRSN", "", FREE "INTERNETSTATIONNAME", "INTERNETSTATIONNAME", "", ""},
        {K::involvedPeopleList, "IPLS", "TIPL", FREE "INVOLVEDPEOPLELIST", "INVOLVEDPEOPLELIST", "", ""},
        {K::sortAlbumArtist, "TSO2", "", "soaa", "ALBUMARTISTSORT", "", ""},
        {K::encoder, "TENC", "", "\251too", "ENCODEDBY", "", "ISFT"},
        {K::fileType, "TFLT", "", FREE "FILETYPE", "FILETYPE", "", ""},
        {K::genre, "TCON", "", "\251gen", "GENRE", "", "IGNR"},
        {K::date, "TDRC", "", "\251day", "DATE", "", "DATE"},
        {K::discTotal, "TPOS", "", FREE "DISCTOTAL", "DISCTOTAL", "", ""},
        {K::sortTitle, "TSOT", "", "sonm", "TITLESORT", "", ""},
        {K::originalArtist, "TOPE", "", "\251ope", "ORIGINALARTIST", "", ""},
        {K::rating, "POPM", "", "rtng", "RATING", "", "ISHP"},
        {K::isPartOfACompilation, "TCMP", "", "cpil", "PARTOFACOMPILATION", "", ""},
        {K::copyright, "TCOP", "", "cprt", "COPYRIGHT", "", "ICOP"},
        {K::title, "TIT2", "", "\251nam", "TITLE", "", "INAM"},
        {K::trackTotal, "TRCK", "", "trkn", "TOTALTRACKS", "TRACKTOTAL", ""},
        {K::trackNumber, "TRCK", "", "trkn", "TRACK", "TRACKNUMBER", "ITRK"},
        {K::sortComposer, "TSOC", "", "soco", "COMPOSERSORT", "", ""},
        {K::album, "TALB", "", "\251alb", "ALBUM", "", "IPRD"},
        {K::publisher, "TPUB", "", FREE "LABEL", "LABEL", "", "ICMS"},
        {K::encoderSettings, "TSSE", "", FREE "ENCODERSETTINGS", "ENCODING", "", ""},
        {K::length, "TLEN", "", FREE "LENGTH", "LENGTH", "", ""},
        {K::radioStationOwner, "TRSO", "", FREE "INTERNETSTATIONOWNER", "INTERNETSTATIONOWNER", "", ""},
        {K::podcastID, "TGID", "", FREE "PODCASTID", "PODCASTID", "", ""},
        {K::mood, "TMOO", "", FREE "MOOD", "MOOD", "", "MOOD"},
        {K::movementName, "MVNM", "", "\251mvn", "MOVEMENTNAME", "", ""},
        {K::movementNumber, "MVIN", "", "\251mvi", "MOVEMENT", "", ""},
        {K::movementTotal, "MVIN", "", "\251mvc", "MOVEMENTTOTAL", "", ""},
        {K::podcastURL, "WFED", "", "purl", "PODCASTURL", "", ""},
        {K::sortArtist, "TSOP", "", "soar", "ARTISTSORT", "", ""},
        {K::discNumber, "TPOS", "", "disk", "DISCNUMBER", "", "IFRM"},
        {K::conductor, "TPE3", "", "cond", "CONDUCTOR", "", "ITCH"},
        {K::lyricist, "TEXT", "", FREE "LYRICIST", "LYRICIST", "", "IWRI"},
        {K::podcastDescription, "TDES", "", FREE "PODCASTDESCRIPTION", "PODCASTDESCRIPTION", "", ""},
        {K::comment, "COMM", "", "\251cmt", "COMMENT", "DESCRIPTION", "ICMT"},
        {K::originalFileName, "TOFN", "", FREE "ORIGINALFILENAME", "ORIGINALFILENAME", "", ""},
        {K::originalReleaseDate, "TORY", "TDOR", FREE "ORIGINALRELEASEDATE", "ORIGINALRELEASEDATE", "", ""},
        {K::taggingTime, "TDTG", "", FREE "TAGGINGTIME", "TAGGINGTIME", "", ""},
        {K::encodingTime, "TDEN", "", FREE "ENCODINGTIME", "ENCODINGTIME", "", ""},
        {K::lyrics, "USLT", "", "\251lyr", "LYRICS", "", ""},
        {K::composer, "TCOM", "", "\251wrt", "COMPOSER", "", "IMUS"},
        {K::artwork, "APIC", "", "covr", "COVER ART (FRONT)", "METADATA_BLOCK_PICTURE", ""},
        {K::subtitleForSet, "TSST", "", FREE "SETSUBTITLE", "SETSUBTITLE", "", ""},
        {K::grouping, "TIT1", "", "\251grp", "GROUPING", "", "ISRF"},
        {K::fileOwner, "TOWN", "", FREE "FILEOWNER", "FILEOWNER", "", ""},
        {K::bpm, "TBPM", "", "tmpo", "BPM", "", "IBPM"},
        {K::remixArtist, "TPE4", "", "rmix", "REMIXARTIST", "", "IEDT"},
        {K::sortAlbum, "TSOA", "", "soal", "ALBUMSORT", "", ""},
        {K::mediaType, "TMED", "", FREE "MEDIA", "MEDIA", "", ""},
        {K::releaseTime, "TDRL", "", FREE "RELEASETIME", "RELEASETIME", "", ""},
        {K::isrc, "TSRC", "", FREE "ISRC", "ISRC", "", "ISRC"},
        {K::musicianCreditsList, "TMCL", "", FREE "MUSICIANCREDITS", "MUSICIANCREDITS", "", ""},
        {K::isPodcast, "PCST", "", "pcst", "PODCAST", "", ""},
        {K::producedNotice, "TPRO", "", FREE "PRODUCEDNOTICE", "PRODUCEDNOTICE", "", ""},
        {K::language, "TLAN", "", FREE "LANGUAGE", "LANGUAGE", "", "ILNG"},
        {K::subtitle, "TIT3", "", "subt", "SUBTITLE", "", ""},
        {K::playlistDelay, "TDLY", "", FREE "PLAYLISTDELAY", "PLAYLISTDELAY", "", ""},
        {K::originalLyricist, "TOLY", "", "olyr", "ORIGINALLYRICIST", "", ""},
        {K::website, "WXXX", "", "\251url", "URL", "", "IURL"},
        {K::work, "TXXX", "", "\251wrk", "WORK", "", "WORK"},
    });
    // clang-format on
#undef FREE
}();

static_assert(HRFFrameRows.size() == 64);
static_assert(
    [] {
        std::array<bool, HRFTagKeyCount> seen{};
        return std::ranges::none_of(HRFFrameRows, [&seen](const HRFFrameRow &row) {
            return std::exchange(seen[std::size_t(row.key)], true);
        });
    }(),
    "one row per key");
