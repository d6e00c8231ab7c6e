#include "app/HRFCellDelegate.h"

#include "app/HRFCellEditors.h"
#include "app/HRFIcons.h"
#include "app/HRFListColumn.h"
#include "app/HRFListModel.h"
#include "app/HRFStars.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QToolTip>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using Kind = HRFListColumnKind;

namespace {

const HRFListColumn &columnOf(const QModelIndex &index)
{
    return HRFListColumns::all()[std::size_t(index.column())];
}

QStyle &styleOf(const QStyleOptionViewItem &option)
{
    return option.widget ? *option.widget->style() : *QApplication::style();
}

QRect checkBoxRect(const QStyleOptionViewItem &option)
{
    const QStyle &style = styleOf(option);
    const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget),
                     style.pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget));
    return QStyle::alignedRect(option.direction, Qt::AlignCenter, size, option.rect);
}

void paintCheckBox(QPainter *painter, const QStyleOptionViewItem &option, bool isChecked)
{
    QStyleOptionViewItem box(option);
    box.rect = checkBoxRect(option);
    box.state.setFlag(QStyle::State_HasFocus, false);
    box.state.setFlag(isChecked ? QStyle::State_On : QStyle::State_Off);
    styleOf(option).drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, painter,
                                  option.widget);
}

void paintThumbnail(QPainter *painter, const QStyleOptionViewItem &option, const QPixmap &image)
{
    constexpr int margin = 2;
    constexpr int sizeOfIcon = 16;
    constexpr double opacityOfIcon = 0.45;
    const QRect room = option.rect.adjusted(margin, margin, -margin, -margin);
    painter->save();
    if (image.isNull()) {
        static const QIcon file = HRFIcons::named(u"audio"_s);
        painter->setOpacity(opacityOfIcon);
        file.paint(painter,
                   QStyle::alignedRect(option.direction, Qt::AlignCenter,
                                       QSize(sizeOfIcon, sizeOfIcon), room),
                   Qt::AlignCenter,
                   option.state & QStyle::State_Selected ? QIcon::Selected : QIcon::Normal);
    } else {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        const QSize size = image.size().scaled(room.size(), Qt::KeepAspectRatio);
        painter->drawPixmap(QStyle::alignedRect(option.direction, Qt::AlignCenter, size, room),
                            image);
    }
    painter->restore();
}

/// A key that ends the editing of a line.
bool isEnd(const QEvent &event)
{
    constexpr std::array keys{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab};
    return event.type() == QEvent::KeyPress
        && std::ranges::find(keys, static_cast<const QKeyEvent &>(event).key()) != keys.end();
}

bool activates(const QEvent &event, const QRect &rect)
{
    if (event.type() == QEvent::MouseButtonRelease) {
        const auto &mouse = static_cast<const QMouseEvent &>(event);
        return mouse.button() == Qt::LeftButton && rect.contains(mouse.position().toPoint());
    }
    return event.type() == QEvent::KeyPress
        && static_cast<const QKeyEvent &>(event).key() == Qt::Key_Space;
}

} // namespace

/// A cell has one line, and room for a few words.
QString HRFCellDelegate::displayText(const QVariant &value, const QLocale & /*locale*/) const
{
    constexpr qsizetype longest = 300;
    QString text = value.toString().left(longest);
    std::ranges::replace_if(
        text, [](QChar character) { return character < u' ' || character == u'\u2028'; }, u' ');
    return text;
}

void HRFCellDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->displayAlignment & Qt::AlignRight)
        option->text += QChar::Nbsp; // keeps away from the next column
}

