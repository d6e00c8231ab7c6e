#pragma once

#include <QApplication>

#include <atomic>

/// The application, which a fault in the handling of an event does not end: files may be waiting to
/// be written. The event ends, and the user is told. It is the last resort, as Qt's own handling of
/// the event is cut short, too.
class HRFDesktopApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override;

private:
    void tell(const std::exception &failure);

    std::atomic<bool> m_isTelling = false;
};
