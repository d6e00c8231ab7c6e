#pragma once

#include "kit/HRFError.h"
#include "kit/HRFFileReference.h"
#include "tags/HRFTagProperties.h"

#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <utility>
#include <vector>

namespace TagLib {
class AudioProperties;
class File;
} // namespace TagLib
class HRFTagStream;
struct HRFEngineClass;

/// Codes in HRFTagEngineErrorDomain.
namespace HRFTagEngineErrorCode {
/// An engine was found for the file but could not open or read it.
inline constexpr int unreadable = 1;
/// No engine claims the file's extension, or the file does not open.
inline constexpr int noEngine = 2;
/// The URL is missing.
inline constexpr int noURL = 3;
} // namespace HRFTagEngineErrorCode

/// The tags of one open audio file, whatever its format.
///
/// Callers never name a format: initWithURL makes an instance of the engine that claims the file.
/// An engine lives for one job: it is made, read from, changed, saved and released. All its members
/// may be called from any thread; a recursive lock on the engine guards its tags.
class HRFTagEngine : public HRFTagProperties
{
public:
    ~HRFTagEngine() override;

    /// Opens a file with the engine that claims its extension.
    ///
    /// @param readProperties whether to read the audio properties (bit rate and so on) too
    /// @return the engine, or an error of HRFTagEngineErrorDomain
    [[nodiscard]] static HRFResult<std::unique_ptr<HRFTagEngine>>
    initWithURL(const HRFFileReference &url, bool readProperties = false);
    /// The registered engine class that handles the file; nullptr when none does. Only the
    /// extension selects the engine, and the file must open.
    static const HRFEngineClass *metaDataClassForURL(const HRFFileReference &url);
    static bool canInitWithURL(const HRFFileReference &url);
    /// All claimed file types: lower-case path extensions.
    static const std::set<QByteArray> &metaDataFileTypes();

    HRFFileReference fileURL() const;

    QVariant valueForKey(HRFTagKey key) const final;
    void setValueForKey(const QVariant &value, HRFTagKey key) final;

    /// Whether the file can be written.
    bool canUpdateFile() const;
    /// The errors that updateFileWithError tells without touching the file: that it cannot be
    /// written, or cannot hold the values that were set.
    [[nodiscard]] HRFResult<void> checkChanges() const;
    /// What stripTags would remove, for people; empty when there is nothing.
    virtual QString strippableTags() const;
    /// Saves the tags into the file. When that fails, the file is as it was. The values that were
    /// set are read back from what is about to be written; one that is not there is a failure.
    ///
    /// @return HRFFileErrorDomain 513 without write permission, else HRFLirraErrorDomain -2
    [[nodiscard]] HRFResult<void> updateFileWithError();
    /// Removes every tag that the engine knows from the open file.
    [[nodiscard]] virtual HRFResult<void> stripTags() = 0;

    /// Whether the file, just opened, is of the engine's format and whole enough to be worked on.
    [[nodiscard]] virtual HRFResult<void> checkFile();

    /// The native field of a property in each tag format; nullptr when there is none.
    static const char *ID3FrameForKey(HRFTagKey key);
    static const char *ID3v2_4FrameForKey(HRFTagKey key);
    static const char *atomNameForKey(HRFTagKey key); ///< Latin-1
    static const char *APEFrameForKey(HRFTagKey key);
    static const char *xiphTagNameForKey(HRFTagKey key);
    static const char *INFOChunkIDForKey(HRFTagKey key);

protected:
    using Lock = std::unique_lock<std::recursive_mutex>;

    explicit HRFTagEngine(std::shared_ptr<HRFTagStream> stream);

    Lock lock() const { return Lock(m_lock); }
    HRFTagStream &stream() const { return *m_stream; }

    /// Reads and writes one property; called with the engine locked.
    virtual QVariant readValue(HRFTagKey key) const;
    virtual void writeValue(const QVariant &value, HRFTagKey key);

    virtual const HRFEngineClass &engineClass() const = 0;
    /// The open file; never null.
    virtual TagLib::File *tagFile() const = 0;
    /// Null when the audio properties were not read.
    const TagLib::AudioProperties *audioProperties() const;
    /// Lets TagLib save the tags into the stream.
    [[nodiscard]] virtual HRFResult<void> saveTags() = 0;

    /// Where the given properties, just saved into the stream, can be read back from: the stream,
    /// or a part of it that says as much.
    virtual std::shared_ptr<HRFTagStream>
    streamForReading(const std::map<HRFTagKey, QVariant> &values) const;

    /// Saves into the stream, checks the result and writes the file.
    [[nodiscard]] HRFResult<void> updateFile();
    /// The values set so far need not be in the file any more: its tags are gone.
    void forgetChanges() { m_changes.clear(); }
    /// To be called by an engine that opens the file anew: whatever happened before is forgotten.
    void startAnew();
    /// The error of a file that is not of the engine's format.
    HRFError contentsError() const { return contentsError(engineClass()); }
    static HRFError contentsError(const HRFEngineClass &engineClass);
    /// An error that only says why.
    static HRFError reasonError(const QString &reason);

private:
    HRFResult<void> checkSavedFile(const std::map<HRFTagKey, QVariant> &values) const;
    HRFError saveError(const HRFError &cause) const;

    mutable std::recursive_mutex m_lock; ///< guards the tags and everything below
    std::shared_ptr<HRFTagStream> m_stream;
    HRFFileReference m_fileURL;
    /// TagLib's idea of the file is wrong: a save went into the stream and not into the file.
    bool m_isSpoilt = false;
    std::map<HRFTagKey, QVariant> m_changes; ///< the values set since the file was opened
};
