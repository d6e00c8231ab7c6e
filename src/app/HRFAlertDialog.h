#pragma once

#include "kit/HRFUserInteraction.h"

#include <QDialog>

#include <optional>

class QCheckBox;
class QPushButton;

/// A question on top of a window.
class HRFAlertDialog : public QDialog
{
    Q_OBJECT
public:
    HRFAlertDialog(const HRFAlert &alert, QWidget *parent);

    /// That of the pressed button; answerOfNobody() until one is.
    const HRFAlertAnswer &answer() const { return m_answer; }
    /// The button that Escape presses; nothing when the question has to be answered.
    static std::optional<std::size_t> buttonForEscape(const HRFAlert &alert);

    /// The answer that does least, for a question that goes without one.
    static HRFAlertAnswer answerOfNobody(const HRFAlert &alert);

    void reject() override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void makeWidgets();
    QWidget *makeTexts();
    QWidget *makeIcon();
    QWidget *makeButtons();
    void choose(std::size_t button);
    void showAlternateTitles(bool areAlternate);

    const HRFAlert m_alert;
    std::vector<QPushButton *> m_buttons;
    QCheckBox *m_suppression = nullptr;
    HRFAlertAnswer m_answer;
};
