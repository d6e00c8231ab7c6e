#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

/// Names a file by the bytes of its path, which need not be valid UTF-8, beside the text shown to
/// the user. A default-constructed reference names no file.
class HRFFileReference
{
public:
    HRFFileReference() = default;

    /// @param nativePath the path as the system calls take it
    static HRFFileReference fromNativePath(const QByteArray &nativePath);
    static HRFFileReference fromPath(const QString &path);
    /// The URL must be a file URL (assertion "url.isFileURL").
    static HRFFileReference fromUrl(const QUrl &url);

    bool isNull() const { return m_nativePath.isEmpty(); }

    const QByteArray &nativePath() const { return m_nativePath; }
    /// Bytes that are not UTF-8 are shown as U+FFFD.
    QString displayPath() const;
    /// The last path component, for display.
    QString displayName() const;
    /// What follows the last "." of the last path component, without the dot and in lower case;
    /// empty when there is no dot but a leading one.
    QByteArray lowerCaseExtension() const;
    /// Another item of the same folder, called as the user says. What of the name stands before the
    /// last "." and is the same as in this one's displayName keeps its bytes.
    HRFFileReference withDisplayName(const QString &name) const;
    bool isValidUtf8() const;

    friend bool operator==(const HRFFileReference &, const HRFFileReference &) = default;

private:
    QByteArray m_nativePath;
};
