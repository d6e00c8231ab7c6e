#pragma once

#include "document/HRFFileWalker.h"

#include <QToolButton>

class HRFPlaylist;

/// Tells that something could not be added to a list; a click says what and why, and takes the
/// notice away. A drop of many files is not to end in an alert for every one of them.
class HRFImportNotice : public QToolButton
{
    Q_OBJECT
public:
    HRFImportNotice(HRFPlaylist &list, QWidget *parent);

private:
    void add(const std::vector<HRFFileProblem> &problems);
    void explain();

    HRFPlaylist &m_list;
    std::vector<HRFFileProblem> m_problems;
};
