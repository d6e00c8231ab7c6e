#include "kit/HRFImageType.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

using namespace std::string_view_literals;

namespace {

constexpr HRFImageType jpeg{"image/jpeg", "jpg"};
constexpr HRFImageType png{"image/png", "png"};
constexpr HRFImageType gif{"image/gif", "gif"};
constexpr HRFImageType bmp{"image/bmp", "bmp"};
constexpr HRFImageType tiff{"image/tiff", "tiff"};
constexpr HRFImageType webp{"image/webp", "webp"};

struct Signature
{
    HRFImageType type;
    std::string_view firstBytes; ///< a "?" stands for any byte
};

// A BMP file has the size of its second header at offset 14, which tells it from text that begins
// with the same two letters.
constexpr std::array signatures{
    Signature{jpeg, "\xFF\xD8\xFF"sv},
    Signature{png, "\x89PNG\r\n\x1A\n"sv},
    Signature{gif, "GIF87a"sv},
    Signature{gif, "GIF89a"sv},
    Signature{tiff, "II*\0"sv},
    Signature{tiff, "MM\0*"sv},
    Signature{webp, "RIFF????WEBP"sv},
    Signature{bmp, "BM????????????\x0C\0\0\0"sv},
    Signature{bmp, "BM????????????\x10\0\0\0"sv},
    Signature{bmp, "BM????????????\x28\0\0\0"sv},
    Signature{bmp, "BM????????????\x34\0\0\0"sv},
    Signature{bmp, "BM????????????\x38\0\0\0"sv},
    Signature{bmp, "BM????????????\x40\0\0\0"sv},
    Signature{bmp, "BM????????????\x6C\0\0\0"sv},
    Signature{bmp, "BM????????????\x7C\0\0\0"sv},
};

bool matches(QByteArrayView data, std::string_view firstBytes)
{
    if (data.size() < std::ssize(firstBytes))
        return false;
    return std::equal(firstBytes.begin(), firstBytes.end(), data.begin(),
                      [](char expected, char byte) { return expected == '?' || expected == byte; });
}

/// A BMP file whose rows run from top to bottom states a negative height.
std::optional<QSize> validSize(QSize stated)
{
    const bool isValid = stated.width() > 0 && stated.height() != 0
        && stated.height() != std::numeric_limits<int>::min();
    if (!isValid)
        return std::nullopt;
    return QSize(stated.width(), std::abs(stated.height()));
}

} // namespace

std::optional<HRFImageType> bitmapImageType(QByteArrayView data)
{
    const auto *found = std::ranges::find_if(
        signatures, [&](const Signature &each) { return matches(data, each.firstBytes); });
    return found == signatures.end() ? std::nullopt : std::optional(found->type);
}

std::optional<QSize> bitmapImageSize(QByteArrayView data)
{
    const auto type = bitmapImageType(data);
    if (!type)
        return std::nullopt;
    QByteArray bytes = QByteArray::fromRawData(data.data(), data.size());
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, QByteArrayView(type->fileExtension).toByteArray());
    reader.setAutoDetectImageFormat(false);
    return validSize(reader.size());
}
