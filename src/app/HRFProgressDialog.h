#pragma once

#include "kit/HRFUserInteraction.h"

#include <QDialog>
#include <QTimer>

class QLabel;
class QProgressBar;
class QPushButton;

/// Shows how far some work is, as soon as no question is in the way. To close it is to cancel the
/// work.
class HRFProgressDialog : public QDialog
{
    Q_OBJECT
public:
    HRFProgressDialog(std::shared_ptr<HRFProgress> progress, HRFProgressAppearance appearance,
                      QWidget *parent);

    /// Takes it from the screen and destroys it; not while a question stands on it, which would go,
    /// too.
    void end();
    bool isOver() const { return m_isOver; }

    void reject() override;

private:
    void appear();
    void callWhenGone(const QDialog &question, void (HRFProgressDialog::*member)());
    void refresh();

    const std::shared_ptr<HRFProgress> m_progress;
    const HRFProgressAppearance m_appearance;
    QLabel *m_title;
    QProgressBar *m_bar;
    QLabel *m_details;
    QPushButton *m_cancel;
    QTimer m_timer;
    bool m_isOver = false;
};
