#pragma once

#include <QWidget>

class QAbstractItemView;
class QLabel;

/// Says, over a view without rows, how to get some, or why there are none.
class HRFEmptyListHint : public QWidget
{
    Q_OBJECT
public:
    explicit HRFEmptyListHint(QAbstractItemView &view);

    void setText(const QString &title, const QString &explanation);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void drawIcon();

    QLabel *m_icon;
    QLabel *m_title;
    QLabel *m_explanation;
};
