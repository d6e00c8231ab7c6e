#pragma once

#include "kit/HRFUserInteraction.h"

#include <QDialog>
#include <QTimer>

class QLabel;
class QProgressBar;
class QPushButton;

/// Shows how far some work is. It appears a moment after it was made, so that quick work does not
/// flash, and not in front of a question. To close it is to cancel the work.
class HRFProgressDialog : public QDialog
{
    Q_OBJECT
public:
    HRFProgressDialog(std::shared_ptr<HRFProgress> progress, HRFProgressAppearance appearance,
                      QWidget *parent);

    void reject() override;

private:
    void appear();
    bool isQuestionBeside() const;
    void refresh();

    const std::shared_ptr<HRFProgress> m_progress;
    const HRFProgressAppearance m_appearance;
    QLabel *m_title;
    QProgressBar *m_bar;
    QLabel *m_details;
    QPushButton *m_cancel;
    QTimer m_appearing;
    QTimer m_timer;
};
