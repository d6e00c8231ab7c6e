#include "conversions/HRFDotPrefixCheck.h"

#include "conversions/HRFString+FileNames.h"
#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserInteraction.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFDotPrefixCheck", text);
}

bool isDots(const QString &component)
{
    return component == u"." || component == u"..";
}

int ask(const QString &title)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    const HRFError error = HRFDotPrefixCheck::error();
    HRFAlert alert;
    alert.title = title;
    alert.isQuestion = true;
    alert.message = error.description;
    alert.informativeText = error.recoverySuggestion;
    alert.buttons = {{.title = tr("Remove Dot"), .role = HRFAnswerRole::Fix},
                     {.title = tr("Cancel"), .role = HRFAnswerRole::Cancel},
                     {.title = tr("Continue"), .role = HRFAnswerRole::Continue}};
    return HRFDotPrefixCheck::removeDot + int(HRFUserInteraction::current().runAlert(alert).button);
}

} // namespace

bool HRFDotPrefixCheck::isNeededFor(const QString &path)
{
    return std::ranges::any_of(path.split(u'/'), [](const QString &component) {
        return component.startsWith(u'.') && !isDots(component);
    });
}

QString HRFDotPrefixCheck::withoutDots(const QString &path)
{
    QStringList components;
    for (const QString &component : path.split(u'/', Qt::SkipEmptyParts))
        if (const QString visible = HRFUnDotPrefixedString(component); !visible.isEmpty())
            components.append(visible);
    return (path.startsWith(u'/') ? u"/"_s : QString()) + components.join(u'/');
}

HRFError HRFDotPrefixCheck::error()
{
    return {.domain = QString::fromLatin1(HRFLirraErrorDomain),
            .code = errorCode,
            .description = tr("Some item names begin with a dot “.”, these names are reserved for "
                              "the system."),
            .recoverySuggestion = tr("Leaving the dot prefixes will cause the items to become "
                                     "hidden from the Finder.")};
}

bool HRFDotPrefixCheck::shouldProceed(QString &path, int &appliedToAllResponse,
                                      const QString &title)
{
    if (!isNeededFor(path))
        return true;
    if (appliedToAllResponse == noAnswer)
        appliedToAllResponse = ask(title);
    if (appliedToAllResponse == removeDot)
        path = withoutDots(path);
    return appliedToAllResponse != cancel;
}
