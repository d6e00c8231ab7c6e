#pragma once

#include "support/HRFMemoryByteStore.h"
#include "support/HRFSettings.h"
#include "tags/HRFTagEngine.h"
#include "tags/HRFTagStream.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

using HRFTagValues = std::vector<std::pair<HRFTagKey, QVariant>>;

/// The first bytes of image files; the rest does not matter.
inline const QByteArray HRFSampleJPEG("\xFF\xD8\xFF\xE0 no\0t an image", 18);
inline const QByteArray HRFSamplePNG("\x89PNG\r\n\x1A\n no\0t an image", 21);
inline const QByteArray HRFSampleGIF("GIF89a no\0t an image", 20);

/// An audio file in memory.
struct HRFTestFile
{
    QByteArray fileType; ///< chooses the engine
    QByteArray bytes;
    HRFFaults faults = {};
    qint64 size = 0; ///< larger than the bytes when zeros follow them

    /// A copy of a file of tests/fixtures; @p fileType is its extension unless given.
    static HRFTestFile fixture(const QByteArray &name, const QByteArray &fileType = {});

    std::shared_ptr<HRFTagStream> stream();
    HRFResult<std::unique_ptr<HRFTagEngine>> tryOpen(bool readProperties = false);
    /// Throws when the file does not open.
    std::unique_ptr<HRFTagEngine> open(bool readProperties = false);

    /// Sets the values with one engine and saves. Without "try" a failure fails the test.
    [[nodiscard]] HRFResult<void> trySet(const HRFTagValues &values);
    void set(const HRFTagValues &values);
    void set(HRFTagKey key, const QVariant &value) { set({{key, value}}); }
    [[nodiscard]] HRFResult<void> tryStrip();
    void strip();
    /// The value that a fresh engine reads.
    QVariant value(HRFTagKey key) { return open()->valueForKey(key); }
    /// The same as text; empty for nothing.
    QString text(HRFTagKey key) { return value(key).toString(); }
};

/// The same file to TagLib, without the engines.
template <class File> class HRFNative
{
public:
    explicit HRFNative(HRFTestFile &file) : m_stream(file.stream()), m_file(m_stream.get()) { }

    File *operator->() { return &m_file; }
    void save() { EXPECT_TRUE(m_file.save() && m_stream->commit()); }

private:
    std::shared_ptr<HRFTagStream> m_stream;
    File m_file;
};

/// Why something failed; empty when it did not.
template <class T> QString HRFFailure(const HRFResult<T> &result)
{
    return result ? QString() : result.error().fullText();
}

/// Readable failures.
void PrintTo(const QVariant &value, std::ostream *out);
void PrintTo(const QString &text, std::ostream *out);
void PrintTo(const QByteArray &bytes, std::ostream *out);
std::ostream &operator<<(std::ostream &out, const QByteArray &bytes);
