#include "tags/HRFTagEngine.h"

#include "kit/HRFAssert.h"
#include "tags/HRFEngineRegistry.h"
#include "tags/HRFMapManager.h"
#include "tags/HRFTagStream.h"

#include <QCoreApplication>
#include <taglib/audioproperties.h>
#include <taglib/tfile.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFTagEngine", text);
}

HRFError engineError(int code, const HRFFileReference &url, const QString &description)
{
    return HRFError{.domain = QString::fromLatin1(HRFTagEngineErrorDomain),
                    .code = code,
                    .description = description.arg(url.displayName()),
                    .path = url.displayPath()};
}

std::unexpected<HRFError> noEngineError(const HRFFileReference &url)
{
    HRFError error =
        engineError(HRFTagEngineErrorCode::noEngine, url, tr("No engine can open the file “%1”"));
    if (const auto stream = openTagStream(url); !stream)
        error.recoverySuggestion = stream.error().description;
    else
        error.recoverySuggestion = tr("The kind of file is not supported.");
    return std::unexpected(error);
}

std::unexpected<HRFError> unreadableError(const HRFFileReference &url, const QString &reason)
{
    HRFError error =
        engineError(HRFTagEngineErrorCode::unreadable, url, tr("The file “%1” could not be read"));
    error.recoverySuggestion = reason;
    return std::unexpected(error);
}

HRFError notKeptError(HRFTagKey key)
{
    HRFError error = HRFError::fromErrno(EINVAL);
    error.description = tr("The file cannot hold this value of “%1”")
                            .arg(HRFTagProperties::propertyNames().at(qsizetype(key)));
    return error;
}

/// Whether setting the value is meant to leave something in the file.
bool hasContent(const QVariant &value)
{
    return !HRFTagValue::isNothing(value) && value != QVariant(0) && value != QVariant(false);
}

/// Whether what an engine holds is what was set. Ratings are cut off at their largest value, web
/// addresses are percent-encoded, dates have whole seconds.
bool holds(const QVariant &held, const QVariant &value, HRFTagKey key)
{
    if (key == HRFTagKey::rating || key == HRFTagKey::website)
        return hasContent(held);
    if (value.typeId() == QMetaType::QDateTime)
        return held.toDateTime().toSecsSinceEpoch() == value.toDateTime().toSecsSinceEpoch();
    return held == value;
}

QVariant channelModeName(const TagLib::AudioProperties &properties)
{
    switch (properties.channels()) {
    case 1:
        return u"Mono"_s;
    case 2:
        return u"Stereo"_s;
    default:
        return {};
    }
}

} // namespace

HRFTagEngine::HRFTagEngine(std::shared_ptr<HRFTagStream> stream) : m_stream(std::move(stream)) { }

HRFTagEngine::~HRFTagEngine() = default;

HRFResult<std::unique_ptr<HRFTagEngine>> HRFTagEngine::initWithURL(const HRFFileReference &url,
                                                                   bool readProperties)
{
    if (url.isNull()) {
        qCritical("Invalid parameter not satisfying: url");
        return std::unexpected(HRFError{.domain = QString::fromLatin1(HRFTagEngineErrorDomain),
                                        .code = HRFTagEngineErrorCode::noURL,
                                        .description = tr("No file was given")});
    }
    const HRFEngineClass *engineClass =
        HRFEngineRegistry::shared().classForType(url.lowerCaseExtension());
    auto stream = engineClass ? openTagStream(url) : HRFResult<std::shared_ptr<HRFTagStream>>();
    if (!engineClass || !stream)
        return noEngineError(url);

    auto engine = engineClass->initWithStream(*stream, readProperties);
    if (!engine)
        return unreadableError(url, engine.error().description);
    (*engine)->m_fileURL = url;
    if ((*stream)->hasReadFailed())
        return unreadableError(url, HRFError::fromErrno(EIO).description);
    return engine;
}

