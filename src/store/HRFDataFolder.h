#pragma once

#include "kit/HRFError.h"

#include <QString>

#include <memory>

/// The folder in which this process keeps its stores.
///
/// A process holds a lock on its folder for as long as it runs, so that two never use one folder,
/// and nobody takes the sessions of a running program for leftovers.
class HRFDataFolder
{
public:
    HRFDataFolder(const HRFDataFolder &) = delete;
    HRFDataFolder &operator=(const HRFDataFolder &) = delete;
    ~HRFDataFolder();

    /// "lirra" in the user's folder for application data.
    static QString userFolder();
    /// Takes a folder, which is made if need be, for this process. What a killed program left of
    /// its list sessions there is removed.
    /// @return an error when another process uses the folder
    [[nodiscard]] static HRFResult<std::unique_ptr<HRFDataFolder>> take(const QString &path);
    /// Lets this process keep its stores in files without a name, which go with it however it ends.
    static std::unique_ptr<HRFDataFolder> temporary();

    /// Removes the session files in a folder, and the folder when nothing else is in it.
    static void removeSessions(const QString &folder);

    /// The folder in which the stores of this process are: the one taken last; empty for temporary.
    /// There must be one (assertion "HRFDataFolder::take").
    static QString current();

    QString path() const { return m_path; }

private:
    HRFDataFolder(QString path, int lock);

    QString m_path;
    int m_lock; ///< descriptor of the locked file; -1 for temporary
};
