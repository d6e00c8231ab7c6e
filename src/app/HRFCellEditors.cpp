#include "app/HRFCellEditors.h"

#include "app/HRFFieldText.h"
#include "app/HRFInputError.h"
#include "app/HRFListColumn.h"
#include "app/HRFStars.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>

using namespace Qt::StringLiterals;
using Kind = HRFListColumnKind;

namespace {

constexpr auto initialProperty = "initialValue";

/// The extension seldom changes with the name.
void selectBaseName(QLineEdit *field)
{
    const auto dot = int(field->text().lastIndexOf(u'.'));
    QTimer::singleShot(0, field, [field, dot] { // the view selects all when it opens the editor
        field->setSelection(0, dot > 0 ? dot : int(field->text().size()));
    });
}

/// One line.
class Field : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

    HRFInputError *error = nullptr; ///< where not every text is a value
};

QWidget *makeField(const HRFListColumn &column, const QString &text, QWidget *parent)
{
    auto *field = new Field(parent);
    field->setFrame(false);
    field->setAutoFillBackground(true);
    field->error = HRFFieldText::setUp(*field, column);
    if (column.isQuantity())
        field->setAlignment(Qt::AlignRight);
    field->setText(text);
    if (column.kind == Kind::Date)
        field->setPlaceholderText(u"2024-12-31"_s);
    if (column.attribute()->isFilename())
        selectBaseName(field);
    return field;
}

QString currentText(const QWidget &editor)
{
    if (const auto *lines = qobject_cast<const QPlainTextEdit *>(&editor))
        return lines->toPlainText();
    if (const auto *stars = qobject_cast<const HRFStarsEditor *>(&editor))
        return QString::number(stars->stars());
    return static_cast<const QLineEdit &>(editor).text();
}

QWidget *makeEditor(const HRFListColumn &column, const QVariant &value, QWidget *parent)
{
    if (column.kind == Kind::Rating) {
        auto *stars = new HRFStarsEditor(parent);
        stars->setStars(HRFStars::starsOf(value.toLongLong()));
        return stars;
    }
    const QString text = HRFFieldText::textOf(column, value);
    if (column.kind != Kind::Text || !HRFFieldText::hasLines(column, text))
        return makeField(column, text, parent);
    auto *lines = new QPlainTextEdit(text, parent);
    lines->setTabChangesFocus(true);
    return lines;
}

} // namespace

QWidget *HRFMakeCellEditor(const HRFListColumn &column, const QVariant &value, QWidget *parent)
{
    QWidget *editor = makeEditor(column, value, parent);
    editor->setProperty(initialProperty, currentText(*editor));
    return editor;
}

bool HRFCheckCellEditor(const QWidget &editor)
{
    const auto *field = dynamic_cast<const Field *>(&editor);
    if (!field || !field->error || field->error->reason().isEmpty())
        return true;
    field->error->explain();
    return false;
}

bool HRFIsCellEditorChanged(const QWidget &editor)
{
    return currentText(editor) != editor.property(initialProperty).toString();
}

QVariant HRFValueOfCellEditor(const HRFListColumn &column, const QWidget &editor)
{
    const QString text = currentText(editor);
    if (column.kind != Kind::Rating)
        return HRFFieldText::valueOf(column, text);
    return text.toInt() > 0 ? QVariant(qlonglong(HRFStars::ratingOf(text.toInt()))) : QVariant();
}
