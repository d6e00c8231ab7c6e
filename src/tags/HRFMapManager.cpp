#include "tags/HRFMapManager.h"

#include "kit/HRFUserDefaults.h"
#include "tags/HRFFrameRows.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

// Qt's macro must stand outside any namespace.
static void initResources()
{
    Q_INIT_RESOURCE(lirra_tags);
}

namespace {

struct FrameOverride
{
    HRFTagKey key;
    const char *frame;
};

/// How a popular player expects groupings and works in ID3v2 tags.
constexpr FrameOverride compatibilityOverrides[] = {
    {HRFTagKey::grouping, "GRP1"},
    {HRFTagKey::work, "TIT1"},
};

/// One column of the rows; @p differences overrides it where that column is not empty.
consteval HRFFrameTable tableOfColumn(std::string_view HRFFrameRow::*column,
                                      std::string_view HRFFrameRow::*differences = nullptr)
{
    HRFFrameTable table{};
    for (const HRFFrameRow &row : HRFFrameRows) {
        std::string_view name = row.*column;
        if (differences && !(row.*differences).empty())
            name = row.*differences;
        table[std::size_t(row.key)] = name.empty() ? nullptr : name.data();
    }
    return table;
}

consteval HRFFrameTable withOverrides(HRFFrameTable table)
{
    for (const FrameOverride &override : compatibilityOverrides)
        table[std::size_t(override.key)] = override.frame;
    return table;
}

constexpr HRFFrameTable MP4Table = tableOfColumn(&HRFFrameRow::mp4);
constexpr HRFFrameTable APETable = tableOfColumn(&HRFFrameRow::ape);
constexpr HRFFrameTable OGGTable = tableOfColumn(&HRFFrameRow::ape, &HRFFrameRow::vorbis);
constexpr HRFFrameTable INFOTable = tableOfColumn(&HRFFrameRow::info);
constexpr HRFFrameTable ID3Table = tableOfColumn(&HRFFrameRow::id3v2);
constexpr HRFFrameTable compatibleID3Table = withOverrides(ID3Table);
constexpr HRFFrameTable ID3v24Table = tableOfColumn(&HRFFrameRow::id3v2, &HRFFrameRow::id3v24);
constexpr HRFFrameTable compatibleID3v24Table = withOverrides(ID3v24Table);

bool prefersCompatibility()
{
    return HRFUserDefaults::standard().boolForKey(u"lirra.tagging.iTunesID3v2Compatibility"_s);
}

QHash<QString, QString> loadFrameDescriptions()
{
    initResources();
    QFile file(u":/lirra/FrameDescriptions.json"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The resource FrameDescriptions.json is missing.");
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    QHash<QString, QString> descriptions;
    for (auto it = object.begin(); it != object.end(); ++it)
        descriptions.insert(it.key(), it.value().toString());
    return descriptions;
}

} // namespace

HRFMapManager &HRFMapManager::sharedMapManager()
{
    static HRFMapManager manager;
    return manager;
}

HRFMapManager::HRFMapManager() : m_frameDescriptions(loadFrameDescriptions())
{
    updateMappingPreferences();
    m_ID3FramesV2_4Diffs = prefersCompatibility() ? compatibleID3v24Table : ID3v24Table;
}

void HRFMapManager::updateMappingPreferences()
{
    m_ID3Frames.store(prefersCompatibility() ? &compatibleID3Table : &ID3Table);
}

const QHash<QString, QString> &HRFMapManager::frameDescriptions()
{
    return sharedMapManager().m_frameDescriptions;
}

const HRFFrameTable &HRFMapManager::MP4Frames()
{
    return MP4Table;
}

const HRFFrameTable &HRFMapManager::ID3Frames()
{
    return *sharedMapManager().m_ID3Frames.load();
}

const HRFFrameTable &HRFMapManager::ID3FramesV2_4Diffs()
{
    return sharedMapManager().m_ID3FramesV2_4Diffs;
}

const HRFFrameTable &HRFMapManager::APEFrames()
{
    return APETable;
}

const HRFFrameTable &HRFMapManager::OGGFrames()
{
    return OGGTable;
}

const HRFFrameTable &HRFMapManager::INFOFrames()
{
    return INFOTable;
}
