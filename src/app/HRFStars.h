#pragma once

#include <QWidget>

/// A rating as stars. Files keep a number from 0, which is none, to 255.
namespace HRFStars {

inline constexpr int most = 5;

int starsOf(qlonglong rating);
/// The number that other programs take for as many stars.
int ratingOf(int stars);

void paint(QPainter &painter, const QRect &cell, int stars, bool isSelected);
/// The star at a place in a cell, from 1; 0 where there is none.
int starAt(const QRect &cell, QPoint place);

} // namespace HRFStars

/// Lets the user choose a number of stars, by a click or by the keys 0 to 5, Left, Right and
/// Delete.
class HRFStarsEditor : public QWidget
{
    Q_OBJECT
public:
    explicit HRFStarsEditor(QWidget *parent);

    int stars() const { return m_stars; }
    void setStars(int stars);

Q_SIGNALS:
    void editingFinished();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    int m_stars = 0;
};
