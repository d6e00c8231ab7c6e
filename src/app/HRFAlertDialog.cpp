#include "app/HRFAlertDialog.h"

#include "app/HRFIcons.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeDatabase>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QDialogButtonBox::ButtonRole roleOf(const HRFAlertButton &button)
{
    switch (button.role) {
    case HRFAnswerRole::Cancel:
        return QDialogButtonBox::RejectRole;
    case HRFAnswerRole::Other:
        return QDialogButtonBox::ActionRole;
    default:
        return QDialogButtonBox::AcceptRole;
    }
}

/// That of the file that an alert is about; null where there is none.
QIcon fileIconOf(const HRFAlert &alert)
{
    if (alert.icon.isNull())
        return {};
    const QMimeType type = QMimeDatabase().mimeTypeForFile(alert.icon.displayPath());
    const QIcon icon = QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName()));
    const bool isAudio = type.name().startsWith(u"audio/"_s);
    return icon.isNull() && isAudio ? HRFIcons::named(u"audio"_s) : icon;
}

/// The file, with a warning sign on it when something is wrong or in danger; without one the sign
/// alone.
void paintIcon(QPainter &painter, const QRect &place, const HRFAlert &alert)
{
    const QIcon sign = HRFIcons::named(alert.isCritical ? u"warning"_s : u"question"_s);
    const QIcon file = fileIconOf(alert);
    if (file.isNull())
        return sign.paint(&painter, place);
    file.paint(&painter, place);
    if (!alert.isCritical)
        return;
    constexpr int gap = 2; // keeps the two apart
    const QRect corner(place.center(), place.bottomRight());
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(corner.adjusted(-gap, -gap, 0, 0), Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    sign.paint(&painter, corner);
}

/// Text that can be copied. A name without spaces that does not fit into a line is broken anywhere.
QTextEdit *makeText(const QString &text, QFont::Weight weight, QWidget *parent)
{
    constexpr int width = 380;
    constexpr int highest = 220;
    auto *made = new QTextEdit(parent);
    made->setTextInteractionFlags(Qt::TextSelectableByMouse);
    made->setFocusPolicy(Qt::NoFocus);
    made->setFrameShape(QFrame::NoFrame);
    made->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    made->viewport()->setAutoFillBackground(false);
    QPalette palette = made->palette();
    palette.setColor(QPalette::Text, palette.color(QPalette::WindowText));
    made->setPalette(palette);
    QFont font = made->font();
    font.setWeight(weight);
    made->setFont(font);
    made->document()->setDocumentMargin(0);
    made->setLineWrapMode(QTextEdit::FixedPixelWidth);
    made->setLineWrapColumnOrWidth(width - made->verticalScrollBar()->sizeHint().width());
    made->setPlainText(text);
    const int height = int(std::ceil(made->document()->size().height()));
    made->setFixedSize(width, std::min(highest, height));
    if (height > highest) { // the rest is to be reached without a mouse
        made->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        made->setFocusPolicy(Qt::StrongFocus);
        made->setTabChangesFocus(true);
    }
    return made;
}

} // namespace

HRFAlertDialog::HRFAlertDialog(const HRFAlert &alert, QWidget *parent)
    : QDialog(parent), m_alert(alert), m_answer(answerOfNobody(alert))
{
    setObjectName(u"alert"_s);
    setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    setWindowTitle(alert.title.isEmpty() ? QApplication::applicationDisplayName() : alert.title);
    setAccessibleName(alert.message);
    setAccessibleDescription(alert.informativeText);
    makeWidgets();
    qApp->installEventFilter(this); // for the Alt key, whatever has the focus
}

std::optional<std::size_t> HRFAlertDialog::buttonForEscape(const HRFAlert &alert)
{
    for (const HRFAnswerRole role : {HRFAnswerRole::Cancel, HRFAnswerRole::Continue}) {
        const auto found = std::ranges::find(alert.buttons, role, &HRFAlertButton::role);
        if (found != alert.buttons.end())
            return std::size_t(found - alert.buttons.begin());
    }
    return alert.buttons.size() == 1 ? std::optional<std::size_t>(0) : std::nullopt;
}

