#pragma once

#include "store/HRFPersistentStoreManager.h"

#include <QStringList>

#include <vector>

/// A titled group of attributes in the editor sidebar.
struct HRFTagsViewGroup
{
    QString title{};
    /// Of the attribute catalogue, in the order in which they are shown.
    QStringList attributeNames{};
    /// The user sees the title alone.
    bool isCollapsed = false;

    friend bool operator==(const HRFTagsViewGroup &, const HRFTagsViewGroup &) = default;
};

/// Keeps which tags and properties the sidebar shows, in which groups. For the main thread.
class HRFViewConfigManager : public HRFPersistentStoreManager
{
    Q_OBJECT
public:
    using Groups = std::vector<HRFTagsViewGroup>;

    /// Made on the first call.
    static HRFViewConfigManager &sharedManager();
    /// Saves and closes its store, as must be done before the data folder goes; the next call makes
    /// another.
    static void releaseSharedManager();

    QString modelName() const override;
    QString databaseName() const override;
    bool saveOnQuit() const override { return true; }

    const Groups &groups() const { return m_groups; }
    /// Names that the catalogue does not have, and names used twice, are left out.
    void setGroups(const Groups &groups);
    void setCollapsed(std::size_t group, bool isCollapsed);
    /// What is shown as long as the user has not chosen.
    static Groups defaultGroups();

Q_SIGNALS:
    /// The groups are others now; one that is collapsed or expanded stays what it is.
    void groupsDidChange();

private:
    HRFViewConfigManager();
    void readGroups();
    void storeGroups();

    Groups m_groups;
};
