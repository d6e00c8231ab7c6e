#pragma once

#include <QWidget>

/// A rating as stars. Files keep a number from 0, which is none, to 255.
namespace HRFStars {

inline constexpr int most = 5;
/// What they take with the space around them.
inline constexpr int width = 88;

int starsOf(qlonglong rating);
/// The number that other programs take for as many stars.
int ratingOf(int stars);

void paint(QPainter &painter, const QRect &cell, int stars, bool isSelected);
/// The star at a place in a cell, from 1; 0 where there is none.
int starAt(const QRect &cell, QPoint place);

} // namespace HRFStars

/// Lets the user choose a number of stars: by a click on the last of them, which takes all away
/// when there are as many, by the keys 0 to 5, Left and Right, and Delete or Backspace for none.
class HRFStarsEditor : public QWidget
{
    Q_OBJECT
public:
    explicit HRFStarsEditor(QWidget *parent);

    int stars() const { return m_stars; }
    void setStars(int stars);
    /// Shows no stars, but a note that there are several numbers. Any number is another then, also
    /// 0.
    void setDiffering(const QString &note);
    const QString &note() const { return m_note; }

    /// As if the user did so.
    void choose(int stars);

Q_SIGNALS:
    /// The user has chosen another number.
    void didChoose();
    /// The user has clicked a star, and is done.
    void editingFinished();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void display(int stars, const QString &note);

    int m_stars = 0;
    QString m_note; ///< when there are several numbers
};
