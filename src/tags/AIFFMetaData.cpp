#include "tags/AIFFMetaData.h"

#include "tags/IFFCheck.h"
#include "tags/IFFID3.h"

using namespace TagLib;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *fileTypes[] = {"aif", "aifc", "aiff", "cdda"};

} // namespace

const HRFEngineClass AIFFMetaData::metadataClass{"AIFFMetaData", fileTypes,
                                                 QT_TRANSLATE_NOOP("HRFTagEngine", "AIFF audio"),
                                                 &HRFMakeEngine<AIFFMetaData>};

/// TagLib takes any bytes for an IFF file.
HRFResult<void> AIFFMetaData::checkFile()
{
    if (!IFFHasHeader(stream(), AIFFLayout, "FORM", "AIFFAIFC"))
        return std::unexpected(contentsError());
    if (auto checked = ID3FileMetaData::checkFile(); !checked)
        return checked;
    const std::vector<IFFChunk> chunks = IFFReadChunks(stream(), AIFFLayout).chunks;
    refuseSaving(IFFMergeID3(stream(), chunks, *tagFile(), *ID3V2Tag()));
    return {};
}

QVariant AIFFMetaData::readValue(HRFTagKey key) const
{
    if (key != HRFTagKey::format)
        return ID3FileMetaData::readValue(key);
    const RIFF::AIFF::Properties *properties = tagFile()->audioProperties();
    return properties && properties->isAiffC() ? u"AIFF-C"_s : u"AIFF"_s;
}

HRFResult<void> AIFFMetaData::saveTags()
{
    if (const QString obstacle = IFFObstacleToSaving(stream(), AIFFLayout, "SSND");
        !obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    if (auto saved = saveAsVersion4(*tagFile()); !saved)
        return saved;
    if (const QString obstacle = IFFObstacleToKeeping(stream(), AIFFLayout); !obstacle.isEmpty())
        return std::unexpected(reasonError(obstacle));
    return {};
}