const HRFEngineClass *HRFTagEngine::metaDataClassForURL(const HRFFileReference &url)
{
    const HRFEngineClass *engineClass =
        HRFEngineRegistry::shared().classForType(url.lowerCaseExtension());
    return engineClass && engineClass->canInitWithURL(url) ? engineClass : nullptr;
}

bool HRFTagEngine::canInitWithURL(const HRFFileReference &url)
{
    return metaDataClassForURL(url) != nullptr;
}

bool HRFEngineClass::canInitWithURL(const HRFFileReference &url) const
{
    return openTagStream(url).has_value();
}

void HRFRewind(HRFTagStream &stream)
{
    stream.seek(0, HRFTagStream::Beginning);
}

const std::set<QByteArray> &HRFTagEngine::metaDataFileTypes()
{
    static const std::set<QByteArray> types = HRFEngineRegistry::shared().types();
    return types;
}

HRFFileReference HRFTagEngine::fileURL() const
{
    const Lock guard = lock();
    return m_fileURL;
}

QVariant HRFTagEngine::valueForKey(HRFTagKey key) const
{
    const Lock guard = lock();
    return readValue(key);
}

void HRFTagEngine::setValueForKey(const QVariant &value, HRFTagKey key)
{
    HRFRequire(HRFRowForKey(key).isTag, "isTag");
    const Lock guard = lock();
    writeValue(HRFTagValue::isNothing(value) ? QVariant() : value, key);
    m_changes.insert_or_assign(key, value);
}

QVariant HRFTagEngine::readValue(HRFTagKey key) const
{
    const TagLib::AudioProperties *properties = audioProperties();
    switch (key) {
    case HRFTagKey::bitRate:
        return properties ? QVariant(qlonglong(properties->bitrate())) : QVariant();
    case HRFTagKey::sampleRate:
        return properties ? QVariant(qlonglong(properties->sampleRate())) : QVariant();
    case HRFTagKey::channels:
        return properties ? QVariant(qlonglong(properties->channels())) : QVariant();
    case HRFTagKey::duration:
        return properties ? QVariant(qlonglong(properties->lengthInSeconds())) : QVariant();
    case HRFTagKey::channelMode:
        return properties ? channelModeName(*properties) : QVariant();
    case HRFTagKey::isVBR:
    case HRFTagKey::isDRMProtected:
    case HRFTagKey::isDRMAuthorized:
        return false;
    default:
        return HRFTagProperties::valueForKey(key);
    }
}

void HRFTagEngine::writeValue(const QVariant &value, HRFTagKey key)
{
    HRFTagProperties::setValueForKey(value, key);
}

const TagLib::AudioProperties *HRFTagEngine::audioProperties() const
{
    return tagFile()->audioProperties();
}

HRFResult<void> HRFTagEngine::checkFile()
{
    if (tagFile()->isValid())
        return {};
    return std::unexpected(contentsError());
}

HRFError HRFTagEngine::contentsError(const HRFEngineClass &engineClass)
{
    return reasonError(tr("It does not contain %1").arg(tr(engineClass.contents)));
}

bool HRFTagEngine::canUpdateFile() const
{
    const Lock guard = lock();
    return !stream().readOnly();
}

QString HRFTagEngine::strippableTags() const
{
    const QString tags = tagVersion().value_or(QString());
    const bool hasArtwork = !artwork().value_or(QByteArray()).isEmpty();
    return tags.isEmpty() && hasArtwork ? tr("artwork") : tags;
}

HRFResult<void> HRFTagEngine::updateFileWithError()
{
    const Lock guard = lock();
    if (auto checked = checkChanges(); !checked)
        return checked;
    const HRFResult<void> updated = updateFile();
    if (updated)
        return {};
    stream().discard();
    return std::unexpected(saveError(updated.error()));
}