HRFAlertAnswer HRFAlertDialog::answerOfNobody(const HRFAlert &alert)
{
    const auto goOn =
        std::ranges::find(alert.buttons, HRFAnswerRole::Continue, &HRFAlertButton::role);
    if (goOn != alert.buttons.end())
        return {.button = std::size_t(goOn - alert.buttons.begin())};
    return {.button = buttonForEscape(alert).value_or(alert.buttons.size() - 1)};
}

void HRFAlertDialog::makeWidgets()
{
    constexpr int margin = 18;
    constexpr int space = 14;
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setHorizontalSpacing(space);
    layout->setVerticalSpacing(space);
    layout->addWidget(makeIcon(), 0, 0, Qt::AlignTop);
    layout->addWidget(makeTexts(), 0, 1);
    layout->addWidget(makeButtons(), 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget *HRFAlertDialog::makeIcon()
{
    constexpr int size = 44;
    QPixmap picture(QSize(size, size) * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paintIcon(painter, {0, 0, size, size}, m_alert);
    painter.end();
    auto *icon = new QLabel(this);
    icon->setPixmap(picture);
    return icon;
}

QWidget *HRFAlertDialog::makeTexts()
{
    auto *texts = new QWidget(this);
    auto *layout = new QVBoxLayout(texts);
    layout->setContentsMargins({});
    layout->addWidget(makeText(m_alert.message, QFont::Bold, texts));
    if (!m_alert.informativeText.isEmpty())
        layout->addWidget(makeText(m_alert.informativeText, QFont::Normal, texts));
    if (!m_alert.suppressionTitle.isEmpty()) {
        m_suppression = new QCheckBox(m_alert.suppressionTitle, texts);
        m_suppression->setObjectName(u"suppression"_s);
        layout->addWidget(m_suppression);
    }
    return texts;
}

QWidget *HRFAlertDialog::makeButtons()
{
    auto *box = new QDialogButtonBox(this);
    for (std::size_t i = 0; i < m_alert.buttons.size(); ++i) {
        QPushButton *button = box->addButton(m_alert.buttons[i].title, roleOf(m_alert.buttons[i]));
        button->setIcon({});
        button->setAutoDefault(true);
        connect(button, &QPushButton::clicked, this, [this, i] { choose(i); });
        m_buttons.push_back(button);
    }
    if (m_alert.defaultButton < m_buttons.size()) {
        m_buttons[m_alert.defaultButton]->setDefault(true);
        m_buttons[m_alert.defaultButton]->setFocus();
    }
    return box;
}

void HRFAlertDialog::choose(std::size_t button)
{
    const bool hasAlternate = !m_alert.buttons[button].alternateTitle.isEmpty();
    m_answer = {.button = button,
                .isSuppressed = m_suppression && m_suppression->isChecked(),
                .isAlternate =
                    hasAlternate && QApplication::keyboardModifiers().testFlag(Qt::AltModifier)};
    done(Accepted);
}

void HRFAlertDialog::reject()
{
    if (const auto button = buttonForEscape(m_alert))
        choose(*button);
}

bool HRFAlertDialog::eventFilter(QObject *object, QEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if ((isPress || event->type() == QEvent::KeyRelease)
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Alt)
        showAlternateTitles(isPress);
    return QDialog::eventFilter(object, event);
}

void HRFAlertDialog::showAlternateTitles(bool areAlternate)
{
    for (std::size_t i = 0; i < m_buttons.size(); ++i)
        if (const HRFAlertButton &button = m_alert.buttons[i]; !button.alternateTitle.isEmpty())
            m_buttons[i]->setText(areAlternate ? button.alternateTitle : button.title);
}
