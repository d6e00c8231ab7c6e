#pragma once

#include "formats/HRFSoundBytes.h"
#include "kit/HRFUserDefaults.h"
#include "tags/HRFTagEngine.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <vector>

using HRFTagValues = std::vector<std::pair<HRFTagKey, QVariant>>;

/// A copy of a fixture, gone at the end of the test.
class HRFFormatFile
{
public:
    /// @param fileType the extension of the copy; that of the fixture when empty
    explicit HRFFormatFile(const char *fixture, const char *fileType = "");

    QByteArray path() const { return m_path; }
    QByteArray bytes() const;
    void setBytes(const QByteArray &bytes) const;

    HRFResult<std::unique_ptr<HRFTagEngine>> tryOpen(bool readProperties = false) const;
    /// Throws when the file does not open.
    std::unique_ptr<HRFTagEngine> open(bool readProperties = false) const;

    /// Sets the values with one engine and saves.
    HRFResult<void> trySet(const HRFTagValues &values) const;
    /// The same; a failure fails the test.
    void set(const HRFTagValues &values) const;
    void set(HRFTagKey key, const QVariant &value) const { set({{key, value}}); }
    void strip() const;
    /// The value that a fresh engine reads.
    QVariant value(HRFTagKey key) const { return open()->valueForKey(key); }
    /// The same as text; empty for nothing.
    QString text(HRFTagKey key) const { return value(key).toString(); }

private:
    QTemporaryDir m_folder;
    QByteArray m_path;
};

/// A setting that holds until the end of the scope.
class HRFSetting
{
public:
    HRFSetting(const QString &key, const QVariant &value) : m_key(key)
    {
        HRFUserDefaults::standard().setOverride(value, m_key);
    }
    ~HRFSetting() { HRFUserDefaults::standard().setOverride({}, m_key); }
    HRFSetting(const HRFSetting &) = delete;
    HRFSetting &operator=(const HRFSetting &) = delete;

private:
    QString m_key;
};

/// The first bytes of image files; the rest does not matter.
inline const QByteArray HRFSampleJPEG("\xFF\xD8\xFF\xE0 no\0t an image", 18);
inline const QByteArray HRFSamplePNG("\x89PNG\r\n\x1A\n no\0t an image", 21);
inline const QByteArray HRFSampleGIF("GIF89a no\0t an image", 20);

/// Readable failures.
void PrintTo(const QVariant &value, std::ostream *out);
void PrintTo(const QString &text, std::ostream *out);
::testing::AssertionResult HRFSucceeded(const HRFResult<void> &result);
