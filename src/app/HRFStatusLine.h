#pragma once

#include <QLabel>
#include <QTimer>

class HRFPlaylist;

/// Tells how many files a list shows, how many of them are selected, and how large and long those
/// are together. Sums are made when the list has come to rest.
class HRFStatusLine : public QLabel
{
    Q_OBJECT
public:
    HRFStatusLine(HRFPlaylist &list, QWidget *parent);

private:
    void refreshSoon();
    void refresh();

    HRFPlaylist &m_list;
    QTimer m_timer;
};
