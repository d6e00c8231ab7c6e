#pragma once

#include "app/HRFPreferenceTable.h"

#include <QDialog>

class QBoxLayout;

/// The user's settings in panes. What is changed holds at once.
class HRFPreferencesWindow : public QDialog
{
    Q_OBJECT
public:
    HRFPreferencesWindow();

    /// Shows the window in front of the others.
    void present();

private:
    QWidget *makePane(HRFPreferencePane pane);
    static void addGroups(HRFPreferencePane pane, QBoxLayout &layout);
    static void restoreDefaults(HRFPreferencePane pane);
};
