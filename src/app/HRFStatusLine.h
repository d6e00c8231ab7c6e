#pragma once

#include <QLabel>
#include <QTimer>

#include <chrono>

class HRFPlaylist;

/// Tells how many files a list shows, how many of them are selected, and how large and long those
/// are together. Sums are made when the list has come to rest.
class HRFStatusLine : public QLabel
{
    Q_OBJECT
public:
    HRFStatusLine(HRFPlaylist &list, QWidget *parent);

private:
    /// A timer that is to end earlier is left to run: then the line follows even what never rests.
    void refreshAfter(std::chrono::milliseconds rest);
    void refresh();

    HRFPlaylist &m_list;
    QTimer m_timer;
};
