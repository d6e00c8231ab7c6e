#pragma once

#include <QTimer>
#include <QWidget>

class HRFPlaylist;
class QLabel;
class QProgressBar;

/// Tells how far the writing of a list's files is, and lets the user cancel the rest; hidden while
/// nothing is written for long.
class HRFPendingWork : public QWidget
{
    Q_OBJECT
public:
    HRFPendingWork(HRFPlaylist &list, QWidget *parent);

private:
    void look();
    void cancel();

    HRFPlaylist &m_list;
    QLabel *m_label;
    QProgressBar *m_bar;
    QTimer m_timer;
};
