#pragma once

#include <QByteArray>

#include <memory>
#include <sys/stat.h>

/// A file that is made beside another one and then takes its place all at once, with its owner,
/// rights, extended attributes and reference: whenever the program is killed, there is the whole
/// old file or the whole new one. Only the time of birth is its own.
class HRFFileReplacement
{
public:
    /// Nothing where a file cannot be replaced: when it has several names, when none can be made in
    /// its folder, or when a new one cannot have its attributes.
    ///
    /// @param path may lead there by symbolic links
    /// @param original the file, open for reading; it must stay open as long as this exists
    static std::unique_ptr<HRFFileReplacement> begin(const QByteArray &path, int original);
    HRFFileReplacement(const HRFFileReplacement &) = delete;
    HRFFileReplacement &operator=(const HRFFileReplacement &) = delete;
    ~HRFFileReplacement();

    /// Open for reading and writing, and empty at first.
    int descriptor() const { return m_descriptor; }
    /// Flushes the new file and puts it in the place of the old one. False when that cannot be done
    /// here, or somebody has changed the old file meanwhile: then nothing has happened.
    bool takePlace();
    /// Hands the open file over to the caller.
    int releaseDescriptor();

private:
    HRFFileReplacement(QByteArray path, int original, const struct stat &status);
    bool open();
    bool keepAttributes();
    bool isOriginalAt(const QByteArray &path) const;
    bool giveName();
    bool exchange();

    const QByteArray m_path; ///< without links
    const int m_original;
    const struct stat m_status; ///< of the original
    int m_descriptor = -1;
    const QByteArray m_temporaryPath;
    bool m_hasName = false; ///< whether the new file stands at its temporary path
};
