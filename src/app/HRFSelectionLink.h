#pragma once

#include <QObject>

class HRFArrayController;
class HRFListModel;
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

    HRFArrayController &m_controller;
    HRFListModel &m_model;
    QItemSelectionModel &m_selection;
    bool m_isGiving = false;
};
