#pragma once

#include "support/HRFTestStores.h"
#include "tags/HRFTagEngine.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// One frame of an ID3v2 tag as it stands in the file.
struct HRFRawFrame
{
    std::string id;
    std::string content;
    std::string flags = std::string(2, '\0');

    friend bool operator==(const HRFRawFrame &, const HRFRawFrame &) = default;
};

namespace HRFTestMP3 {

inline constexpr const char *plainHeader = "\xFF\xFB\x90\x64"; ///< 128 kbit/s, 44.1 kHz, joint
inline constexpr const char *checkedHeader = "\xFF\xFA\x90\xC4"; ///< the same with a CRC, mono

/// MPEG-1 layer 3 audio; the contents differ from frame to frame.
std::string audio(const char *header = plainHeader, int frameCount = 20);
/// An ID3v2 text frame in Latin-1.
HRFRawFrame textFrame(const std::string &id, const std::string &text);
std::string ID3v2Tag(int version, const std::vector<HRFRawFrame> &frames, char revision = 0);
std::string ID3v1Tag(const std::string &title, const std::string &artist, char track = 0);
std::string APETag(const std::vector<std::pair<std::string, std::string>> &items);

/// The major version of the ID3v2 tag that the bytes begin with; 0 without one.
int ID3v2Version(std::string_view bytes);
/// The frames of the ID3v2 tag that the bytes begin with.
std::vector<HRFRawFrame> ID3v2Frames(std::string_view bytes);
/// The contents of the frames with the identifier.
std::vector<std::string> contentsOf(std::string_view bytes, std::string_view id);
bool hasID3v1Tag(std::string_view bytes);
bool hasAPETag(std::string_view bytes);

} // namespace HRFTestMP3

/// An MP3 file in memory.
struct HRFTestFile
{
    using Values = std::vector<std::pair<HRFTagKey, QVariant>>;

    std::string bytes = HRFTestMP3::audio();
    HRFFaults faults{};

    std::unique_ptr<HRFTagEngine> open(bool readProperties = false);
    /// Opens the file, sets the values and saves it; set expects that to succeed.
    [[nodiscard]] HRFResult<void> trySet(const Values &values);
    void set(const Values &values);
    /// The value as a fresh engine reads it.
    QVariant read(HRFTagKey key) { return open()->valueForKey(key); }
};
