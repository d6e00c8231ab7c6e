#pragma once

#include "app/HRFThumbnails.h"
#include "document/HRFPlaylistWindow.h"

#include <QMainWindow>
#include <QTimer>

#include <memory>

class HRFApplicationDelegate;
class HRFEmptyListHint;
class HRFListCommands;
class HRFListFilter;
class HRFListHeader;
class HRFListModel;
class HRFListView;
class HRFPlaylist;
class HRFSelectionLink;
class HRFSidebar;
class HRFSidebarSplitter;
class QLineEdit;
class QToolBar;

/// The window of a list.
class HRFListWindow : public QMainWindow, public HRFPlaylistWindow
{
    Q_OBJECT
public:
    /// Shows a list, which must live as long as the window does.
    HRFListWindow(HRFPlaylist &list, HRFApplicationDelegate &application);
    ~HRFListWindow() override;

    HRFPlaylist &document() const { return m_list; }
    HRFListModel &model() const { return *m_model; }
    HRFListView &view() const { return *m_view; }
    HRFListHeader &header() const { return *m_header; }
    HRFListCommands &commands() const { return *m_commands; }
    QLineEdit &filterField() const { return *m_filterField; }
    HRFSidebar &sidebar() const { return *m_sidebar; }

    void showWindows() override;
    bool hasAttachedSheet() const override;
    void runAddPanel(const QStringList &fileTypes) override;
    void commitEditing() override;
    void focusFilterFieldIfNeeded() override;
    void clearFilterField() override;
    void focusInitialControl() override;
    void scrollToSelection() override;
    void reloadArtworkPane() override;

    /// Brings the dialog on this window that waits for the user to the front; answers whether there
    /// is one.
    bool presentQuestion();

    // Commands:
    void newList();
    void addFiles();
    void addFolder();
    void reveal();
    void closeList();
    void quit();
    void undo();
    void redo();
    void copyPath();
    void remove();
    void clear();
    void selectAll();
    void focusFilterField();
    void filterCurrentColumn();
    void clearFilters();
    void showPreferences();
    void editCell();
    void strip();
    void moveColumnLeft();
    void moveColumnRight();
    void fitColumnWidth();
    void makeRowsHigher();
    void makeRowsLower();
    void makeRowsUsual();
    void toggleSidebar();
    void editInSidebar();
    void configureSidebar();
    void toggleFullScreen();
    void showAbout();

    // Whether they can be given:
    bool canAdd() const;
    bool canRemove() const;
    bool canClear() const;
    bool canStrip() const;
    bool canUndo() const;
    bool canRedo() const;
    bool canCloseList() const;
    bool hasFiles() const;
    bool hasSelection() const;
    bool hasFilter() const;
    bool canMoveColumnLeft() const;
    bool canMoveColumnRight() const;
    bool hasCurrentColumn() const;
    bool canMakeRowsHigher() const;
    bool canMakeRowsLower() const;
    bool canMakeRowsUsual() const;

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool event(QEvent *event) override;

private:
    void makeTable();
    void makeBars();
    void makeFilterField(QToolBar &bar);
    void connectDocument();
    void filterDidChange();
    void showFilterMenu(int column, const QPoint &corner);
    void showHintIfEmpty();
    void showRowMenu(const QPoint &position);
    void addURLs(const QList<QUrl> &urls);
    void rememberGeometry() const;
    void moveColumn(int step);
    void validateSoon() { m_validation.start(); }

    HRFPlaylist &m_list;
    HRFApplicationDelegate &m_application;
    HRFThumbnails m_thumbnails;
    std::unique_ptr<HRFListModel> m_model;
    std::unique_ptr<HRFSelectionLink> m_selectionLink;
    HRFListHeader *m_header = nullptr;
    HRFListView *m_view = nullptr;
    HRFSidebar *m_sidebar = nullptr;
    HRFSidebarSplitter *m_splitter = nullptr;
    HRFListFilter *m_filter = nullptr;
    HRFListCommands *m_commands = nullptr;
    QLineEdit *m_filterField = nullptr;
    HRFEmptyListHint *m_hint = nullptr;
    QTimer m_validation; ///< once per event, however much changes in it
};
