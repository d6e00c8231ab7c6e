#pragma once

#include <string>
#include <string_view>

/// Little-endian UTF-16 with a byte order mark. The text must be valid UTF-8.
std::string HRFUTF16WithMark(std::string_view utf8);
