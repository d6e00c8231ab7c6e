#include "kit/HRFImageType.h"

#include <QBuffer>
#include <QImage>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

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

} // namespace

TEST(HRFImageType, IsToldByTheFirstBytes)
{
    // clang-format off
    const std::pair<QByteArray, const char *> cases[] = {
        {"\xFF\xD8\xFF", "image/jpeg"}, {"GIF87a", "image/gif"},
        {"\x89PNG\r\n\x1A\n", "image/png"}, {"\x89PNG\n\x1A\n", "-"},
        {"II*\0"_ba, "image/tiff"}, {"MM\0*"_ba, "image/tiff"}, {"MM*\0"_ba, "-"},
        {"RIFF\x10\0\0\0WEBP"_ba, "image/webp"}, {"RIFF\x10\0\0\0WAVE"_ba, "-"},
        {"BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0"_ba, "image/bmp"},
        {"BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0"_ba, "-"},
        {"BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x29\0\0\0"_ba, "-"},
        {"BMW and other cars, from A to Z", "-"}, {{}, "-"}};
    // clang-format on
    for (const auto &[data, expected] : cases)
        EXPECT_EQ(mimeType(data), expected) << data.toPercentEncoding().toStdString();
}

TEST(HRFImageType, StatesTheSizeWithoutTheImageData)
{
    constexpr QSize size(300, 200);
    const std::tuple<const char *, const char *, qsizetype> cases[] = {
        {"jpg", "image/jpeg", 640}, {"png", "image/png", 100}, {"bmp", "image/bmp", 54}};
    for (const auto &[format, expected, headerSize] : cases) {
        const QByteArray data = encoded(format, size);
        EXPECT_EQ(mimeType(data), expected);
        ASSERT_GT(data.size(), headerSize);
        EXPECT_EQ(bitmapImageSize(QByteArrayView(data).first(headerSize)), size) << expected;
        EXPECT_EQ(bitmapImageSize(QByteArrayView(data).first(20)), std::nullopt) << expected;
    }
    const QByteArray bitmap = encoded("bmp", {3, 2});
    const std::pair<QByteArray, std::optional<QSize>> heights[] = {
        {"\xFE\xFF\xFF\xFF", QSize(3, 2)}, // from top to bottom
        {"\0\0\0\0"_ba, std::nullopt},
        {"\0\0\0\x80"_ba, std::nullopt}};
    for (const auto &[height, expected] : heights)
        EXPECT_EQ(bitmapImageSize(QByteArray(bitmap).replace(22, 4, height)), expected);
}
