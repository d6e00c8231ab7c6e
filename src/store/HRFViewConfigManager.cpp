#include "store/HRFViewConfigManager.h"

#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "store/HRFAttributeManager.h"

#include <QSet>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString entityName = u"TagsViewGroup"_s;
constexpr QChar nameSeparator = u' ';

struct DefaultRow
{
    const char *title;
    QLatin1StringView attributeNames;
    bool isCollapsed;
};

constexpr DefaultRow defaultRows[] = {
    {QT_TRANSLATE_NOOP("HRFViewConfigManager", "Basic"),
     "title artist album albumArtist genre year releaseTime trackNumber trackTotal discNumber "
     "discTotal isPartOfACompilation rating bpm comment"_L1,
     false},
    {QT_TRANSLATE_NOOP("HRFViewConfigManager", "People"),
     "composer lyricist conductor remixArtist publisher originalArtist involvedPeopleList "
     "musicianCreditsList"_L1,
     true},
    {QT_TRANSLATE_NOOP("HRFViewConfigManager", "Work"),
     "grouping subtitle work movementName movementNumber movementTotal subtitleForSet"_L1, true},
    {QT_TRANSLATE_NOOP("HRFViewConfigManager", "Sorting"),
     "sortTitle sortArtist sortAlbum sortAlbumArtist sortComposer"_L1, true},
    {QT_TRANSLATE_NOOP("HRFViewConfigManager", "Lyrics"), "lyrics language"_L1, true},
    {QT_TRANSLATE_NOOP("HRFViewConfigManager", "More"),
     "key mood copyright isrc mediaType website originalReleaseDate originalAlbumTitle encoder"_L1,
     true},
    {QT_TRANSLATE_NOOP("HRFViewConfigManager", "Podcast"),
     "isPodcast podcastDescription podcastID podcastURL"_L1, true},
    {QT_TRANSLATE_NOOP("HRFViewConfigManager", "Details"),
     "duration format tagVersion bitRate isVBR sampleRate bitDepth channels channelMode"_L1, false},
    {QT_TRANSLATE_NOOP("HRFViewConfigManager", "File"),
     "fileName filePath fileSize dateModified dateCreated"_L1, false},
};

/// The groups without what cannot be shown.
HRFViewConfigManager::Groups showable(HRFViewConfigManager::Groups groups)
{
    QSet<QString> seen;
    for (HRFTagsViewGroup &group : groups) {
        group.attributeNames.removeIf([&seen](const QString &name) {
            const bool isNew = !seen.contains(name);
            seen.insert(name);
            return !isNew || !HRFAttributeManager::sharedManager().attributeNamed(name);
        });
    }
    return groups;
}

std::unique_ptr<HRFViewConfigManager> &sharedInstance()
{
    static std::unique_ptr<HRFViewConfigManager> manager;
    return manager;
}

} // namespace

HRFViewConfigManager &HRFViewConfigManager::sharedManager()
{
    HRFRequire(HRFMainThread::isCurrent(), "isMainThread");
    if (!sharedInstance())
        sharedInstance().reset(new HRFViewConfigManager);
    return *sharedInstance();
}

void HRFViewConfigManager::releaseSharedManager()
{
    HRFRequire(HRFMainThread::isCurrent(), "isMainThread");
    if (sharedInstance())
        sharedInstance()->saveChangesSilently();
    sharedInstance().reset();
}

HRFViewConfigManager::HRFViewConfigManager()
{
    openStore();
    managedObjectContext()->disableUndoRegistration();
    if (storeWasReset()) {
        setGroups(defaultGroups());
        saveChangesSilently(); // no end of the program shall leave a store that shows nothing
    } else {
        readGroups();
    }
}

QString HRFViewConfigManager::modelName() const
{
    return u"HRFTagsViewConfiguration"_s;
}

QString HRFViewConfigManager::databaseName() const
{
    return u"lirra_viewconf.sqlite"_s;
}

HRFViewConfigManager::Groups HRFViewConfigManager::defaultGroups()
{
    Groups groups;
    for (const DefaultRow &row : defaultRows)
        groups.push_back(
            {tr(row.title), QString(row.attributeNames).split(nameSeparator), row.isCollapsed});
    return groups;
}

void HRFViewConfigManager::readGroups()
{
    auto records = managedObjectContext()->fetch(entityName);
    std::ranges::stable_sort(records, {}, [](const HRFManagedObject *record) {
        return record->valueForKey(u"sortIndex"_s).toLongLong();
    });
    for (const HRFManagedObject *record : records) {
        const QString names = record->valueForKey(u"attributeNames"_s).toString();
        m_groups.push_back({record->valueForKey(u"title"_s).toString(),
                            names.split(nameSeparator, Qt::SkipEmptyParts),
                            record->valueForKey(u"isCollapsed"_s).toBool()});
    }
    m_groups = showable(std::move(m_groups));
}

void HRFViewConfigManager::storeGroups()
{
    if (!managedObjectContext())
        return; // the store was reset, and the program is about to end
    managedObjectContext()->deleteObjectsForEntityName(entityName);
    for (std::size_t index = 0; index < m_groups.size(); ++index) {
        HRFManagedObject *record = managedObjectContext()->newObjectForEntityName(entityName);
        record->setValueForKey(qlonglong(index), u"sortIndex"_s);
        record->setValueForKey(m_groups[index].title, u"title"_s);
        record->setValueForKey(m_groups[index].attributeNames.join(nameSeparator),
                               u"attributeNames"_s);
        record->setValueForKey(m_groups[index].isCollapsed, u"isCollapsed"_s);
    }
    saveChangesSilentlyWithDelay();
}

void HRFViewConfigManager::setGroups(const Groups &groups)
{
    m_groups = showable(groups);
    storeGroups();
    Q_EMIT groupsDidChange();
}

void HRFViewConfigManager::setCollapsed(std::size_t group, bool isCollapsed)
{
    HRFRequire(group < m_groups.size(), "group");
    m_groups[group].isCollapsed = isCollapsed;
    storeGroups();
}
