#pragma once

#include <QSplitter>

class HRFSidebar;

/// A view with the sidebar at its right. Whether the sidebar is shown, and how wide it is, is
/// remembered.
class HRFSidebarSplitter : public QSplitter
{
    Q_OBJECT
public:
    HRFSidebarSplitter(QWidget &view, HRFSidebar &sidebar, QWidget *parent);

    bool showsSidebar() const;
    void setShowsSidebar(bool shows);

private:
    void rememberWidth() const;

    HRFSidebar &m_sidebar;
};