/// The cause decides between missing permission and every other failure.
HRFError HRFTagEngine::saveError(const HRFError &cause) const
{
    HRFError error;
    error.path = m_fileURL.displayPath();
    error.description = tr("Lirra failed to save the file “%1”").arg(m_fileURL.displayName());
    error.recoverySuggestion =
        cause.recoverySuggestion.isEmpty() ? cause.description : cause.fullText();
    if (stream().readOnly()) {
        error.domain = QString::fromLatin1(HRFFileErrorDomain);
        error.code = HRFFileErrorCode::writeNoPermission;
    } else {
        error.domain = QString::fromLatin1(HRFLirraErrorDomain);
        error.code = HRFLirraErrorCode::saveFailed;
        error.underlying = std::make_shared<const HRFError>(cause);
    }
    return error;
}

HRFResult<void> HRFTagEngine::checkChanges() const
{
    const Lock guard = lock();
    if (!canUpdateFile())
        return std::unexpected(saveError(HRFError::fromErrno(EACCES)));
    for (const auto &[key, value] : m_changes) {
        const QVariant held = readValue(key);
        if (hasContent(value) ? !holds(held, value, key) : hasContent(held))
            return std::unexpected(saveError(notKeptError(key)));
    }
    return {};
}

HRFResult<void> HRFTagEngine::updateFile()
{
    std::map<HRFTagKey, QVariant> values;
    for (const auto &[key, value] : m_changes)
        values[key] = readValue(key);
    if (std::exchange(m_isSpoilt, true))
        return std::unexpected(reasonError(tr("Saving it has failed before.")));
    if (auto saved = saveTags(); !saved)
        return saved;
    if (!values.empty() || !stream().isUnchanged()) {
        if (auto checked = checkSavedFile(values); !checked)
            return checked;
        if (auto committed = stream().commit(); !committed)
            return committed;
    }
    m_isSpoilt = false;
    return {};
}

/// Reads the tags that are about to be written and compares them with what was set: on damaged
/// files TagLib can report success and keep nothing.
HRFResult<void> HRFTagEngine::checkSavedFile(const std::map<HRFTagKey, QVariant> &values) const
{
    const auto written = engineClass().initWithStream(streamForReading(values), false);
    if (!written)
        return std::unexpected(reasonError(tr("The file would not be readable afterwards.")));
    for (const auto &[key, value] : values) {
        const QVariant found = (*written)->readValue(key);
        if (found != value && found != m_changes.at(key))
            return std::unexpected(notKeptError(key));
    }
    return {};
}

std::shared_ptr<HRFTagStream>
HRFTagEngine::streamForReading(const std::map<HRFTagKey, QVariant> &) const
{
    return m_stream;
}

void HRFTagEngine::startAnew()
{
    stream().discard();
    m_changes.clear();
    m_isSpoilt = false;
}

HRFError HRFTagEngine::reasonError(const QString &reason)
{
    HRFError error = HRFError::fromErrno(EINVAL);
    error.description = reason;
    return error;
}

const char *HRFTagEngine::ID3FrameForKey(HRFTagKey key)
{
    return HRFMapManager::ID3Frames()[std::size_t(key)];
}

const char *HRFTagEngine::ID3v2_4FrameForKey(HRFTagKey key)
{
    return HRFMapManager::ID3FramesV2_4Diffs()[std::size_t(key)];
}

const char *HRFTagEngine::atomNameForKey(HRFTagKey key)
{
    return HRFMapManager::MP4Frames()[std::size_t(key)];
}

const char *HRFTagEngine::APEFrameForKey(HRFTagKey key)
{
    return HRFMapManager::APEFrames()[std::size_t(key)];
}

const char *HRFTagEngine::xiphTagNameForKey(HRFTagKey key)
{
    return HRFMapManager::OGGFrames()[std::size_t(key)];
}

const char *HRFTagEngine::INFOChunkIDForKey(HRFTagKey key)
{
    return HRFMapManager::INFOFrames()[std::size_t(key)];
}
