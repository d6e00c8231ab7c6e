#pragma once

#include "store/HRFMainContext.h"
#include "store/HRFPrivateContext.h"

#include <QTimer>

#include <memory>

class HRFObjectStore;

/// Owns one store: its model, its file, the main context and the undo manager. Subclasses say which
/// model and file, and whether the store is wiped or saved when the application ends. For the main
/// thread alone but newPrivateContext.
class HRFPersistentStoreManager : public QObject
{
    Q_OBJECT
public:
    ~HRFPersistentStoreManager() override;

    /// Wipe the store before opening it.
    virtual bool purgeOnLoad() const { return false; }
    /// Wipe the store when the application terminates.
    virtual bool purgeOnQuit() const { return false; }
    /// Save the main context when the application terminates.
    virtual bool saveOnQuit() const { return false; }
    /// The store file is new: it did not exist, or was unusable and has been made anew.
    bool storeWasReset() const { return m_storeWasReset; }

    /// Null once the store was reset.
    const std::shared_ptr<HRFMainContext> &managedObjectContext() const { return m_context; }
    const std::shared_ptr<const HRFObjectModel> &managedObjectModel() const { return m_model; }

    /// Name of the JSON resource with the model, and of the store file, which may stand in a
    /// subfolder. A subclass must say both (assertion "Implementation Required!").
    virtual QString modelName() const;
    virtual QString databaseName() const;
    QString modelURL() const;
    /// Stays what it was when the store was opened.
    QString storeURL() const;
    /// A file in the data folder, the folder of which is made; empty where stores are temporary.
    static QString storeURLForDBName(const QString &name);

    /// A context for background work on this store.
    std::shared_ptr<HRFPrivateContext> newPrivateContext() const;

    /// Saves the main context; a failure is presented to the user.
    void saveChanges();
    /// A failure is logged.
    void saveChangesSilently();
    /// The same 0.3 s after the last call.
    void saveChangesSilentlyWithDelay();

    /// Closes the store and deletes its files. The manager has no model and no context afterwards.
    virtual void resetDatabase();
    void applicationWillTerminate();

protected:
    HRFPersistentStoreManager();
    /// To be called once by the subclass, when it can tell its names: loads the model and opens the
    /// store.
    void openStore();

private:
    std::shared_ptr<HRFObjectStore> newStoreCoordinatorWithURL(const QString &url);

    bool m_storeWasReset = false;
    QString m_storeURL;
    std::shared_ptr<const HRFObjectModel> m_model;
    std::shared_ptr<HRFMainContext> m_context;
    QTimer m_delayedSave;
};
