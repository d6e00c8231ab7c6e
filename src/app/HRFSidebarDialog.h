#pragma once

#include "store/HRFViewConfigManager.h"

#include <QDialog>

class QAbstractButton;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QTreeWidget;
class QVBoxLayout;

/// Lets the user choose what the sidebar shows: its groups, their names and order, and the fields
/// of each. Nothing changes before it is accepted.
class HRFSidebarDialog : public QDialog
{
    Q_OBJECT
public:
    explicit HRFSidebarDialog(QWidget *parent);

    void accept() override;

private:
    QWidget *makeGroupsPane();
    QWidget *makeFieldsPane();
    QWidget *makeChoicePane();
    std::vector<QAbstractButton *> makeMovers(QListWidget &list, const QString &upTitle,
                                              const QString &downTitle);
    void move(QListWidget &list, int step);
    void setGroups(const HRFViewConfigManager::Groups &groups);
    HRFViewConfigManager::Groups groups() const;
    void addGroup();
    void removeGroup();
    void showFields();
    void keepFields();
    void addFields();
    void removeFields();
    void showChoice();
    void validate();

    QListWidget *m_groups;
    QListWidget *m_fields;
    QTreeWidget *m_choice;
    QLineEdit *m_search;
    QAbstractButton *m_removeGroup = nullptr;
    QAbstractButton *m_removeField = nullptr;
    QAbstractButton *m_addField = nullptr;
};
