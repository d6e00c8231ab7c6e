#include "tags/ID3KeptFrame.h"

#include <algorithm>
#include <iterator>

using namespace TagLib;

namespace {

/// Frames that properties stand in, and those that hold further frames, whose headers differ
/// between the versions.
constexpr std::string_view otherFrames[] = {
    "COMM", "USLT", "APIC", "POPM", "PCST", "WXXX", "WFED",
    "MVNM", "MVIN", "GRP1", "IPLS", "CHAP", "CTOC",
};

/// Those that TagLib knows and that begin with a text encoding.
constexpr std::string_view encodedFrames[] = {"GEOB", "SYLT", "OWNE"};
constexpr char largestEncodingOfVersion3 = 1;

} // namespace

bool ID3KeptFrame::isMeantFor(std::string_view frameID, char firstByte)
{
    if (firstByte > largestEncodingOfVersion3
        && std::ranges::find(encodedFrames, frameID) != std::end(encodedFrames))
        return false;
    return !frameID.starts_with('T')
        && std::ranges::find(otherFrames, frameID) == std::end(otherFrames);
}

ID3KeptFrame::ID3KeptFrame(const Frame &frame, const ByteVector &data, unsigned int version)
    : Frame(new Header(data, version)), m_texts(frame.toString()), m_content(fieldData(data))
{
    header()->setFrameID(frame.frameID());
}