void HRFCellDelegate::paintBackground(QPainter *painter, const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const
{
    QStyleOptionViewItem empty(option);
    initStyleOption(&empty, index);
    empty.text.clear();
    empty.features.setFlag(QStyleOptionViewItem::HasCheckIndicator, false);
    styleOf(option).drawControl(QStyle::CE_ItemViewItem, &empty, painter, option.widget);
}

void HRFCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    const Kind kind = columnOf(index).kind;
    if (kind != Kind::Thumbnail && kind != Kind::CheckBox && kind != Kind::Rating)
        return QStyledItemDelegate::paint(painter, option, index);
    paintBackground(painter, option, index);
    if (kind == Kind::Thumbnail)
        paintThumbnail(painter, option, index.data(HRFListModel::Thumbnail).value<QPixmap>());
    else if (kind == Kind::CheckBox)
        paintCheckBox(painter, option, index.data(Qt::CheckStateRole).toInt() == Qt::Checked);
    else if (const int stars = HRFStars::starsOf(index.data(HRFListModel::Raw).toLongLong());
             stars > 0 || option.state & QStyle::State_MouseOver)
        HRFStars::paint(*painter, option.rect, stars, option.state & QStyle::State_Selected);
}

QSize HRFCellDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return columnOf(index).kind == Kind::Rating ? QSize(HRFStars::width, size.height()) : size;
}

QWidget *HRFCellDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem & /*option*/,
                                       const QModelIndex &index) const
{
    const HRFListColumn &column = columnOf(index);
    QWidget *editor = HRFMakeCellEditor(column, index.data(Qt::EditRole), parent);
    editor->setObjectName(u"cellEditor"_s);
    editor->setAccessibleName(column.title);
    if (auto *stars = qobject_cast<HRFStarsEditor *>(editor)) {
        auto *self = const_cast<HRFCellDelegate *>(this); // as the base class does for its signals
        connect(stars, &HRFStarsEditor::editingFinished, self, [self, stars] {
            Q_EMIT self->commitData(stars);
            Q_EMIT self->closeEditor(stars);
        });
    }
    return editor;
}

/// The editor has its value from the start: what happens to the record meanwhile shall not
/// overwrite what the user types.
void HRFCellDelegate::setEditorData(QWidget * /*editor*/, const QModelIndex & /*index*/) const { }

void HRFCellDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                   const QModelIndex &index) const
{
    if (HRFCheckCellEditor(*editor) && HRFIsCellEditorChanged(*editor))
        model->setData(index, HRFValueOfCellEditor(columnOf(index), *editor), Qt::EditRole);
}

void HRFCellDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                           const QModelIndex & /*index*/) const
{
    constexpr QSize roomForLines(320, 140);
    QRect rect = option.rect;
    if (qobject_cast<QPlainTextEdit *>(editor)) {
        rect.setSize(rect.size().expandedTo(roomForLines));
        const QRect whole = editor->parentWidget()->rect();
        rect.moveTo(std::max(0, std::min(rect.left(), whole.right() - rect.width())),
                    std::max(0, std::min(rect.top(), whole.bottom() - rect.height())));
    } else if (qobject_cast<QLineEdit *>(editor)) {
        const QSize line(rect.width(), std::min(rect.height(), editor->sizeHint().height() + 4));
        rect = QStyle::alignedRect(option.direction, Qt::AlignVCenter, line, rect);
    }
    editor->setGeometry(rect);
}

bool HRFCellDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                  const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (columnOf(index).kind != Kind::CheckBox)
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    if (!activates(*event, checkBoxRect(option)))
        return false;
    const bool isChecked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

/// Shows the whole text of a cell that has no room for it.
bool HRFCellDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    constexpr qsizetype longest = 2000;
    QString text;
    if (sizeHint(option, index).width() > option.rect.width())
        text = index.data(Qt::DisplayRole).toString().left(longest).toHtmlEscaped();
    QToolTip::showText(event->globalPos(), text.isEmpty() ? text : u"<p>"_s + text + u"</p>"_s,
                       view, option.rect);
    return true;
}

/// Return ends a text of several lines only with Ctrl. What is no value of the column stays in its
/// editor, to be put right.
bool HRFCellDelegate::eventFilter(QObject *object, QEvent *event)
{
    const bool leaves = event->type() == QEvent::FocusOut;
    if ((leaves || isEnd(*event)) && !HRFCheckCellEditor(static_cast<QWidget &>(*object)))
        return !leaves;
    auto *lines = qobject_cast<QPlainTextEdit *>(object);
    if (lines && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (isReturn && key->modifiers() & Qt::ControlModifier) {
            Q_EMIT commitData(lines);
            Q_EMIT closeEditor(lines);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}
