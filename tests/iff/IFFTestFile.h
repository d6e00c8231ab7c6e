#pragma once

#include "tags/HRFEngineClass.h"
#include "tags/HRFTagEngine.h"
#include "tags/HRFTagStream.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace IFFTest {

/// A file in memory: the given text, and zeros up to the size.
class SparseStore : public HRFByteStore
{
public:
    SparseStore(std::string &bytes, qint64 size) : m_bytes(bytes), m_size(size) { }

    const QByteArray &name() const override { return m_name; }
    qint64 size() const override { return m_size; }
    bool isWritable() const override { return true; }
    qint64 readAt(qint64 offset, std::span<char> buffer) override
    {
        const qint64 count = std::clamp<qint64>(m_size - offset, 0, qint64(buffer.size()));
        std::ranges::fill(buffer, '\0');
        if (offset < qint64(m_bytes.size()))
            m_bytes.copy(buffer.data(), std::size_t(count), std::size_t(offset));
        return count;
    }
    HRFResult<void> prepareWriting(qint64 newSize) override
    {
        m_bytes.resize(std::size_t(std::max(newSize, m_size)));
        return {};
    }
    HRFResult<void> writeAt(qint64 offset, std::span<const char> data) override
    {
        std::ranges::copy(data, m_bytes.begin() + offset);
        return {};
    }
    HRFResult<void> finishWriting(qint64 newSize) override
    {
        m_bytes.resize(std::size_t(newSize));
        m_size = newSize;
        return {};
    }

private:
    std::string &m_bytes;
    qint64 m_size;
    const QByteArray m_name = "memory";
};

inline std::string number(quint64 value, int width, bool isBigEndian)
{
    std::string bytes;
    for (int i = 0; i < width; ++i)
        bytes += char(value >> (8 * (isBigEndian ? width - 1 - i : i)));
    return bytes;
}

/// Bytes between two NULs and the like, which a C string would end at.
template <std::size_t Size> std::string literal(const char (&bytes)[Size])
{
    return {bytes, Size - 1};
}

/// Bytes that no parser takes for a chunk.
inline std::string audio(std::size_t size = 16000)
{
    return std::string(size, '\x96');
}

/// An ID3v2.4 tag with UTF-8 texts.
inline std::string ID3(std::initializer_list<std::pair<const char *, std::string>> texts)
{
    std::string frames;
    for (const auto &[name, text] : texts)
        frames += name + number(text.size() + 1, 4, true) + literal("\0\0\3") + text;
    return literal("ID3\4\0\0\0\0") + char(frames.size() >> 7) + char(frames.size() & 127) + frames;
}

/// What becomes of a file when its album is set, or its tags are removed.
struct Case
{
    const char *name;
    std::string bytes;
    const char *reason = ""; ///< why it is refused; then nothing may change
    std::vector<std::string> kept = {}; ///< texts that are still in the file
    bool strips = false;
    std::vector<std::string> gone = {}; ///< texts that are not in the file any more
};

inline std::ostream &operator<<(std::ostream &out, const Case &test)
{
    return out << test.name;
}

inline std::string nameOf(const testing::TestParamInfo<Case> &info)
{
    return std::string(info.param.strips ? "Strip" : "Set") + info.param.name;
}

/// Opens a file in memory.
inline HRFResult<std::unique_ptr<HRFTagEngine>> open(const HRFEngineClass &engineClass,
                                                     std::string &bytes, qint64 size = -1)
{
    auto store = std::make_unique<SparseStore>(bytes, size < 0 ? qint64(bytes.size()) : size);
    return engineClass.initWithStream(std::make_shared<HRFTagStream>(std::move(store)), true);
}

/// Sets the album or removes the tags; answers why it failed.
inline std::string change(HRFTagEngine &engine, bool strips)
{
    if (!strips)
        engine.setValueForKey(QStringLiteral("New"), HRFTagKey::album);
    else if (!engine.stripTags())
        return "not stripped";
    const auto updated = engine.updateFileWithError();
    return updated ? std::string() : updated.error().recoverySuggestion.toStdString();
}

inline std::string text(const HRFTagEngine &engine, HRFTagKey key)
{
    return engine.stringForKey(key).value_or(QString()).toStdString();
}

/// Runs a case; answers the bytes of the file afterwards.
inline std::string run(const HRFEngineClass &engineClass, const Case &test)
{
    std::string bytes = test.bytes;
    const auto engine = open(engineClass, bytes);
    const std::string reason =
        engine ? change(**engine, test.strips) : engine.error().description.toStdString();
    EXPECT_EQ(reason, test.reason);
    if (!reason.empty()) {
        EXPECT_EQ(bytes, test.bytes);
        return bytes;
    }
    for (const std::string &kept : test.kept)
        EXPECT_THAT(bytes, testing::HasSubstr(kept));
    for (const std::string &gone : test.gone)
        EXPECT_THAT(bytes, testing::Not(testing::HasSubstr(gone)));
    EXPECT_EQ(std::ranges::count(bytes, '\x96'), std::ranges::count(test.bytes, '\x96'));
    const auto again = open(engineClass, bytes);
    EXPECT_TRUE(again.has_value());
    if (again) {
        EXPECT_EQ(text(**again, HRFTagKey::album), test.strips ? "" : "New");
    }
    return bytes;
}

} // namespace IFFTest
