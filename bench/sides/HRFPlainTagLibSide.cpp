#include "sides/HRFBenchSide.h"

#include <taglib/attachedpictureframe.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>
#include <taglib/mpegproperties.h>
#include <taglib/tpropertymap.h>

#include <algorithm>
#include <stdexcept>

using namespace TagLib;

namespace fs = std::filesystem;

namespace {

std::string pictureOf(const ID3v2::Tag &tag)
{
    for (const ID3v2::Frame *frame : tag.frameList("APIC"))
        if (const auto *picture = dynamic_cast<const ID3v2::AttachedPictureFrame *>(frame)) {
            const ByteVector data = picture->picture();
            return {data.data(), data.size()};
        }
    return {};
}

std::size_t valueCount(const MPEG::Properties &audio)
{
    const int values[] = {audio.lengthInMilliseconds(),
                          audio.bitrate(),
                          audio.sampleRate(),
                          audio.channels(),
                          audio.layer(),
                          int(audio.version()),
                          int(audio.channelMode()),
                          int(audio.protectionEnabled())};
    return std::size_t(std::ranges::count_if(values, [](int value) { return value != 0; }));
}

std::size_t readMPEG(const fs::path &path)
{
    MPEG::File file(path.c_str(), true);
    if (!file.isValid() || !file.audioProperties() || !file.ID3v2Tag())
        throw std::runtime_error(path.native() + ": TagLib cannot read it");
    const PropertyMap properties = file.properties();
    const std::string picture = pictureOf(*file.ID3v2Tag());
    return properties.size() + valueCount(*file.audioProperties()) + (picture.empty() ? 0 : 1);
}

void writeMPEGTitle(const fs::path &path, const std::string &title)
{
    MPEG::File file(path.c_str(), false);
    file.tag()->setTitle(String(title, String::UTF8));
    if (!file.save(MPEG::File::ID3v2, File::StripOthers, ID3v2::v4, File::DoNotDuplicate))
        throw std::runtime_error(path.native() + ": TagLib cannot save it");
}

struct Format
{
    const char *extension;
    HRFBenchSide side;
};

constexpr Format formats[] = {
    {".mp3", {readMPEG, writeMPEGTitle}},
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
