#include "app/HRFEmptyListHint.h"

#include "app/HRFIcons.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

HRFEmptyListHint::HRFEmptyListHint(QAbstractItemView &view)
    : QWidget(view.viewport()), m_title(new QLabel(this)), m_explanation(new QLabel(this))
{
    constexpr int iconSize = 56;
    constexpr double titleScale = 1.4;
    constexpr double opacity = 0.6;
    setObjectName(u"emptyListHint"_s);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *icon = new QLabel(this);
    icon->setPixmap(HRFIcons::named(u"drop"_s).pixmap(iconSize));
    QFont font = m_title->font();
    font.setPointSizeF(font.pointSizeF() * titleScale);
    m_title->setFont(font);
    auto *dimmed = new QGraphicsOpacityEffect(this);
    dimmed->setOpacity(opacity);
    setGraphicsEffect(dimmed);
    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
    for (QLabel *label : {icon, m_title, m_explanation}) {
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

bool HRFEmptyListHint::eventFilter(QObject *object, QEvent *event)
{
    if (object == parent() && event->type() == QEvent::Resize)
        resize(parentWidget()->size());
    return QWidget::eventFilter(object, event);
}
