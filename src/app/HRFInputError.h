#pragma once

#include <QLabel>

class QLineEdit;

/// Says what is wrong with the text of a field: by the field's colour, its tool tip and its
/// description as long as the text is wrong, and in words below the field once it was explained.
///
/// Goes with its field.
class HRFInputError : public QLabel
{
    Q_OBJECT
public:
    explicit HRFInputError(QLineEdit &field);

    /// Empty when nothing is wrong.
    const QString &reason() const { return m_reason; }
    void setReason(const QString &reason);
    /// What assistive programs are told of the field while nothing is wrong.
    void setUsualDescription(const QString &description);
    /// Shows the reason, if there is one, until the text is right or the field is hidden.
    void explain();

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void chooseColour();
    void chooseGround();
    void place();

    QLineEdit &m_field;
    QString m_reason;
    QString m_usualDescription;
};
