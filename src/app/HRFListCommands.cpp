#include "app/HRFListCommands.h"

#include "app/HRFIcons.h"
#include "app/HRFListHeader.h"
#include "app/HRFListWindow.h"
#include "document/HRFDocumentController.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFAssert.h"
#include "kit/HRFUserInteraction.h"

#include <QAction>
#include <QMenuBar>
#include <QToolBar>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

struct CommandRow
{
    const char *menu = "";
    QLatin1StringView name; ///< the action's object name; nothing for a separator
    const char *text = "";
    const char *shortcut = "";
    const char *icon = "";
    const char *toolTip = "";
    void (HRFListWindow::*perform)() = nullptr;
    bool (HRFListWindow::*isPossible)() const = nullptr; ///< always, when there is none
};

constexpr auto file = QT_TRANSLATE_NOOP("HRFListCommands", "&File");
constexpr auto edit = QT_TRANSLATE_NOOP("HRFListCommands", "&Edit");
constexpr auto tags = QT_TRANSLATE_NOOP("HRFListCommands", "&Tags");
constexpr auto view = QT_TRANSLATE_NOOP("HRFListCommands", "&View");
constexpr auto help = QT_TRANSLATE_NOOP("HRFListCommands", "&Help");

using Window = HRFListWindow;

/// Every command in the order of the menus.
const CommandRow rows[] = {
    {file, "newList"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&New List"), "Ctrl+N", "", "",
     &Window::newList},
    {file, ""_L1},
    {file, "addFiles"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&Add Files…"), "Ctrl+O",
     "add-files", QT_TRANSLATE_NOOP("HRFListCommands", "Add audio files to the list"),
     &Window::addFiles, &Window::canAdd},
    {file, "addFolder"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "Add F&older…"), "Ctrl+Shift+O",
     "add-folder", QT_TRANSLATE_NOOP("HRFListCommands", "Add all audio files of a folder"),
     &Window::addFolder, &Window::canAdd},
    {file, "recentFolders"_L1},
    {file, ""_L1},
    {file, "reveal"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&Show in File Manager"),
     "Ctrl+Shift+R", "reveal",
     QT_TRANSLATE_NOOP("HRFListCommands", "Show the selected files in the file manager"),
     &Window::reveal, &Window::hasSelection},
    {file, ""_L1},
    {file, "closeList"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&Close List"), "Ctrl+W", "", "",
     &Window::closeList, &Window::canCloseList},
    {file, "quit"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&Quit"), "Ctrl+Q", "", "",
     &Window::quit},

    {edit, "undo"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&Undo"), "Ctrl+Z", "undo", "",
     &Window::undo, &Window::canUndo},
    {edit, "redo"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&Redo"), "Ctrl+Shift+Z", "redo", "",
     &Window::redo, &Window::canRedo},
    {edit, ""_L1},
    {edit, "copyPath"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "Copy &Path"), "Ctrl+Shift+C", "",
     QT_TRANSLATE_NOOP("HRFListCommands", "Copy the paths of the selected files"),
     &Window::copyPath, &Window::hasSelection},
    {edit, ""_L1},
    {edit, "remove"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "Re&move from List"), "Del", "remove",
     QT_TRANSLATE_NOOP("HRFListCommands",
                       "Take the selected files out of the list; the files themselves stay"),
     &Window::remove, &Window::canRemove},
    {edit, "clear"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "C&lear List"), "Ctrl+Shift+Del", "",
     QT_TRANSLATE_NOOP("HRFListCommands",
                       "Take all shown files out of the list; the files themselves stay"),
     &Window::clear, &Window::canClear},
    {edit, ""_L1},
    {edit, "selectAll"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "Select &All"), "Ctrl+A", "", "",
     &Window::selectAll, &Window::hasFiles},
    {edit, "filter"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&Filter"), "Ctrl+F", "", "",
     &Window::focusFilterField},
    {edit, "filterColumn"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "Filter by &Column…"),
     "Ctrl+Shift+F", "",
     QT_TRANSLATE_NOOP("HRFListCommands", "Choose which values of the current column are shown"),
     &Window::filterCurrentColumn},
    {edit, "clearFilter"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "Sho&w All Files"),
     "Ctrl+Shift+A", "", QT_TRANSLATE_NOOP("HRFListCommands", "Take all filters away"),
     &Window::clearFilters, &Window::hasFilter},
    {edit, ""_L1},
    {edit, "preferences"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "Pr&eferences…"), "Ctrl+,", "",
     "", &Window::showPreferences},

    {tags, "editCell"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&Edit Value"), "F2", "",
     QT_TRANSLATE_NOOP("HRFListCommands", "Edit the current cell"), &Window::editCell,
     &Window::hasSelection},
    {tags, "editInSidebar"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "Edit in Si&debar"), "Ctrl+I",
     "", QT_TRANSLATE_NOOP("HRFListCommands", "Go to the first field of the sidebar"),
     &Window::editInSidebar, &Window::hasSelection},
    {tags, ""_L1},
    {tags, "strip"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&Strip Tags…"), "", "strip",
     QT_TRANSLATE_NOOP("HRFListCommands", "Remove all metadata from the selected files"),
     &Window::strip, &Window::canStrip},

    {view, "columns"_L1},
    {view, "sortBy"_L1},
    {view, "moveColumnLeft"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "Move Column Lef&t"),
     "Ctrl+Shift+Left", "",
     QT_TRANSLATE_NOOP("HRFListCommands", "Move the column of the current cell"),
     &Window::moveColumnLeft, &Window::canMoveColumnLeft},
    {view, "moveColumnRight"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "Move Column &Right"),
     "Ctrl+Shift+Right", "",
     QT_TRANSLATE_NOOP("HRFListCommands", "Move the column of the current cell"),
     &Window::moveColumnRight, &Window::canMoveColumnRight},
    {view, "fitColumnWidth"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "Fit Column &Width"), "", "",
     QT_TRANSLATE_NOOP("HRFListCommands",
                       "Make the column of the current cell as wide as what stands in it"),
     &Window::fitColumnWidth, &Window::hasCurrentColumn},
    {view, ""_L1},
    {view, "sidebar"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "S&idebar"), "F9", "sidebar",
     QT_TRANSLATE_NOOP("HRFListCommands", "Show or hide the sidebar"), &Window::toggleSidebar},
    {view, "configureSidebar"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "Co&nfigure Sidebar…"), "",
     "", QT_TRANSLATE_NOOP("HRFListCommands", "Choose which fields the sidebar shows"),
     &Window::configureSidebar},
    {view, ""_L1},
    {view, "higherRows"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&Higher Rows"), "Ctrl++", "", "",
     &Window::makeRowsHigher, &Window::canMakeRowsHigher},
    {view, "lowerRows"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&Lower Rows"), "Ctrl+-", "", "",
     &Window::makeRowsLower, &Window::canMakeRowsLower},
    {view, "usualRows"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&Usual Rows"), "Ctrl+0", "", "",
     &Window::makeRowsUsual, &Window::canMakeRowsUsual},
    {view, ""_L1},
    {view, "fullScreen"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&Full Screen"), "F11", "", "",
     &Window::toggleFullScreen},

    {help, "about"_L1, QT_TRANSLATE_NOOP("HRFListCommands", "&About Lirra"), "", "", "",
     &Window::showAbout},
};

