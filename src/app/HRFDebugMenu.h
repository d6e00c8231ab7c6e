#pragma once

#include <QMenu>

class HRFApplicationDelegate;

/// Commands that throw away what the program has stored; there for those who ask for it in the
/// preferences.
class HRFDebugMenu : public QMenu
{
    Q_OBJECT
public:
    HRFDebugMenu(HRFApplicationDelegate &application, QWidget *parent);

private:
    void endProgramAnd(const std::function<void()> &reset);
    void showIfWanted();

    HRFApplicationDelegate &m_application;
};
