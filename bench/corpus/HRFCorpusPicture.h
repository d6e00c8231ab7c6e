#pragma once

#include "corpus/HRFCorpusRandom.h"

#include <string>

/// A JPEG file of 20 to 80 KB with a true header and senseless content: its type and its size in
/// pixels can be told, but there is nothing to see.
std::string HRFMakeCorpusPicture(HRFCorpusRandom &random);