constexpr QLatin1StringView toolBarCommands[] = {
    "addFiles"_L1, "addFolder"_L1, ""_L1,      "undo"_L1, "redo"_L1,
    ""_L1,         "remove"_L1,    "strip"_L1, ""_L1,     "reveal"_L1};
constexpr QLatin1StringView contextCommands[] = {"editCell"_L1, "filterColumn"_L1, ""_L1,
                                                 "reveal"_L1,   "copyPath"_L1,     ""_L1,
                                                 "strip"_L1,    "remove"_L1};

/// Menus inside a menu are not cleared with it.
void empty(QMenu &menu)
{
    menu.clear();
    qDeleteAll(menu.findChildren<QMenu *>(Qt::FindDirectChildrenOnly));
}

} // namespace

HRFListCommands::HRFListCommands(HRFListWindow &window) : QObject(&window), m_window(window)
{
    for (int row = 0; row < int(std::size(rows)); ++row)
        if (rows[row].perform)
            m_actions.insert(rows[row].name, makeAction(row));
    m_actions.value(u"quit"_s)->setMenuRole(QAction::QuitRole);
    m_actions.value(u"preferences"_s)->setMenuRole(QAction::PreferencesRole);
    m_actions.value(u"about"_s)->setMenuRole(QAction::AboutRole);
}

