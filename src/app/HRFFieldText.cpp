#include "app/HRFFieldText.h"

#include "app/HRFListColumn.h"
#include "kit/HRFISO8601DateFormatter.h"

#include <QDateTime>
#include <QIntValidator>
#include <QLineEdit>
#include <QLocale>

#include <limits>

using namespace Qt::StringLiterals;
using Kind = HRFListColumnKind;

namespace {

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

/// Says by its colour that what was typed is no value.
void showValidity(QLineEdit &field)
{
    QPalette palette;
    if (!field.hasAcceptableInput())
        palette.setColor(QPalette::Text, QColor(0xC0, 0x30, 0x30));
    field.setPalette(palette);
}

} // namespace

namespace HRFFieldText {

QString textOf(const HRFListColumn &column, const QVariant &value)
{
    return column.kind == Kind::Date ? textOfDate(value.toDateTime()) : value.toString();
}

QVariant valueOf(const HRFListColumn &column, const QString &text)
{
    switch (column.kind) {
    case Kind::Number:
        return text.toLongLong() > 0 ? QVariant(text.toLongLong()) : QVariant();
    case Kind::Date: {
        const auto date = dateIn(text);
        return date ? QVariant(*date) : QVariant();
    }
    default:
        return text;
    }
}

bool hasLines(const HRFListColumn &column, const QString &text)
{
    static const QStringList longTexts{u"comment"_s, u"lyrics"_s, u"podcastDescription"_s};
    return text.contains(u'\n') || longTexts.contains(column.name);
}

void setUp(QLineEdit &field, const HRFListColumn &column)
{
    field.setValidator(validatorFor(column, &field));
    QObject::connect(&field, &QLineEdit::textChanged, &field, [&field] { showValidity(field); });
}

} // namespace HRFFieldText
