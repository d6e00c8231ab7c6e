#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserInteraction.h"
#include "operations/HRFProgress+Notification.h"
#include "operations/HRFProgress.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFProgress", text);
}

} // namespace

void sendAssociatedNotificationRegardless(const HRFProgress &progress, bool regardless)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    const qlonglong total = progress.totalUnitCount();
    const qlonglong completed = std::max<qlonglong>(progress.completedUnitCount(), 0);
    QString text = tr("%1 File(s) Processed.").arg(total);
    if (completed < total)
        text = QString::fromLatin1("%1 %2").arg(tr("%1 of").arg(completed), text);
    HRFUserInteraction::current().notify(progress.localizedDescription(), text, regardless);
}
