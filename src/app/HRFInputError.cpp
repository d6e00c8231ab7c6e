#include "app/HRFInputError.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QLineEdit>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int lightnessOfGrey = 128;

/// A red that can be read on a ground.
QColor redOn(const QColor &ground)
{
    return ground.lightness() < lightnessOfGrey ? QColor(0xFF, 0x9A, 0x90)
                                                : QColor(0xB0, 0x1E, 0x1E);
}

} // namespace

HRFInputError::HRFInputError(QLineEdit &field)
    : QLabel(field.parentWidget())
    , m_field(field)
    , m_usualDescription(field.accessibleDescription())
{
    constexpr int margin = 4;
    setObjectName(u"inputError"_s);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setMargin(margin);
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    setPalette(QToolTip::palette());
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    field.installEventFilter(this);
    connect(&field, &QObject::destroyed, this, &QObject::deleteLater);
}

void HRFInputError::setReason(const QString &reason)
{
    if (m_reason == reason)
        return;
    m_reason = reason;
    setText(reason);
    m_field.setToolTip(reason);
    m_field.setAccessibleDescription(reason.isEmpty() ? m_usualDescription : reason);
    chooseColour();
    if (reason.isEmpty())
        hide();
}

void HRFInputError::setUsualDescription(const QString &description)
{
    m_usualDescription = description;
    if (m_reason.isEmpty())
        m_field.setAccessibleDescription(description);
}

void HRFInputError::explain()
{
    if (m_reason.isEmpty() || !m_field.isVisible())
        return;
    chooseGround();
    place();
    show();
    raise();
}

/// The widget that is scrolled with the field, or its window: there is room for words. What stands
/// between the two can move the field as well.
void HRFInputError::chooseGround()
{
    QWidget *ground = m_field.parentWidget();
    const auto isScrolled = [](const QWidget &widget) {
        return qobject_cast<const QAbstractScrollArea *>(widget.parentWidget()->parentWidget());
    };
    const auto isViewport = [](const QWidget &widget) {
        return qobject_cast<const QAbstractScrollArea *>(widget.parentWidget());
    };
    while (!ground->isWindow() && !isViewport(*ground) && !isScrolled(*ground)) {
        ground->installEventFilter(this);
        ground = ground->parentWidget();
    }
    if (ground != parentWidget())
        setParent(ground);
}

void HRFInputError::chooseColour()
{
    QPalette own;
    if (!m_reason.isEmpty())
        own.setColor(QPalette::Text, redOn(m_field.palette().color(QPalette::Base)));
    if (own.color(QPalette::Text) != m_field.palette().color(QPalette::Text))
        m_field.setPalette(own);
}

/// Below the field, or above it where there is no room below.
void HRFInputError::place()
{
    constexpr int narrowest = 180;
    const QRect room = parentWidget()->rect();
    const int width = std::min(std::max(m_field.width(), narrowest), room.width());
    resize(width, heightForWidth(width));
    const QRect field(m_field.mapTo(parentWidget(), QPoint()), m_field.size());
    const bool hasRoomBelow = field.bottom() + height() <= room.bottom();
    move(std::clamp(field.left(), 0, room.width() - width),
         hasRoomBelow ? field.bottom() + 1 : std::max(0, field.top() - height()));
}

bool HRFInputError::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Hide:
        hide();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (isVisible())
            place();
        break;
    case QEvent::PaletteChange:
        if (!m_reason.isEmpty())
            chooseColour();
        break;
    default:
        break;
    }
    return QLabel::eventFilter(object, event);
}