QAction *HRFListCommands::makeAction(int row)
{
    const CommandRow &command = rows[row];
    auto *action = new QAction(tr(command.text), &m_window);
    action->setObjectName(command.name);
    action->setShortcut(QKeySequence(QString::fromLatin1(command.shortcut)));
    if (*command.icon)
        action->setIcon(HRFIcons::named(QString::fromLatin1(command.icon)));
    const QString shortcut = action->shortcut().toString(QKeySequence::NativeText);
    const QString toolTip = *command.toolTip ? tr(command.toolTip) : action->toolTip();
    action->setToolTip(shortcut.isEmpty() ? toolTip : u"%1 (%2)"_s.arg(toolTip, shortcut));
    connect(action, &QAction::triggered, &m_window, &HRFListWindow::commitEditing); // comes first
    // What a command throws must not come across Qt's own work, which it would leave half done.
    connect(action, &QAction::triggered, &m_window, [this, &command] {
        HRFUserInteraction::presentFailures(std::bind_front(command.perform, &m_window));
    });
    return action;
}

QAction *HRFListCommands::action(const QString &name) const
{
    QAction *action = m_actions.value(name);
    HRFRequire(action, "command");
    return action;
}

QString HRFListCommands::shortcutOf(const QString &name) const
{
    return action(name)->shortcut().toString(QKeySequence::NativeText);
}

void HRFListCommands::fill(QMenuBar &bar)
{
    QHash<QLatin1StringView, QMenu *> menus;
    for (const CommandRow &row : rows) {
        QMenu *&menu = menus[QLatin1StringView(row.menu)];
        if (!menu) {
            menu = bar.addMenu(tr(row.menu));
            connect(menu, &QMenu::aboutToShow, this, &HRFListCommands::validate);
        }
        if (row.perform)
            menu->addAction(m_actions.value(row.name));
        else if (row.name.isEmpty())
            menu->addSeparator();
        else if (row.name == "recentFolders"_L1)
            addRecentFolders(*menu);
        else if (row.name == "columns"_L1)
            addMenusOfColumns(*menu);
    }
}

void HRFListCommands::addRecentFolders(QMenu &menu)
{
    QMenu *folders = menu.addMenu(tr("Add &Recent Folder"));
    connect(&menu, &QMenu::aboutToShow, folders, [this, folders] {
        folders->clear();
        const QStringList paths = HRFDocumentController::shared().recentDocuments();
        for (const QString &path : paths) {
            const QAction *action = folders->addAction(QString(path).replace(u'&', u"&&"_s));
            connect(action, &QAction::triggered, &m_window, [this, path] {
                m_window.commitEditing();
                m_window.document().importFileAtPath(HRFFileReference::fromPath(path));
            });
        }
        folders->setEnabled(!paths.isEmpty());
    });
}

void HRFListCommands::addMenusOfColumns(QMenu &menu)
{
    QMenu *columns = menu.addMenu(tr("&Columns"));
    connect(columns, &QMenu::aboutToShow, this, [this, columns] {
        empty(*columns);
        m_window.header().addColumnActions(*columns);
    });
    QMenu *order = menu.addMenu(tr("&Sort By"));
    connect(order, &QMenu::aboutToShow, this, [this, order] {
        empty(*order);
        m_window.header().addSortActions(*order);
    });
}

void HRFListCommands::fill(QToolBar &bar)
{
    for (const QLatin1StringView name : toolBarCommands) {
        if (name.isEmpty())
            bar.addSeparator();
        else
            bar.addAction(action(name));
    }
}

void HRFListCommands::fillContextMenu(QMenu &menu)
{
    validate();
    for (const QLatin1StringView name : contextCommands) {
        if (name.isEmpty())
            menu.addSeparator();
        else
            menu.addAction(action(name));
    }
}

void HRFListCommands::validate()
{
    for (const CommandRow &row : rows)
        if (row.isPossible)
            m_actions.value(row.name)->setEnabled((m_window.*row.isPossible)());
    const QUndoStack &stack = m_window.document().undoManager();
    action(u"undo"_s)->setText(stack.undoText().isEmpty() ? tr("&Undo")
                                                          : tr("&Undo “%1”").arg(stack.undoText()));
    action(u"redo"_s)->setText(stack.redoText().isEmpty() ? tr("&Redo")
                                                          : tr("&Redo “%1”").arg(stack.redoText()));
}
