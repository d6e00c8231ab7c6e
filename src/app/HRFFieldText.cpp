#include "app/HRFFieldText.h"

#include "app/HRFInputError.h"
#include "app/HRFListColumn.h"
#include "kit/HRFISO8601DateFormatter.h"

#include <QCoreApplication>
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

class NumberValidator : public QIntValidator
{
public:
    explicit NumberValidator(QObject *parent)
        : QIntValidator(0, std::numeric_limits<int>::max(), parent)
    {
        QLocale digits = QLocale::c();
        digits.setNumberOptions(QLocale::RejectGroupSeparator);
        setLocale(digits);
    }
    State validate(QString &text, int &position) const override
    {
        return text.isEmpty() ? Acceptable : QIntValidator::validate(text, position);
    }
};

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
    if (column.kind == Kind::Number)
        return new NumberValidator(parent);
    if (column.kind == Kind::Date)
        return new DateValidator(parent);
    return column.attribute()->isFilename() ? new FileNameValidator(parent) : nullptr;
}

/// What is to be entered; nothing where whatever can be typed is a value.
QString expectationOf(const HRFListColumn &column)
{
    if (column.kind == Kind::Date)
        return QCoreApplication::translate(
            "HRFFieldText", "Enter a date as YYYY-MM-DD, a month as YYYY-MM, or a year.");
    return column.attribute()->isFilename()
        ? QCoreApplication::translate("HRFFieldText", "Enter a name other than “.” and “..”.")
        : QString();
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

HRFInputError *setUp(QLineEdit &field, const HRFListColumn &column)
{
    field.setValidator(validatorFor(column, &field));
    const QString expectation = expectationOf(column);
    if (expectation.isEmpty())
        return nullptr;
    auto *error = new HRFInputError(field);
    QObject::connect(&field, &QLineEdit::textChanged, error, [&field, error, expectation] {
        const bool isRight = field.hasAcceptableInput() || !field.isModified();
        error->setReason(isRight ? QString() : expectation);
    });
    return error;
}

} // namespace HRFFieldText
