#pragma once

#include <QApplication>

#include <atomic>

/// The application, which a fault in the handling of an event does not end: files may be waiting to
/// be written. The event ends, and the user is told. It is the last resort, as Qt's own handling of
/// the event is cut short, too.
class HRFDesktopApplication : public QApplication
{
public:
    HRFDesktopApplication(int &argc, char **argv);

    bool notify(QObject *receiver, QEvent *event) override;

protected:
    bool event(QEvent *event) override;

private:
    static void chooseFaintColour();
    void tell(const std::exception &failure);

    std::atomic<bool> m_isTelling = false;
};
