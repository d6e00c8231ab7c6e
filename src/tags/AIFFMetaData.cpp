#include "tags/AIFFMetaData.h"

#include "tags/HRFTagStream.h"
#include "tags/IFFCheck.h"
#include "tags/IFFID3.h"

#include <taglib/aiffproperties.h>

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"aif", "aifc", "aiff", "cdda"};

} // namespace

const HRFEngineClass AIFFMetaData::metadataClass{"AIFFMetaData", fileTypes,
                                                 QT_TRANSLATE_NOOP("HRFTagEngine", "AIFF audio"),
                                                 &HRFMakeEngine<AIFFMetaData>};

AIFFMetaData::AIFFMetaData(std::shared_ptr<HRFTagStream> file, bool readProperties)
    : ID3MetaData(std::move(file))
    , m_tagFile(std::make_unique<RIFF::AIFF::File>(&stream(), readProperties,
                                                   AudioProperties::Average, frameFactory()))
{
}

/// TagLib takes any bytes for an IFF file.
HRFResult<void> AIFFMetaData::checkFile()
{
    if (!IFFHasHeader(stream(), AIFFLayout, "FORM", "AIFFAIFC"))
        return std::unexpected(contentsError());
    if (auto checked = ID3MetaData::checkFile(); !checked)
        return checked;
    m_obstacle =
        IFFMergeID3(stream(), IFFReadChunks(stream(), AIFFLayout).chunks, *m_tagFile, *ID3V2Tag());
    return {};
}

HRFResult<void> AIFFMetaData::stripTags()
{
    const Lock guard = lock();
    m_obstacle.clear();
    return ID3MetaData::stripTags();
}

QVariant AIFFMetaData::readValue(HRFTagKey key) const
{
    const RIFF::AIFF::Properties *properties = m_tagFile->audioProperties();
    if (key == HRFTagKey::format)
        return properties && properties->isAiffC() ? u"AIFF-C"_s : u"AIFF"_s;
    if (key == HRFTagKey::bitDepth)
        return properties ? QVariant(qlonglong(properties->bitsPerSample())) : QVariant();
    return ID3MetaData::readValue(key);
}

HRFResult<void> AIFFMetaData::saveTags()
{
    if (!m_obstacle.isEmpty())
        return std::unexpected(reasonError(m_obstacle));
    if (const QString obstacle = IFFObstacleToSaving(stream(), AIFFLayout, "SSND");
        !obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    if (auto saved = saveAsVersion4(*m_tagFile); !saved)
        return saved;
    if (const QString obstacle = IFFObstacleToKeeping(stream(), AIFFLayout); !obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    return {};
}
