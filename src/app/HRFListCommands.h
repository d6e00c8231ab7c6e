#pragma once

#include <QHash>
#include <QObject>

class HRFListWindow;
class QAction;
class QMenu;
class QMenuBar;
class QToolBar;

/// The commands of a list window: its menus, its tool bar, and which of them can be given now.
class HRFListCommands : public QObject
{
    Q_OBJECT
public:
    explicit HRFListCommands(HRFListWindow &window);

    void fill(QMenuBar &bar);
    void fill(QToolBar &bar);
    /// The commands on the selected files.
    void fillContextMenu(QMenu &menu);
    /// The action of a command; there must be one with the name (assertion "command").
    QAction *action(const QString &name) const;
    /// As the user reads it.
    QString shortcutOf(const QString &name) const;

    /// Enables the commands that can be given, and names what would be undone.
    void validate();

private:
    QAction *makeAction(int row);
    void addMenusOfColumns(QMenu &view);
    void addRecentFolders(QMenu &file);

    HRFListWindow &m_window;
    QHash<QString, QAction *> m_actions;
};
