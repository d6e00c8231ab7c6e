#include "sides/HRFBenchSide.h"

// clang-format off
// In this order: <mp4atom.h> means TagLib::File where TagLib::MP4::File is not declared yet.
#include <taglib/mp4atom.h>
#include <taglib/mp4file.h>
// clang-format on
#include <taglib/attachedpictureframe.h>
#include <taglib/flacfile.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>
#include <taglib/mpegproperties.h>
#include <taglib/tpropertymap.h>

#include <algorithm>
#include <functional>
#include <stdexcept>

using namespace TagLib;

namespace fs = std::filesystem;

namespace {

ByteVector pictureOf(MPEG::File &file)
{
    for (const ID3v2::Frame *frame : file.ID3v2Tag()->frameList("APIC"))
        if (const auto *picture = dynamic_cast<const ID3v2::AttachedPictureFrame *>(frame))
            return picture->picture();
    return {};
}

ByteVector pictureOf(FLAC::File &file)
{
    const List<FLAC::Picture *> pictures = file.pictureList();
    return pictures.isEmpty() ? ByteVector() : pictures.front()->data();
}

ByteVector pictureOf(const MP4::File &file)
{
    const MP4::CoverArtList pictures = file.tag()->item("covr").toCoverArtList();
    return pictures.isEmpty() ? ByteVector() : pictures.front().data();
}

std::size_t detailCount(const MPEG::Properties &audio)
{
    return std::size_t(audio.layer()) + std::size_t(audio.channelMode())
        + std::size_t(audio.protectionEnabled());
}

std::size_t detailCount(const FLAC::Properties &audio)
{
    return std::size_t(audio.bitsPerSample());
}

std::size_t detailCount(const MP4::Properties &audio)
{
    return std::size_t(audio.bitsPerSample()) + std::size_t(audio.codec())
        + std::size_t(audio.isEncrypted());
}

template <class File> std::size_t read(const fs::path &path)
{
    File file(path.c_str(), true);
    if (!file.isValid() || !file.audioProperties())
        throw std::runtime_error(path.native() + ": TagLib cannot read it");
    const AudioProperties &audio = *file.audioProperties();
    const int values[] = {audio.lengthInMilliseconds(), audio.bitrate(), audio.sampleRate(),
                          audio.channels()};
    const PropertyMap properties = file.properties();
    const ByteVector picture = pictureOf(file);
    const std::string pictureCopy(picture.data(), picture.size());
    return properties.size() + std::size_t(std::ranges::count_if(values, std::identity()))
        + detailCount(*file.audioProperties()) + (pictureCopy.empty() ? 0 : 1);
}

bool save(MPEG::File &file)
{
    return file.save(MPEG::File::ID3v2, File::StripOthers, ID3v2::v4, File::DoNotDuplicate);
}

bool save(FLAC::File &file)
{
    return file.save();
}

bool save(MP4::File &file)
{
    return file.save();
}

template <class File> void writeTitle(const fs::path &path, const std::string &title)
{
    File file(path.c_str(), false);
    file.tag()->setTitle(String(title, String::UTF8));
    if (!save(file))
        throw std::runtime_error(path.native() + ": TagLib cannot save it");
}

struct Format
{
    const char *extension;
    HRFBenchSide side;
};

constexpr Format formats[] = {
    {".mp3", {read<MPEG::File>, writeTitle<MPEG::File>}},
    {".flac", {read<FLAC::File>, writeTitle<FLAC::File>}},
    {".m4a", {read<MP4::File>, writeTitle<MP4::File>}},
};

const HRFBenchSide &sideForFile(const fs::path &file)
{
    const auto *found = std::ranges::find(formats, file.extension(), &Format::extension);
    if (found == std::end(formats))
        throw std::runtime_error(file.native() + ": no format has this extension");
    return found->side;
}

} // namespace

const HRFBenchSide HRFPlainTagLibSide{
    [](const fs::path &file) { return sideForFile(file).read(file); },
    [](const fs::path &file, const std::string &title) {
        sideForFile(file).writeTitle(file, title);
    },
};
