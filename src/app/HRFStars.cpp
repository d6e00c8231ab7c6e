#include "app/HRFStars.h"

#include "app/HRFAccessibility.h"
#include "app/HRFIcons.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The least rating that is shown as so many stars, and the one that is written for them.
struct Step
{
    int least;
    int written;
};
constexpr std::array<Step, HRFStars::most> steps{
    {{1, 1}, {32, 64}, {96, 128}, {160, 196}, {224, 255}}};

constexpr int starSize = 14;
constexpr int starSpace = 2;
constexpr int leftMargin = 4;

QRect starRect(const QRect &cell, int star)
{
    return {cell.left() + leftMargin + (star - 1) * (starSize + starSpace),
            cell.center().y() - starSize / 2, starSize, starSize};
}

} // namespace

namespace HRFStars {

int starsOf(qlonglong rating)
{
    return int(
        std::ranges::count_if(steps, [rating](const Step &step) { return rating >= step.least; }));
}

int ratingOf(int stars)
{
    return stars <= 0 ? 0 : steps[std::size_t(std::min(stars, most) - 1)].written;
}

void paint(QPainter &painter, const QRect &cell, int stars, bool isSelected)
{
    constexpr double opacityOfMissing = 0.18;
    static const QIcon star = HRFIcons::named(u"star"_s);
    painter.save();
    for (int number = 1; number <= most; ++number) {
        painter.setOpacity(number <= stars ? 1 : opacityOfMissing);
        star.paint(&painter, starRect(cell, number), Qt::AlignCenter,
                   isSelected ? QIcon::Selected : QIcon::Normal);
    }
    painter.restore();
}

int starAt(const QRect &cell, QPoint place)
{
    for (int number = 1; number <= most; ++number) {
        const QRect star = starRect(cell, number);
        if (place.x() >= star.left() && place.x() <= star.right() + starSpace)
            return number;
    }
    return 0;
}

} // namespace HRFStars

HRFStarsEditor::HRFStarsEditor(QWidget *parent) : QWidget(parent)
{
    HRFInstallAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    setCursor(Qt::PointingHandCursor);
    setObjectName(u"starsEditor"_s);
    setAccessibleName(tr("Rating"));
}

void HRFStarsEditor::setStars(int stars)
{
    display(std::clamp(stars, 0, HRFStars::most), {});
}

void HRFStarsEditor::setDiffering(const QString &note)
{
    display(0, note);
}

void HRFStarsEditor::display(int stars, const QString &note)
{
    m_stars = stars;
    m_note = note;
    setAccessibleDescription(!note.isEmpty()  ? note
                                 : stars == 1 ? tr("1 star")
                                              : tr("%1 stars").arg(stars));
    QAccessibleValueChangeEvent change(this, stars);
    QAccessible::updateAccessibility(&change);
    update();
}

void HRFStarsEditor::choose(int stars)
{
    if (m_note.isEmpty() && std::clamp(stars, 0, HRFStars::most) == m_stars)
        return;
    setStars(stars);
    Q_EMIT didChoose();
}

void HRFStarsEditor::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    HRFStars::paint(painter, rect(), m_stars, false);
}

void HRFStarsEditor::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    const int star = HRFStars::starAt(rect(), event->position().toPoint());
    if (star == 0)
        return; // beside them
    choose(star == m_stars ? 0 : star);
    Q_EMIT editingFinished();
}

/// Delete is meant for the stars, not for the file in the list.
bool HRFStarsEditor::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void HRFStarsEditor::keyPressEvent(QKeyEvent *event)
{
    // Some keyboards have their digits above Shift.
    const bool isPlain = !(event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier));
    const int key = event->key();
    if (isPlain && key >= Qt::Key_0 && key <= Qt::Key_0 + HRFStars::most)
        choose(key - Qt::Key_0);
    else if (isPlain && (key == Qt::Key_Delete || key == Qt::Key_Backspace))
        choose(0);
    else if (isPlain && key == Qt::Key_Left && m_stars > 0)
        choose(m_stars - 1);
    else if (isPlain && key == Qt::Key_Right)
        choose(m_stars + 1);
    else
        QWidget::keyPressEvent(event);
}
