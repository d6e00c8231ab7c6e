#pragma once

#include "store/HRFManagedObject.h"

#include <QScrollArea>
#include <QTimer>

#include <unordered_set>
#include <vector>

class HRFArtworkPane;
class HRFPlaylist;
class HRFSidebarField;
class HRFSidebarGroup;
class QLabel;
struct HRFContextChanges;
struct HRFListColumn;

/// Shows the values of the selected records of a list in groups of fields, and their picture. What
/// the user enters goes into all of these records, as one edit.
///
/// With many records, values are compared a little at a time between other events.
class HRFSidebar : public QScrollArea
{
    Q_OBJECT
public:
    HRFSidebar(HRFPlaylist &list, QWidget *parent);
    ~HRFSidebar() override;

    /// Takes what was typed last.
    void commit();
    void focusFirstField();
    void configure();
    HRFArtworkPane &artworkPane() const { return *m_artwork; }

    bool event(QEvent *event) override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void makeGroups();
    void removeGroups();
    void chainFocus();
    /// Takes what was typed, but for what is no value: that is gone.
    void finishEditing();
    HRFSidebarGroup *makeGroup(std::size_t index, QWidget *parent);
    void selectionDidChange();
    void contextDidChange(const HRFContextChanges &changes);
    void makeStale(HRFSidebarField *field);
    void makeAllStale();
    void refreshSome();
    void edit(const HRFListColumn &column, const QVariant &value);
    void showSummary();

    HRFPlaylist &m_list;
    QWidget *m_content;
    QWidget *m_groupsPane = nullptr;
    QLabel *m_summary;
    HRFArtworkPane *m_artwork;
    std::vector<HRFSidebarGroup *> m_groups;
    /// What is edited: the records that were selected when the user saw the fields.
    std::vector<HRFObjectID> m_records;
    std::unordered_set<HRFSidebarField *> m_stale; ///< fields to be compared anew
    bool m_isSummaryStale = true;
    QTimer m_refresh;
};
