#pragma once

#include <string>

/// A few seconds of silent MPEG-1 layer 3 audio with a constant bit rate, about @p size bytes.
std::string HRFMakeCorpusMPEG(int bitRate, std::size_t size);
