#include "support/HRFTestMP3.h"

#include "tags/HRFTagStream.h"
#include "tags/MPEGMetaData.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace std::string_literals;

namespace {

constexpr std::size_t ID3v2HeaderSize = 10;
constexpr std::size_t ID3v1Size = 128;

std::string bigEndian(std::size_t number, int bitsPerByte)
{
    std::string result(4, '\0');
    for (std::size_t i = 0; i < 4; ++i)
        result[3 - i] =
            char((number >> (std::size_t(bitsPerByte) * i)) & ((1U << bitsPerByte) - 1));
    return result;
}

std::size_t fromBigEndian(std::string_view bytes, int bitsPerByte)
{
    std::size_t result = 0;
    for (const char byte : bytes.substr(0, 4))
        result = (result << bitsPerByte) | static_cast<unsigned char>(byte);
    return result;
}

std::string littleEndian(std::size_t number)
{
    const std::string bytes = bigEndian(number, 8);
    return {bytes.rbegin(), bytes.rend()};
}

/// Sizes of ID3v2.4 frames leave out the highest bit of every byte, those of ID3v2.3 do not.
int bitsPerSizeByte(int version)
{
    return version == 3 ? 8 : 7;
}

std::string padded(const std::string &text, std::size_t size)
{
    return (text + std::string(size, '\0')).substr(0, size);
}

} // namespace

namespace HRFTestMP3 {

std::string audio(const char *header, int frameCount)
{
    constexpr std::size_t frameSize = 144 * 128000 / 44100;
    std::string result;
    for (int i = 0; i < frameCount; ++i) {
        result += std::string(header, 4);
        for (std::size_t j = 4; j < frameSize; ++j)
            result += char((std::size_t(i) * 7 + j) % 251);
    }
    return result;
}

HRFRawFrame textFrame(const std::string &id, const std::string &text)
{
    return {id, "\0"s + text};
}

std::string ID3v2Tag(int version, const std::vector<HRFRawFrame> &frames, char revision)
{
    std::string body;
    for (const HRFRawFrame &frame : frames)
        body += frame.id + bigEndian(frame.content.size(), bitsPerSizeByte(version)) + frame.flags
            + frame.content;
    return "ID3"s + char(version) + revision + '\0' + bigEndian(body.size(), 7) + body;
}

std::string ID3v1Tag(const std::string &title, const std::string &artist, char track)
{
    return "TAG" + padded(title, 30) + padded(artist, 30) + padded("v1 album", 30) + "1971"
        + padded("v1 comment", 29) + track + '\x11';
}

std::string APETag(const std::vector<std::pair<std::string, std::string>> &items)
{
    std::string body;
    for (const auto &[key, value] : items)
        body += littleEndian(value.size()) + littleEndian(0) + key + '\0' + value;
    const std::string common = "APETAGEX" + littleEndian(2000) + littleEndian(body.size() + 32)
        + littleEndian(items.size());
    const std::string unused(8, '\0');
    return common + littleEndian(0xA0000000) + unused + body + common + littleEndian(0x80000000)
        + unused;
}

int ID3v2Version(std::string_view bytes)
{
    return bytes.starts_with("ID3") ? bytes.at(3) : 0;
}

std::vector<HRFRawFrame> ID3v2Frames(std::string_view bytes)
{
    const int version = ID3v2Version(bytes);
    if (version == 0)
        return {};
    std::string_view rest =
        bytes.substr(ID3v2HeaderSize).substr(0, fromBigEndian(bytes.substr(6), 7));
    std::vector<HRFRawFrame> frames;
    while (rest.size() > ID3v2HeaderSize && rest.front() != '\0') {
        const std::size_t size = fromBigEndian(rest.substr(4), bitsPerSizeByte(version));
        frames.push_back({std::string(rest.substr(0, 4)),
                          std::string(rest.substr(ID3v2HeaderSize, size)),
                          std::string(rest.substr(8, 2))});
        rest.remove_prefix(std::min(rest.size(), ID3v2HeaderSize + size));
    }
    return frames;
}

std::vector<std::string> contentsOf(std::string_view bytes, std::string_view id)
{
    std::vector<std::string> contents;
    for (const HRFRawFrame &frame : ID3v2Frames(bytes))
        if (frame.id == id)
            contents.push_back(frame.content);
    return contents;
}

bool hasID3v1Tag(std::string_view bytes)
{
    return bytes.size() >= ID3v1Size && bytes.substr(bytes.size() - ID3v1Size).starts_with("TAG");
}

bool hasAPETag(std::string_view bytes)
{
    return bytes.contains("APETAGEX");
}

} // namespace HRFTestMP3

std::unique_ptr<HRFTagEngine> HRFTestFile::open(bool readProperties)
{
    auto stream = std::make_shared<HRFTagStream>(
        std::make_unique<HRFFaultyByteStore>(std::make_unique<HRFMemoryByteStore>(bytes), faults));
    auto engine = MPEGMetaData::metadataClass.initWithStream(std::move(stream), readProperties);
    if (!engine)
        throw std::runtime_error(qPrintable(engine.error().fullText()));
    return std::move(*engine);
}

HRFResult<void> HRFTestFile::trySet(const Values &values)
{
    const auto engine = open();
    for (const auto &[key, value] : values)
        engine->setValueForKey(value, key);
    return engine->updateFileWithError();
}

void HRFTestFile::set(const Values &values)
{
    const auto updated = trySet(values);
    EXPECT_TRUE(updated) << qPrintable(updated.error().fullText());
}
