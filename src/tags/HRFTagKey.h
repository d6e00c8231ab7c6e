#pragma once

#include <QtGlobal>

#include <array>
#include <optional>
#include <string_view>

// The one list of all properties: the enumeration, the table of names and types, and the named
// accessors of HRFTagProperties are made from it. The order is part of the contract: lists of
// properties are shown and exported in it.

// X(name, Name, type): the tags of a file, which can be read and set.
// clang-format off
#define HRF_TAG_PROPERTIES(X)                                                                      \
    X(artwork, Artwork, Data)                                                                      \
    X(album, Album, Text)                                                                          \
    X(albumArtist, AlbumArtist, Text)                                                              \
    X(artist, Artist, Text)                                                                        \
    X(comment, Comment, Text)                                                                      \
    X(composer, Composer, Text)                                                                    \
    X(conductor, Conductor, Text)                                                                  \
    X(copyright, Copyright, Text)                                                                  \
    X(encoder, Encoder, Text)                                                                      \
    X(encoderSettings, EncoderSettings, Text)                                                      \
    X(fileOwner, FileOwner, Text)                                                                  \
    X(fileType, FileType, Text)                                                                    \
    X(genre, Genre, Text)                                                                          \
    X(grouping, Grouping, Text)                                                                    \
    X(involvedPeopleList, InvolvedPeopleList, Text)                                                \
    X(isrc, Isrc, Text)                                                                            \
    X(key, Key, Text)                                                                              \
    X(lyrics, Lyrics, Text)                                                                        \
    X(title, Title, Text)                                                                          \
    X(language, Language, Text)                                                                    \
    X(lyricist, Lyricist, Text)                                                                    \
    X(mediaType, MediaType, Text)                                                                  \
    X(mood, Mood, Text)                                                                            \
    X(movementName, MovementName, Text)                                                            \
    X(musicianCreditsList, MusicianCreditsList, Text)                                              \
    X(originalAlbumTitle, OriginalAlbumTitle, Text)                                                \
    X(originalArtist, OriginalArtist, Text)                                                        \
    X(originalFileName, OriginalFileName, Text)                                                    \
    X(originalLyricist, OriginalLyricist, Text)                                                    \
    X(podcastDescription, PodcastDescription, Text)                                                \
    X(podcastID, PodcastID, Text)                                                                  \
    X(podcastURL, PodcastURL, Text)                                                                \
    X(producedNotice, ProducedNotice, Text)                                                        \
    X(publisher, Publisher, Text)                                                                  \
    X(radioStationName, RadioStationName, Text)                                                    \
    X(radioStationOwner, RadioStationOwner, Text)                                                  \
    X(remixArtist, RemixArtist, Text)                                                              \
    X(sortAlbum, SortAlbum, Text)                                                                  \
    X(sortAlbumArtist, SortAlbumArtist, Text)                                                      \
    X(sortArtist, SortArtist, Text)                                                                \
    X(sortComposer, SortComposer, Text)                                                            \
    X(sortTitle, SortTitle, Text)                                                                  \
    X(subtitle, Subtitle, Text)                                                                    \
    X(subtitleForSet, SubtitleForSet, Text)                                                        \
    X(website, Website, Text)                                                                      \
    X(work, Work, Text)                                                                            \
    X(originalReleaseDate, OriginalReleaseDate, Date)                                              \
    X(encodingTime, EncodingTime, Date)                                                            \
    X(releaseTime, ReleaseTime, Date)                                                              \
    X(taggingTime, TaggingTime, Date)                                                              \
    X(discNumber, DiscNumber, Number)                                                              \
    X(discTotal, DiscTotal, Number)                                                                \
    X(trackNumber, TrackNumber, Number)                                                            \
    X(trackTotal, TrackTotal, Number)                                                              \
    X(movementNumber, MovementNumber, Number)                                                      \
    X(movementTotal, MovementTotal, Number)                                                        \
    X(year, Year, Number)                                                                          \
    X(bpm, Bpm, Number)                                                                            \
    X(rating, Rating, Number)                                                                      \
    X(length, Length, Number)                                                                      \
    X(playlistDelay, PlaylistDelay, Number)                                                        \
    X(isPartOfACompilation, IsPartOfACompilation, Boolean)                                         \
    X(isPodcast, IsPodcast, Boolean)

// X(name, type): what an engine finds out about a file; read only.
#define HRF_FILE_PROPERTIES(X)                                                                     \
    X(frames, Frames)                                                                              \
    X(framesCount, Number)                                                                         \
    X(isVBR, Boolean)                                                                              \
    X(isDRMProtected, Boolean)                                                                     \
    X(isDRMAuthorized, Boolean)                                                                    \
    X(tagSize, Number)                                                                             \
    X(bitRate, Number)                                                                             \
    X(bitDepth, Number)                                                                            \
    X(sampleRate, Number)                                                                          \
    X(duration, Number)                                                                            \
    X(channels, Number)                                                                            \
    X(channelMode, Text)                                                                           \
    X(format, Text)                                                                                \
    X(tagVersion, Text)
// clang-format on

/// Names one property of a file.
enum class HRFTagKey : quint8 {
#define X(name, ...) name,
    HRF_TAG_PROPERTIES(X) HRF_FILE_PROPERTIES(X)
#undef X
    /// Not a property: a second name for the field of `year` in the frame mapping tables.
    date
};

/// How many properties there are.
inline constexpr std::size_t HRFTagPropertyCount = std::size_t(HRFTagKey::date);
/// How many keys the frame mapping tables have room for.
inline constexpr std::size_t HRFTagKeyCount = HRFTagPropertyCount + 1;

/// The kind of value that a property has.
enum class HRFPropertyType : quint8 { Data, Text, Date, Number, Boolean, Frames };

struct HRFPropertyRow
{
    std::string_view name;
    HRFPropertyType type;
    bool isTag; ///< can be set; otherwise found out from the file
};

/// One row per property, indexed by HRFTagKey.
inline constexpr std::array<HRFPropertyRow, HRFTagPropertyCount> HRFPropertyRows = {{
#define X(name, Name, type) {#name, HRFPropertyType::type, true},
    HRF_TAG_PROPERTIES(X)
#undef X
#define X(name, type) {#name, HRFPropertyType::type, false},
        HRF_FILE_PROPERTIES(X)
#undef X
}};

static_assert(HRFTagPropertyCount == 77);
static_assert(HRFPropertyRows[std::size_t(HRFTagKey::title)].name == "title");
static_assert(HRFPropertyRows.back().name == "tagVersion");

constexpr const HRFPropertyRow &HRFRowForKey(HRFTagKey key)
{
    return HRFPropertyRows[std::size_t(key)];
}

/// The key with the given name; nothing when no property is called so.
constexpr std::optional<HRFTagKey> HRFTagKeyForName(std::string_view name)
{
    for (std::size_t i = 0; i < HRFPropertyRows.size(); ++i)
        if (HRFPropertyRows[i].name == name)
            return HRFTagKey(i);
    return {};
}
