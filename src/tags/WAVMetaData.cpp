#include "tags/WAVMetaData.h"

#include "kit/HRFUserDefaults.h"
#include "tags/HRFTagStream.h"
#include "tags/IFFCheck.h"
#include "tags/IFFID3.h"
#include "tags/TagLibText.h"
#include "tags/WAVInfo.h"

#include <QCoreApplication>
#include <taglib/infotag.h>
#include <taglib/wavproperties.h>

#include <cerrno>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"bwf", "wav", "wave"};

int enabledTagTypes()
{
    const HRFUserDefaults &defaults = HRFUserDefaults::standard();
    return (defaults.boolForKey(u"lirra.tagging.RIFF.ID3v2"_s) ? RIFF::WAV::File::ID3v2 : 0)
        + (defaults.boolForKey(u"lirra.tagging.RIFF.INFO"_s) ? RIFF::WAV::File::Info : 0);
}

/// Files whose sizes stand in a "ds64" chunk (EBU Tech 3306, ITU-R BS.2088).
bool has64BitSizes(HRFTagStream &stream)
{
    return IFFHasHeader(stream, RIFFLayout, "RF64", "WAVE")
        || IFFHasHeader(stream, RIFFLayout, "BW64", "WAVE");
}

std::unique_ptr<RIFF::WAV::File> openFile(HRFTagStream &stream, bool readProperties,
                                          ID3v2::FrameFactory *frameFactory)
{
    WAVRegisterInfoTexts();
    return std::make_unique<RIFF::WAV::File>(&stream, readProperties, AudioProperties::Average,
                                             frameFactory);
}

} // namespace

const HRFEngineClass WAVMetaData::metadataClass{"WAVMetaData", fileTypes,
                                                QT_TRANSLATE_NOOP("HRFTagEngine", "WAVE audio"),
                                                &HRFMakeEngine<WAVMetaData>};

WAVMetaData::WAVMetaData(std::shared_ptr<HRFTagStream> file, bool readProperties)
    : HRFTagUnion(std::move(file))
    , m_saveTagTypes(enabledTagTypes())
    , m_tagFile(openFile(stream(), readProperties, frameFactory()))
{
}

ID3v2::Tag *WAVMetaData::ID3V2Tag() const
{
    return m_tagFile->ID3v2Tag();
}

RIFF::Info::Tag *WAVMetaData::infoTag() const
{
    return m_tagFile->InfoTag();
}

HRFText WAVMetaData::stringForINFOTag(const char *chunkID) const
{
    const Lock guard = lock();
    if (!chunkID || !infoTag())
        return {};
    const RIFF::Info::FieldListMap fields = infoTag()->fieldListMap();
    const auto found = fields.find(chunkID);
    return found == fields.end() ? HRFText() : TagLibText::toQString(found->second);
}

void WAVMetaData::setStringForINFOTag(const HRFText &value, const char *chunkID)
{
    const Lock guard = lock();
    if (!chunkID || !infoTag())
        return;
    if (value && !value->isEmpty())
        infoTag()->setFieldText(chunkID, TagLibText::toTagString(*value));
    else
        infoTag()->removeField(chunkID);
}

void WAVMetaData::removeValueForINFOTag(const char *chunkID)
{
    setStringForINFOTag({}, chunkID);
}

HRFText WAVMetaData::stringForINFOKey(HRFTagKey key) const
{
    return stringForINFOTag(INFOChunkIDForKey(key));
}

void WAVMetaData::setStringForINFOKey(const HRFText &value, HRFTagKey key)
{
    setStringForINFOTag(value, INFOChunkIDForKey(key));
}

void WAVMetaData::removeValueForINFOKey(HRFTagKey key)
{
    removeValueForINFOTag(INFOChunkIDForKey(key));
}

HRFNumber WAVMetaData::numberForINFOKey(HRFTagKey key) const
{
    return numberForString(stringForINFOKey(key));
}

void WAVMetaData::setNumberForINFOKey(const HRFNumber &value, HRFTagKey key)
{
    setStringForINFOKey(stringForNumber(value), key);
}

QVariant WAVMetaData::secondValueForKey(HRFTagKey key) const
{
    return valueFromText(stringForINFOKey(key), HRFRowForKey(key).type);
}

void WAVMetaData::setSecondValueForKey(const QVariant &value, HRFTagKey key)
{
    setStringForINFOKey(textFromValue(value, HRFRowForKey(key).type), key);
}

QString WAVMetaData::secondTagVersion() const
{
    return m_tagFile->hasInfoTag() ? u"INFO"_s : QString();
}

HRFResult<void> WAVMetaData::stripTags()
{
    const Lock guard = lock();
    std::vector<ByteVector> chunkIDs;
    for (const auto &[chunkID, text] : infoTag()->fieldListMap())
        chunkIDs.push_back(chunkID);
    for (const ByteVector &chunkID : chunkIDs)
        infoTag()->removeField(chunkID);
    m_obstacle.clear();
    return ID3MetaData::stripTags();
}

/// TagLib takes any bytes for a RIFF file.
HRFResult<void> WAVMetaData::checkFile()
{
    if (has64BitSizes(stream()))
        return std::unexpected(reasonError(
            QCoreApplication::translate("WAVMetaData", "RF64 files are not supported")));
    if (!IFFHasHeader(stream(), RIFFLayout, "RIFF", "WAVE"))
        return std::unexpected(contentsError());
    if (auto checked = ID3MetaData::checkFile(); !checked)
        return checked;
    const std::vector<IFFChunk> chunks = IFFReadChunks(stream(), RIFFLayout).chunks;
    const QString inID3 = IFFMergeID3(stream(), chunks, *m_tagFile, *ID3V2Tag());
    const QString inInfo = WAVReadInfo(stream(), chunks, *infoTag());
    // A tag that is switched off is removed from the file anyway.
    if ((m_saveTagTypes & RIFF::WAV::File::ID3v2) != 0)
        m_obstacle = inID3;
    if ((m_saveTagTypes & RIFF::WAV::File::Info) != 0 && m_obstacle.isEmpty())
        m_obstacle = inInfo;
    return {};
}

QVariant WAVMetaData::readValue(HRFTagKey key) const
{
    if (key == HRFTagKey::format)
        return u"WAVE"_s;
    const RIFF::WAV::Properties *properties = m_tagFile->audioProperties();
    if (key == HRFTagKey::bitDepth)
        return properties ? QVariant(qlonglong(properties->bitsPerSample())) : QVariant();
    return HRFTagUnion::readValue(key);
}

HRFResult<void> WAVMetaData::saveTags()
{
    if (!m_obstacle.isEmpty())
        return std::unexpected(reasonError(m_obstacle));
    if (const QString obstacle = IFFObstacleToSaving(stream(), RIFFLayout, "data");
        !obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    if (auto prepared = prepareSaving(preferredID3v2Version()); !prepared)
        return prepared;
    const auto types = static_cast<RIFF::WAV::File::TagTypes>(m_saveTagTypes);
    const auto version = preferredID3v2Version() == 3 ? ID3v2::v3 : ID3v2::v4;
    if (!m_tagFile->save(types, File::StripOthers, version))
        return std::unexpected(HRFError::fromErrno(EIO));
    if (const QString obstacle = IFFObstacleToKeeping(stream(), RIFFLayout); !obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    return {};
}
