#include "app/HRFCellEditors.h"

#include "app/HRFListColumn.h"
#include "app/HRFStars.h"
#include "kit/HRFISO8601DateFormatter.h"

#include <QDateTime>
#include <QIntValidator>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>

#include <limits>

using namespace Qt::StringLiterals;
using Kind = HRFListColumnKind;

namespace {

constexpr auto initialProperty = "initialValue";

/// A date in ISO 8601, also a month or a year alone, or in the short form of the user's language.
std::optional<QDateTime> dateIn(const QString &text)
{
    if (auto date = HRFISO8601DateFormatter::shared().dateFromString(text.trimmed()))
        return date;
    const QDate day = QLocale().toDate(text.trimmed(), QLocale::ShortFormat);
    return day.isValid() ? std::optional(QDateTime(day, QTime(0, 0), Qt::UTC)) : std::nullopt;
}

/// A day alone is kept as the first moment of it.
QString textOfDate(const QDateTime &date)
{
    const bool isDay = date.toUTC().time() == QTime(0, 0);
    return !date.isValid() ? QString()
        : isDay            ? date.toUTC().date().toString(Qt::ISODate)
                           : HRFISO8601DateFormatter::shared().stringFromDate(date);
}

class DateValidator : public QValidator
{
public:
    using QValidator::QValidator;
    State validate(QString &text, int & /*position*/) const override
    {
        return text.trimmed().isEmpty() || dateIn(text) ? Acceptable : Intermediate;
    }
};

class FileNameValidator : public QValidator
{
public:
    using QValidator::QValidator;
    State validate(QString &text, int & /*position*/) const override
    {
        return text.isEmpty() || text == u"."_s || text == u".."_s ? Intermediate : Acceptable;
    }
};

QValidator *validatorFor(const HRFListColumn &column, QObject *parent)
{
    if (column.kind == Kind::Number) {
        auto *numbers = new QIntValidator(0, std::numeric_limits<int>::max(), parent);
        QLocale digits = QLocale::c();
        digits.setNumberOptions(QLocale::RejectGroupSeparator);
        numbers->setLocale(digits);
        return numbers;
    }
    if (column.kind == Kind::Date)
        return new DateValidator(parent);
    return column.attribute()->isFilename() ? new FileNameValidator(parent) : nullptr;
}

QString textOf(const HRFListColumn &column, const QVariant &value)
{
    return column.kind == Kind::Date ? textOfDate(value.toDateTime()) : value.toString();
}

/// Says by its colour that what was typed is no value.
void showValidity(QLineEdit &field)
{
    QPalette palette;
    if (!field.hasAcceptableInput())
        palette.setColor(QPalette::Text, QColor(0xC0, 0x30, 0x30));
    field.setPalette(palette);
}

/// The extension seldom changes with the name.
void selectBaseName(QLineEdit *field)
{
    const auto dot = int(field->text().lastIndexOf(u'.'));
    QMetaObject::invokeMethod( // the view selects all when it opens the editor
        field, [field, dot] { field->setSelection(0, dot > 0 ? dot : int(field->text().size())); },
        Qt::QueuedConnection);
}

QWidget *makeField(const HRFListColumn &column, const QString &text, QWidget *parent)
{
    auto *field = new QLineEdit(parent);
    field->setFrame(false);
    field->setAutoFillBackground(true);
    field->setValidator(validatorFor(column, field));
    if (column.isQuantity())
        field->setAlignment(Qt::AlignRight);
    field->setText(text);
    QObject::connect(field, &QLineEdit::textChanged, field, [field] { showValidity(*field); });
    if (column.kind == Kind::Date)
        field->setPlaceholderText(u"2024-12-31"_s);
    if (column.attribute()->isFilename())
        selectBaseName(field);
    return field;
}

bool hasLines(const HRFListColumn &column, const QString &text)
{
    static const QStringList longTexts{u"comment"_s, u"lyrics"_s, u"podcastDescription"_s};
    return text.contains(u'\n') || longTexts.contains(column.name);
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
    const QString text = textOf(column, value);
    if (column.kind != Kind::Text || !hasLines(column, text))
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

bool HRFIsCellEditorChanged(const QWidget &editor)
{
    return currentText(editor) != editor.property(initialProperty).toString();
}

QVariant HRFValueOfCellEditor(const HRFListColumn &column, const QWidget &editor)
{
    const QString text = currentText(editor);
    switch (column.kind) {
    case Kind::Number:
        return text.toLongLong() > 0 ? QVariant(text.toLongLong()) : QVariant();
    case Kind::Rating:
        return text.toInt() > 0 ? QVariant(qlonglong(HRFStars::ratingOf(text.toInt())))
                                : QVariant();
    case Kind::Date: {
        const auto date = dateIn(text);
        return date ? QVariant(*date) : QVariant();
    }
    default:
        return text;
    }
}
