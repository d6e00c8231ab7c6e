#include "app/HRFDesktopApplication.h"

#include "kit/HRFMainThread.h"
#include "kit/HRFUserInteraction.h"

#include <QEvent>
#include <QPalette>
#include <QScopeGuard>

#include <exception>

HRFDesktopApplication::HRFDesktopApplication(int &argc, char **argv) : QApplication(argc, argv)
{
    chooseFaintColour();
}

bool HRFDesktopApplication::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange)
        chooseFaintColour();
    return QApplication::event(event);
}

/// Not every theme says how faint text looks: labels of fields, and what stands in empty ones.
void HRFDesktopApplication::chooseFaintColour()
{
    constexpr float opacity = 0.6F;
    QColor faint = palette().color(QPalette::WindowText);
    faint.setAlphaF(opacity);
    if (palette().color(QPalette::PlaceholderText) == faint)
        return;
    QPalette own;
    own.setColor(QPalette::PlaceholderText, faint);
    setPalette(own);
}

bool HRFDesktopApplication::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &failure) {
        tell(failure);
        return true;
    }
}

/// One at a time: a window that cannot be painted would bring up alerts for ever.
void HRFDesktopApplication::tell(const std::exception &failure)
{
    qCritical("%s", failure.what());
    if (m_isTelling.exchange(true))
        return;
    const HRFError error{.domain = QString::fromLatin1(HRFLirraErrorDomain),
                         .description = QString::fromLocal8Bit(failure.what())};
    HRFMainThread::run(
        [this, error] {
            const auto done = qScopeGuard([this] { m_isTelling = false; });
            HRFUserInteraction::current().presentError(error);
        },
        HRFMainThread::Wait::No);
}
