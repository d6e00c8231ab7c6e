#include "app/HRFSidebarTextField.h"

#include "app/HRFFieldText.h"
#include "app/HRFInputError.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;
using Kind = HRFListColumnKind;

namespace {

class LineField : public HRFSidebarTextField
{
public:
    LineField(const HRFListColumn &column, QWidget *parent)
        : LineField(column, *new QLineEdit(parent))
    {
    }

protected:
    QString text() const override { return m_line.text(); }
    void setText(const QString &text) override
    {
        m_line.setText(text);
        m_line.setCursorPosition(0);
        const bool isTooLong = m_line.fontMetrics().horizontalAdvance(text) > m_line.width();
        m_line.setToolTip(isTooLong ? u"<p>"_s + text.toHtmlEscaped() + u"</p>"_s : QString());
    }
    void setPlaceholder(const QString &text) override { m_line.setPlaceholderText(text); }
    void setReadOnly(bool isReadOnly) override { m_line.setReadOnly(isReadOnly); }
    HRFInputError *error() const override { return m_error; }
    bool isEnd(const QKeyEvent &key) const override
    {
        return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    }
    void selectAll() override { m_line.selectAll(); }
    QMenu *standardMenu() override { return m_line.createStandardContextMenu(); }

private:
    LineField(const HRFListColumn &column, QLineEdit &line)
        : HRFSidebarTextField(column, line), m_line(line)
    {
        if (column.isEditable())
            m_error = HRFFieldText::setUp(line, column);
        else
            showNothingButText();
    }

    void showNothingButText()
    {
        m_line.setFrame(false);
        QPalette palette = m_line.palette();
        palette.setColor(QPalette::Base, Qt::transparent);
        m_line.setPalette(palette);
    }

    QLineEdit &m_line;
    HRFInputError *m_error = nullptr;
};

class LinesField : public HRFSidebarTextField
{
public:
    LinesField(const HRFListColumn &column, QWidget *parent)
        : LinesField(column, *new QPlainTextEdit(parent))
    {
    }

protected:
    QString text() const override { return m_lines.toPlainText(); }
    void setText(const QString &text) override { m_lines.setPlainText(text); }
    void setPlaceholder(const QString &text) override { m_lines.setPlaceholderText(text); }
    void setReadOnly(bool isReadOnly) override { m_lines.setReadOnly(isReadOnly); }
    bool isEnd(const QKeyEvent &key) const override
    {
        const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
        return isReturn && key.modifiers() & Qt::ControlModifier;
    }
    void selectAll() override { m_lines.selectAll(); }
    QMenu *standardMenu() override { return m_lines.createStandardContextMenu(); }
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Resize) // lines are broken elsewhere, when that is done
            QTimer::singleShot(0, this, &LinesField::fitHeight);
        return HRFSidebarTextField::eventFilter(object, event);
    }

private:
    LinesField(const HRFListColumn &column, QPlainTextEdit &lines)
        : HRFSidebarTextField(column, lines), m_lines(lines)
    {
        lines.setTabChangesFocus(true);
        lines.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        connect(&lines, &QPlainTextEdit::textChanged, this, &LinesField::fitHeight);
        fitHeight();
    }

    /// As many lines as there are, within reason.
    void fitHeight()
    {
        constexpr int fewest = 3;
        constexpr int most = 12;
        constexpr int slack = 2;
        const int count = int(m_lines.document()->size().height());
        const int frame = 2 * (m_lines.frameWidth() + int(m_lines.document()->documentMargin()));
        m_lines.setFixedHeight(std::clamp(count, fewest, most) * m_lines.fontMetrics().lineSpacing()
                               + frame + slack);
        m_lines.setVerticalScrollBarPolicy(count > most ? Qt::ScrollBarAsNeeded
                                                        : Qt::ScrollBarAlwaysOff);
    }

    QPlainTextEdit &m_lines;
};

} // namespace

HRFSidebarTextField *HRFSidebarTextField::make(const HRFListColumn &column, QWidget *parent)
{
    if (column.isEditable() && HRFFieldText::hasLines(column, {}))
        return new LinesField(column, parent);
    return new LineField(column, parent);
}

HRFSidebarTextField::HRFSidebarTextField(const HRFListColumn &column, QWidget &widget)
    : HRFSidebarField(column, widget)
{
    widget.installEventFilter(this);
    widget.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&widget, &QWidget::customContextMenuRequested, this, &HRFSidebarTextField::showMenu);
}

void HRFSidebarTextField::show(const HRFCommonValue &common)
{
    // Two files cannot have one name.
    m_isReadOnly =
        !column().isEditable() || (column().attribute()->isFilename() && common.recordCount > 1);
    const QString shown =
        column().isEditable() ? HRFFieldText::textOf(column(), common.value) : common.text;
    m_hasValue = !common.isSame || !shown.isEmpty();
    setPlaceholder(common.isSame ? hint() : multipleText());
    describe(common.isSame ? QString() : multipleValues());
    setReadOnly(m_isReadOnly);
    if (isModified()) {
        m_shown = shown;
    } else if (m_shown != shown) {
        m_shown = shown;
        restore();
    }
    widget().setEnabled(common.recordCount > 0);
}

/// Fields keep some characters in their own way.
void HRFSidebarTextField::restore()
{
    setText(m_shown);
    m_shown = text();
}

QString HRFSidebarTextField::hint() const
{
    return column().kind == Kind::Date && !m_isReadOnly ? tr("YYYY-MM-DD") : QString();
}

/// The fields of numbers are narrow.
QString HRFSidebarTextField::multipleText() const
{
    return column().isQuantity() && column().isEditable() ? tr("Multiple") : multipleValues();
}

void HRFSidebarTextField::describe(const QString &text)
{
    if (HRFInputError *stated = error())
        stated->setUsualDescription(text);
    else
        widget().setAccessibleDescription(text);
}

void HRFSidebarTextField::revert()
{
    if (isModified())
        restore();
}

void HRFSidebarTextField::commit()
{
    if (!isModified())
        return;
    if (HRFInputError *stated = error(); stated && !stated->reason().isEmpty())
        return stated->explain();
    m_shown = text();
    Q_EMIT didEdit(HRFFieldText::valueOf(column(), m_shown));
}

bool HRFSidebarTextField::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusOut:
        if (static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason)
            commit();
        return false;
    case QEvent::ShortcutOverride: {
        const auto &key = static_cast<QKeyEvent &>(*event);
        const bool isUndo = key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
        if (isModified() || !isUndo)
            return false;
        event->ignore(); // there is nothing of the field's own to undo, the list shall do it
        return true;
    }
    case QEvent::KeyPress:
        return filterKey(static_cast<QKeyEvent &>(*event));
    default:
        return HRFSidebarField::eventFilter(object, event);
    }
}

bool HRFSidebarTextField::filterKey(QKeyEvent &key)
{
    if (key.key() == Qt::Key_Escape && isModified()) {
        restore();
        return true;
    }
    if (!isEnd(key))
        return false;
    commit();
    if (!isModified())
        selectAll();
    return true;
}

/// Values that differ cannot be deleted by typing: there is nothing to delete in the field.
void HRFSidebarTextField::showMenu(const QPoint &position)
{
    QMenu *menu = standardMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!m_isReadOnly && !column().attribute()->isFilename()) {
        menu->addSeparator();
        QAction *removal = menu->addAction(tr("Remove Value"), this, [this] {
            restore();
            Q_EMIT didEdit({});
        });
        removal->setObjectName(u"removeValue"_s);
        removal->setEnabled(m_hasValue);
    }
    menu->popup(widget().mapToGlobal(position));
}
