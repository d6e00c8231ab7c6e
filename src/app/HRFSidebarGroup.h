#pragma once

#include <QWidget>

#include <vector>

class HRFSidebarField;
class QGridLayout;
class QToolButton;
struct HRFListColumn;
struct HRFTagsViewGroup;

/// A titled group of fields in the sidebar. A click on the title hides the fields or shows them.
class HRFSidebarGroup : public QWidget
{
    Q_OBJECT
public:
    HRFSidebarGroup(const HRFTagsViewGroup &group, QWidget *parent);

    const std::vector<HRFSidebarField *> &fields() const { return m_fields; }
    bool isExpanded() const { return m_isExpanded; }

Q_SIGNALS:
    void didToggle(bool isExpanded);

private:
    void addFields(const QStringList &names);
    void addRow(const HRFListColumn &column, QWidget &field, const HRFSidebarField &labelled);
    QWidget *makePair(const HRFListColumn &number, const HRFListColumn &total);
    HRFSidebarField &makeField(const HRFListColumn &column, QWidget *parent);
    void showFields(bool isExpanded);

    QToolButton *m_title;
    QWidget *m_body;
    QGridLayout *m_grid;
    std::vector<HRFSidebarField *> m_fields;
    bool m_isExpanded = true;
};
