#include "corpus/HRFCorpusID3.h"

#include "corpus/HRFCorpusBytes.h"
#include "corpus/HRFCorpusUTF16.h"

#include <string_view>

using namespace std::string_literals;
using namespace std::string_view_literals;

namespace {

constexpr std::size_t paddingSize = 2048;

/// How the versions differ.
struct Form
{
    char version;
    char textEncoding;
    std::string_view yearFrame;
    std::string (*frameSize)(std::uint64_t size);
    std::string (*text)(std::string_view utf8);
    std::string_view textEnd;
};

constexpr Form forms[] = {
    {3, 1, "TYER", [](std::uint64_t size) { return HRFCorpusBytes::bigEndian(size, 4); },
     HRFUTF16WithMark, "\0\0"sv},
    {4, 3, "TDRC", HRFCorpusBytes::syncSafe,
     [](std::string_view utf8) { return std::string(utf8); }, "\0"sv},
};

class TagWriter
{
public:
    explicit TagWriter(const Form &form) : m_form(form) { }

    void addFrame(std::string_view id, std::string_view content)
    {
        m_frames += std::string(id) + m_form.frameSize(content.size()) + "\0\0"s;
        m_frames += content;
    }

    void addText(std::string_view id, std::string_view text)
    {
        if (!text.empty())
            addFrame(id, m_form.textEncoding + m_form.text(text));
    }

    /// COMM, USLT and TXXX: a text with a description.
    void addDescribedText(std::string_view id, std::string_view language,
                          std::string_view description, std::string_view text)
    {
        if (text.empty())
            return;
        addFrame(id,
                 m_form.textEncoding + std::string(language) + m_form.text(description)
                     + std::string(m_form.textEnd) + m_form.text(text));
    }

    std::string tag() const
    {
        return "ID3"s + m_form.version + "\0\0"s
            + HRFCorpusBytes::syncSafe(m_frames.size() + paddingSize) + m_frames
            + std::string(paddingSize, '\0');
    }

    std::string_view yearFrame() const { return m_form.yearFrame; }

private:
    const Form &m_form;
    std::string m_frames;
};

std::string pair(int number, int total)
{
    return std::to_string(number) + '/' + std::to_string(total);
}

void addAlbumFrames(TagWriter &writer, const HRFCorpusAlbum &album)
{
    writer.addText("TALB", album.title);
    writer.addText("TPE1", album.artist);
    writer.addText("TPE2", album.artist);
    writer.addText("TCOM", album.composer);
    writer.addText("TCON", album.genre);
    writer.addText("TPUB", album.publisher);
    writer.addText("TCOP", album.copyright);
    writer.addText(writer.yearFrame(), std::to_string(album.year));
    writer.addText("TPOS", pair(album.discNumber, album.discTotal));
    writer.addDescribedText("TXXX", "", "CATALOGNUMBER", "CAT-" + std::to_string(album.number));
}

void addTrackFrames(TagWriter &writer, const HRFCorpusTrack &track, int trackCount)
{
    writer.addText("TIT2", track.title);
    writer.addText("TRCK", pair(track.number, trackCount));
    writer.addText("TSRC", track.isrc);
    writer.addText("TBPM", track.bpm);
    writer.addDescribedText("COMM", "eng", "", track.comment);
    writer.addDescribedText("USLT", "eng", "", track.lyrics);
    if (track.rating != 0)
        writer.addFrame("POPM",
                        "user@example.org\0"s + static_cast<char>(track.rating) + "\0\0\0\0"s);
}

void addPicture(TagWriter &writer, const std::string &picture)
{
    constexpr std::string_view head = "\0image/jpeg\0\x03\0"sv; // Latin-1, front cover
    writer.addFrame("APIC", std::string(head) + picture);
}

} // namespace

std::string HRFMakeCorpusID3(const HRFCorpusAlbum &album, const HRFCorpusTrack &track,
                             HRFCorpusID3Version version)
{
    TagWriter writer(forms[std::size_t(version)]);
    addTrackFrames(writer, track, int(album.tracks.size()));
    addAlbumFrames(writer, album);
    addPicture(writer, album.picture);
    return writer.tag();
}
