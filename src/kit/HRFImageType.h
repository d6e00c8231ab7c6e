#pragma once

#include <QByteArrayView>
#include <QSize>

#include <optional>
#include <string_view>

/// A bitmap file format.
struct HRFImageType
{
    std::string_view mimeType; ///< "image/jpeg"
    std::string_view fileExtension; ///< "jpg"
};

/// The format of an image file's bytes, told from its first bytes: JPEG, PNG, GIF, BMP, TIFF or
/// WebP.
std::optional<HRFImageType> bitmapImageType(QByteArrayView data);

/// The width and height in pixels that an image file's bytes state; nothing when they cannot be
/// read.
std::optional<QSize> bitmapImageSize(QByteArrayView data);
