#pragma once

#include <QObject>

/// Tells of the end of the program.
class HRFApplication : public QObject
{
    Q_OBJECT
public:
    static HRFApplication &shared();

    /// Sends applicationWillTerminate. To be called once, on the main thread, when nothing stands
    /// in the way of ending any more.
    void willTerminate() { Q_EMIT applicationWillTerminate(); }

Q_SIGNALS:
    void applicationWillTerminate();

private:
    HRFApplication() = default;
};
