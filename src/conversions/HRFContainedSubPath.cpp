#include "conversions/HRFContainedSubPath.h"

#include <QCoreApplication>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype greatestNameSize = 255;

std::unexpected<HRFError> refusal(int code, const char *text, const QString &name)
{
    const QString description = QCoreApplication::translate("HRFContainedSubPath", text).arg(name);
    return std::unexpected(HRFError{.domain = QString::fromLatin1(HRFPOSIXErrorDomain),
                                    .code = code,
                                    .description = description});
}

} // namespace

HRFResult<void> HRFCheckFileName(const QString &name)
{
    if (name.toUtf8().size() > greatestNameSize) {
        const char *text = QT_TRANSLATE_NOOP("HRFContainedSubPath", "The name “%1” is too long.");
        return refusal(ENAMETOOLONG, text, name);
    }
    const bool namesFolder = name == u"." || name == u"..";
    if (namesFolder || name.contains(u'\0') || name.contains(u'/')) {
        const char *text = QT_TRANSLATE_NOOP("HRFContainedSubPath", "“%1” is no name for a file.");
        return refusal(EINVAL, text, name);
    }
    return {};
}

HRFResult<QString> HRFContainedSubPath(const QString &path)
{
    QStringList components;
    for (const QString &component : path.split(u'/', Qt::SkipEmptyParts)) {
        if (component == u".")
            continue;
        if (component != u"..") {
            if (const HRFResult<void> check = HRFCheckFileName(component); !check)
                return std::unexpected(check.error());
            components.append(component);
        } else if (components.isEmpty()) {
            return refusal(
                EPERM,
                QT_TRANSLATE_NOOP("HRFContainedSubPath", "The path “%1” leads out of the folder."),
                path);
        } else {
            components.removeLast();
        }
    }
    return components.join(u'/');
}
