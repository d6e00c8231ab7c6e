#include "operations/HRFProgressWindowController.h"

#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"

#include <QCoreApplication>

#include <utility>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFProgressWindowController", text);
}

} // namespace

HRFProgressWindowController::HRFProgressWindowController(std::shared_ptr<HRFProgress> progress)
    : m_progress(std::move(progress)), m_cancelOperationTitle(tr("Cancel"))
{
    HRFRequire(m_progress != nullptr, "progress");
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    m_delay.setSingleShot(true);
    QObject::connect(&m_delay, &QTimer::timeout, &m_delay, [this] { showWindow(); });
}

QString HRFProgressWindowController::displayTitle() const
{
    if (!m_titleShowsProcessing || m_progress->isCancelled())
        return m_title;
    return QString::fromLatin1("%1: %2").arg(m_title, tr("Processing…"));
}

void HRFProgressWindowController::showWindow()
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    m_delay.stop();
    if (m_display)
        return;
    const auto cancelProgress = [progress = m_progress] { progress->cancel(); };
    m_display = HRFUserInteraction::current().showProgress(
        m_progress,
        {.title = [this] { return displayTitle(); },
         .cancelTitle = m_cancelOperationTitle,
         .cancel = m_cancellationHandler ? m_cancellationHandler : cancelProgress});
}

void HRFProgressWindowController::showAsSheet(std::chrono::milliseconds afterDelay)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    if (afterDelay.count() > 0)
        m_delay.start(afterDelay);
    else
        showWindow();
}

void HRFProgressWindowController::dismiss()
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    m_delay.stop();
    m_display.reset();
    m_cancelOperationTitle = tr("Cancel");
}
