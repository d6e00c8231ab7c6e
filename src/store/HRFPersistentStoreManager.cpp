#include "store/HRFPersistentStoreManager.h"

#include "kit/HRFApplication.h"
#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserInteraction.h"
#include "store/HRFDataFolder.h"
#include "store/HRFObjectStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Deletes what belongs to a store file: SQLite's journals stand beside it under its name with a
/// suffix.
void deleteCompanions(const QString &storePath)
{
    const QFileInfo store(storePath);
    for (const QFileInfo &entry : store.dir().entryInfoList(QDir::Files))
        if (entry.completeBaseName() == store.completeBaseName())
            QFile::remove(entry.filePath());
}

} // namespace

HRFPersistentStoreManager::HRFPersistentStoreManager()
{
    constexpr int delayInMilliseconds = 300;
    m_delayedSave.setSingleShot(true);
    m_delayedSave.setInterval(delayInMilliseconds);
    connect(&m_delayedSave, &QTimer::timeout, this,
            &HRFPersistentStoreManager::saveChangesSilently);
}

HRFPersistentStoreManager::~HRFPersistentStoreManager() = default;

QString HRFPersistentStoreManager::modelName() const
{
    throw HRFAssertionFailure::withText("Implementation Required!");
}

QString HRFPersistentStoreManager::databaseName() const
{
    throw HRFAssertionFailure::withText("Implementation Required!");
}

QString HRFPersistentStoreManager::modelURL() const
{
    return u":/lirra/%1.json"_s.arg(modelName());
}

QString HRFPersistentStoreManager::storeURL() const
{
    return m_storeURL.isEmpty() ? storeURLForDBName(databaseName()) : m_storeURL;
}

QString HRFPersistentStoreManager::storeURLForDBName(const QString &name)
{
    if (HRFDataFolder::current().isEmpty())
        return {};
    const QString path = HRFDataFolder::current() + u'/' + name;
    QFileInfo(path).dir().mkpath(u"."_s);
    return path;
}

void HRFPersistentStoreManager::openStore()
{
    if (purgeOnLoad())
        resetDatabase();
    connect(&HRFApplication::shared(), &HRFApplication::applicationWillTerminate, this,
            &HRFPersistentStoreManager::applicationWillTerminate, Qt::UniqueConnection);
    m_model = HRFObjectModel::named(modelName());
    HRFAssert(m_model != nullptr,
              u"Could not load the data model at url “%1”."_s.arg(modelURL()).toStdString());
    m_storeURL = storeURL();
    m_context =
        HRFMainThread::makeShared<HRFMainContext>(m_model, newStoreCoordinatorWithURL(m_storeURL));
}

std::shared_ptr<HRFObjectStore>
HRFPersistentStoreManager::newStoreCoordinatorWithURL(const QString &url)
{
    using Migrates = HRFObjectStore::Migrates;
    HRFAssert(m_model != nullptr, "ERROR: Cannot generate persistent store as no model exist");
    const auto durability =
        purgeOnQuit() ? HRFObjectStore::Durability::Session : HRFObjectStore::Durability::Lasting;
    m_storeWasReset = !QFile::exists(url);
    auto store = HRFObjectStore::open(url, m_model, Migrates::Yes, durability);
    if (!store && !url.isEmpty()) {
        m_storeWasReset = QFile::remove(url);
        deleteCompanions(url);
        store = HRFObjectStore::open(url, m_model, Migrates::No, durability);
    }
    if (!store) {
        HRFUserInteraction::current().presentError(store.error());
        throw HRFAssertionFailure::withText(
            u"ERROR: Failed creating a persistent store at URL “%1”."_s.arg(url).toStdString());
    }
    return *store;
}

std::shared_ptr<HRFPrivateContext> HRFPersistentStoreManager::newPrivateContext() const
{
    HRFAssert(m_context != nullptr,
              "Cannot create new private MOC, as the main MOC does not exist.");
    return std::make_shared<HRFPrivateContext>(m_context);
}

void HRFPersistentStoreManager::saveChanges()
{
    if (!m_context)
        return;
    if (const auto saved = m_context->save(); !saved)
        HRFUserInteraction::current().presentError(saved.error());
}

void HRFPersistentStoreManager::saveChangesSilently()
{
    if (!m_context)
        return;
    if (const auto saved = m_context->save(); !saved)
        qWarning("MOC Save Error: %s", qUtf8Printable(saved.error().fullText()));
}

void HRFPersistentStoreManager::saveChangesSilentlyWithDelay()
{
    m_delayedSave.start();
}

void HRFPersistentStoreManager::resetDatabase()
{
    const QString path = storeURL();
    m_delayedSave.stop();
    m_model.reset();
    m_context.reset();
    if (path.isEmpty())
        return;
    m_storeWasReset = QFile::remove(path);
    if (m_storeWasReset)
        deleteCompanions(path);
}

void HRFPersistentStoreManager::applicationWillTerminate()
{
    if (purgeOnQuit())
        resetDatabase();
    else if (saveOnQuit())
        saveChangesSilently();
}
