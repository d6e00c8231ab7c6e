#pragma once

/// What a list needs of its window. A list without one has nobody to show anything to.
class HRFPlaylistWindow
{
public:
    HRFPlaylistWindow() = default;
    HRFPlaylistWindow(const HRFPlaylistWindow &) = delete;
    HRFPlaylistWindow &operator=(const HRFPlaylistWindow &) = delete;
    virtual ~HRFPlaylistWindow() = default;

    virtual void showWindows() = 0;
    /// Whether a sheet stands in the way of other commands.
    virtual bool hasAttachedSheet() const = 0;
    /// Lets the user choose files and folders of the given types (lower-case extensions).
    virtual void runAddPanel(const QStringList &fileTypes) = 0;
    /// Lets the user choose the folder for HRFPlaylist::moveSelectedFilesToFolder.
    virtual void runMovePanel() { }
    /// Shows the window in which patterns are edited.
    virtual void showConvertWindow() { }
    /// Takes what is being typed for entered.
    virtual void commitEditing() { }
    virtual void focusFilterFieldIfNeeded() = 0;
    virtual void clearFilterField() = 0;
    virtual void focusInitialControl() = 0;
    virtual void scrollToSelection() = 0;
    virtual void reloadArtworkPane() = 0;
};
