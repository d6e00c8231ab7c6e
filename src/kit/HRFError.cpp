#include "kit/HRFError.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

struct ErrorNumber
{
    QLatin1StringView domain;
    int code = 0;
};

constexpr std::array permissionErrors{
    ErrorNumber{QLatin1StringView(HRFFileErrorDomain), HRFFileErrorCode::writeNoPermission},
    ErrorNumber{QLatin1StringView(HRFPOSIXErrorDomain), EACCES},
    ErrorNumber{QLatin1StringView(HRFPOSIXErrorDomain), EPERM},
};

bool isLineBreak(QChar c)
{
    return u"\n\v\f\r\u0085\u2028\u2029"_s.contains(c);
}

QString onOneLine(const QString &text)
{
    QString line;
    for (const QChar c : text.trimmed()) {
        if (!isLineBreak(c))
            line += c;
        else if (!line.endsWith(u' '))
            line += u' ';
    }
    return line;
}

QStringView withoutFullStop(QStringView text)
{
    while (text.endsWith(u'.'))
        text.chop(1);
    return text;
}

void appendUnlessContained(QString &line, const QString &text)
{
    const QString addition = onOneLine(text);
    const QStringView core = withoutFullStop(addition);
    if (core.isEmpty() || line.contains(core))
        return;
    if (!line.isEmpty())
        line = withoutFullStop(line).toString() + ": "_L1;
    line += addition;
}

} // namespace

HRFError HRFError::fromErrno(int code)
{
    HRFError error;
    error.domain = QLatin1StringView(HRFPOSIXErrorDomain);
    error.code = code;
    error.description = QString::fromStdString(std::generic_category().message(code));
    return error;
}

bool HRFError::isPermissionError() const
{
    const bool isOne = std::ranges::any_of(permissionErrors, [this](const ErrorNumber &number) {
        return domain == number.domain && code == number.code;
    });
    return isOne || (underlying && underlying->isPermissionError());
}

QString HRFError::fullText() const
{
    QString line;
    for (const HRFError *error = this; error; error = error->underlying.get()) {
        appendUnlessContained(line, error->description);
        appendUnlessContained(line, error->recoverySuggestion);
    }
    return line;
}
