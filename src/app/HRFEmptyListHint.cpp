#include "app/HRFEmptyListHint.h"

#include "app/HRFIcons.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

HRFEmptyListHint::HRFEmptyListHint(QAbstractItemView &view)
    : QWidget(view.viewport())
    , m_icon(new QLabel(this))
    , m_title(new QLabel(this))
    , m_explanation(new QLabel(this))
{
    constexpr double titleScale = 1.4;
    constexpr double opacity = 0.6;
    setObjectName(u"emptyListHint"_s);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    drawIcon();
    QFont font = m_title->font();
    font.setPointSizeF(font.pointSizeF() * titleScale);
    m_title->setFont(font);
    auto *dimmed = new QGraphicsOpacityEffect(this);
    dimmed->setOpacity(opacity);
    setGraphicsEffect(dimmed);
    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
    for (QLabel *label : {m_icon, m_title, m_explanation}) {
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
    layout->addStretch();
    view.viewport()->installEventFilter(this);
    resize(view.viewport()->size());
}

void HRFEmptyListHint::setText(const QString &title, const QString &explanation)
{
    m_title->setText(title);
    m_explanation->setText(explanation);
}

void HRFEmptyListHint::drawIcon()
{
    constexpr int size = 56;
    m_icon->setPixmap(HRFIcons::named(u"drop"_s).pixmap(size));
}

void HRFEmptyListHint::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        drawIcon(); // has the colours of the palette
}

bool HRFEmptyListHint::eventFilter(QObject *object, QEvent *event)
{
    if (object == parent() && event->type() == QEvent::Resize)
        resize(parentWidget()->size());
    return QWidget::eventFilter(object, event);
}
