#include "kit/HRFImageType.h"

#include <QBuffer>
#include <QImage>
#include <gtest/gtest.h>

namespace {

template <std::size_t size> QByteArray bytes(const char (&literal)[size])
{
    return {literal, size - 1};
}

QByteArray encoded(const char *format, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return data;
}

std::string mimeType(QByteArrayView data)
{
    const auto type = bitmapImageType(data);
    return type ? std::string(type->mimeType) : "-";
}

/// A GIF file of 3 × 2 pixels.
const QByteArray gif = bytes("GIF89a\x03\0\x02\0\x80\0\0\0\0\0\xFF\xFF\xFF,\0\0\0\0\x03\0\x02\0\0"
                             "\x02\x02\x84Q\0;");

} // namespace

TEST(HRFImageType, IsToldByTheFirstBytes)
{
    const struct
    {
        QByteArray data;
        const char *mimeType;
    } cases[] = {{bytes("\xFF\xD8\xFF"), "image/jpeg"},

                 {bytes("\x89PNG\r\n\x1A\n"), "image/png"},
                 {bytes("\x89PNG\n\x1A\n"), "-"},
                 {bytes("GIF87a"), "image/gif"},

                 {bytes("II*\0"), "image/tiff"},
                 {bytes("MM\0*"), "image/tiff"},
                 {bytes("MM*\0"), "-"},
                 {bytes("RIFF\x10\0\0\0WEBP"), "image/webp"},
                 {bytes("RIFF\x10\0\0\0WAVE"), "-"},

                 {bytes("BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0"), "image/bmp"},
                 {bytes("BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0"), "-"},
                 {bytes("BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x29\0\0\0"), "-"},
                 {bytes("BMW and other cars, from A to Z"), "-"},
                 {{}, "-"}};
    for (const auto &[data, expected] : cases)
        EXPECT_EQ(mimeType(data), expected) << data.toPercentEncoding().toStdString();
}

TEST(HRFImageType, StatesTheSizeWithoutTheImageData)
{
    constexpr QSize size(300, 200);
    const struct
    {
        QByteArray data;
        const char *mimeType;
        qsizetype headerSize;
    } cases[] = {{encoded("jpg", size), "image/jpeg", 640},
                 {encoded("png", size), "image/png", 100},
                 {encoded("bmp", size), "image/bmp", 54}};
    for (const auto &[data, expected, headerSize] : cases) {
        EXPECT_EQ(mimeType(data), expected);
        ASSERT_GT(data.size(), headerSize);
        EXPECT_EQ(bitmapImageSize(QByteArrayView(data).first(headerSize)), size) << expected;
        EXPECT_EQ(bitmapImageSize(QByteArrayView(data).first(20)), std::nullopt) << expected;
    }
    EXPECT_EQ(bitmapImageSize(gif), QSize(3, 2));
}

TEST(HRFImageType, StatesThePositiveSizeOfABitmapFromTopToBottom)
{
    const QByteArray bitmap = encoded("bmp", {3, 2});
    const struct
    {
        QByteArray height;
        std::optional<QSize> size;
    } cases[] = {{bytes("\xFE\xFF\xFF\xFF"), QSize(3, 2)},
                 {bytes("\0\0\0\0"), std::nullopt},
                 {bytes("\0\0\0\x80"), std::nullopt}};
    for (const auto &[height, size] : cases)
        EXPECT_EQ(bitmapImageSize(QByteArray(bitmap).replace(22, 4, height)), size);
}
