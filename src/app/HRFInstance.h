#pragma once

#include "kit/HRFFileReference.h"

#include <QLocalServer>

#include <vector>

/// Lets the programs of one data folder find each other, so that there is one of them: a second one
/// hands its files to the first. Whoever holds the data folder is the first.
class HRFInstance : public QObject
{
    Q_OBJECT
public:
    /// Listens for others. The data folder must be this program's.
    explicit HRFInstance(const QString &dataFolder);

    /// Takes no more files: others are to wait for the data folder.
    void close() { m_server.close(); }

    /// Hands files to the program that holds a data folder; answers whether it took them. One that
    /// starts or ends at this moment does not.
    static bool handOver(const std::vector<HRFFileReference> &paths, const QString &dataFolder);

Q_SIGNALS:
    /// Another program was started with these files, or with none, and has ended.
    void pathsDidArrive(const std::vector<HRFFileReference> &paths);

private:
    void receive(QLocalSocket *socket);

    QLocalServer m_server;
};
