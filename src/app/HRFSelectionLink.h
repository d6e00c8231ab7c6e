#pragma once

#include <QObject>

#include <vector>

class HRFArrayController;
class HRFListModel;
class HRFMetaFile;
class QItemSelectionModel;

/// Keeps the selected rows of a view and the selected records of a list the same, whichever of the
/// two changes.
class HRFSelectionLink : public QObject
{
    Q_OBJECT
public:
    HRFSelectionLink(HRFArrayController &controller, HRFListModel &model,
                     QItemSelectionModel &selection);

private:
    void takeFromView();
    void giveToView();
    void restoreCurrent(const std::vector<int> &rows);

    HRFArrayController &m_controller;
    HRFListModel &m_model;
    QItemSelectionModel &m_selection;
    bool m_isGiving = false;
    // The current cell, by which it is found again when rows have changed places:
    const HRFMetaFile *m_currentRecord = nullptr; ///< only to be compared, it may be gone
    int m_currentColumn = 0;
};
