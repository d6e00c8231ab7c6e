#include "tags/WAVMetaData.h"

#include "kit/HRFUserDefaults.h"
#include "tags/IFFCheck.h"
#include "tags/IFFID3.h"
#include "tags/TagLibText.h"
#include "tags/WAVInfo.h"

#include <QCoreApplication>

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

} // namespace

const HRFEngineClass WAVMetaData::metadataClass{"WAVMetaData", fileTypes,
                                                QT_TRANSLATE_NOOP("HRFTagEngine", "WAVE audio"),
                                                &HRFMakeEngine<WAVMetaData>};

WAVMetaData::WAVMetaData(std::shared_ptr<HRFTagStream> file, bool readProperties)
    : HRFTagUnion(std::move(file), readProperties), m_saveTagTypes(enabledTagTypes())
{
}

HRFText WAVMetaData::stringForINFOTag(const char *chunkID) const
{
    const Lock guard = lock();
    if (!chunkID)
        return {};
    const RIFF::Info::FieldListMap fields = infoTag()->fieldListMap();
    const auto found = fields.find(chunkID);
    return found == fields.end() ? HRFText() : TagLibText::toQString(found->second);
}

void WAVMetaData::setStringForINFOTag(const HRFText &value, const char *chunkID)
{
    const Lock guard = lock();
    if (chunkID)
        infoTag()->setFieldText(chunkID, TagLibText::toTagString(value.value_or(QString())));
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
    return tagFile()->hasInfoTag() ? u"INFO"_s : QString();
}

HRFResult<void> WAVMetaData::stripTags()
{
    const Lock guard = lock();
    for (const auto &[chunkID, text] : infoTag()->fieldListMap())
        infoTag()->removeField(chunkID);
    return HRFTagUnion::stripTags();
}

/// TagLib takes any bytes for a RIFF file.
HRFResult<void> WAVMetaData::checkFile()
{
    if (has64BitSizes(stream()))
        return std::unexpected(reasonError(
            QCoreApplication::translate("WAVMetaData", "RF64 files are not supported")));
    if (!IFFHasHeader(stream(), RIFFLayout, "RIFF", "WAVE"))
        return std::unexpected(contentsError());
    if (auto checked = HRFTagUnion::checkFile(); !checked)
        return checked;
    const std::vector<IFFChunk> chunks = IFFReadChunks(stream(), RIFFLayout).chunks;
    const QString inInfo = WAVReadInfo(stream(), chunks, *infoTag());
    const QString inID3 = IFFMergeID3(stream(), chunks, *tagFile(), *ID3V2Tag());
    // A tag that is switched off is removed from the file anyway.
    if ((m_saveTagTypes & RIFF::WAV::File::Info) != 0)
        refuseSaving(inInfo);
    if ((m_saveTagTypes & RIFF::WAV::File::ID3v2) != 0)
        refuseSaving(inID3);
    return {};
}

QVariant WAVMetaData::readValue(HRFTagKey key) const
{
    return key == HRFTagKey::format ? u"WAVE"_s : HRFTagUnion::readValue(key);
}

HRFResult<void> WAVMetaData::saveTags()
{
    if (const QString obstacle = IFFObstacleToSaving(stream(), RIFFLayout, "data");
        !obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    if (auto prepared = prepareSaving(preferredID3v2Version()); !prepared)
        return prepared;
    const auto types = static_cast<RIFF::WAV::File::TagTypes>(m_saveTagTypes);
    const auto version = preferredID3v2Version() == 3 ? ID3v2::v3 : ID3v2::v4;
    if (!tagFile()->save(types, File::StripOthers, version))
        return std::unexpected(HRFError::fromErrno(EIO));
    if (const QString obstacle = IFFObstacleToKeeping(stream(), RIFFLayout); !obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    return {};
}
