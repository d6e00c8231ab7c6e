#include "store/HRFPersistentStoreManager.h"

#include "kit/HRFApplication.h"
#include "store/HRFDataFolder.h"
#include "store/HRFObjectStore.h"
#include "support/HRFTestApplication.h"
#include "support/HRFTestBytes.h"

#include <QDir>
#include <QFile>
#include <gmock/gmock.h>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::SizeIs;

namespace {

/// A manager of a store of the file-record model.
class Manager : public HRFPersistentStoreManager
{
public:
    Manager() { openStore(); }
    QString modelName() const override { return u"Lirra"_s; }
    QString databaseName() const override { return u"stores/one.sqlite"_s; }
    bool saveOnQuit() const override { return true; }

    HRFManagedObject *addFile(const QString &url)
    {
        HRFManagedObject *file = managedObjectContext()->newObjectForEntityName(u"MetaFile"_s);
        file->HRFManagedObject::setValueForKey(url, u"fileURL"_s);
        return file;
    }
    QStringList urls()
    {
        QStringList found;
        for (HRFManagedObject *file : managedObjectContext()->fetch(u"MetaFile"_s))
            found.append(file->valueForKey(u"fileURL"_s).toString());
        return found;
    }
};

class HRFPersistentStoreManagerTest : public HRFApplicationTest
{
protected:
    HRFPersistentStoreManagerTest() : folder(*HRFDataFolder::take(path(u"data"_s))) { }

    QString storeFile() const { return path(u"data/stores/one.sqlite"_s); }

    std::unique_ptr<HRFDataFolder> folder;
};

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

TEST_F(HRFPersistentStoreManagerTest, ObjectsAreThereAgainWhenTheStoreIsOpenedAgain)
{
    const QDateTime date(QDate(2026, 11, 21), QTime(10, 20, 30), Qt::UTC);
    {
        Manager manager;
        EXPECT_TRUE(manager.storeWasReset());
        HRFManagedObject *file = manager.addFile(u"file:///ä\0ö"_s);
        HRFManagedObject *tags = file->related(u"tags"_s);
        tags->setValueForKey(date, u"releaseTime"_s);
        tags->setValueForKey(true, u"isPodcast"_s);
        tags->setValueForKey(qlonglong(-7), u"trackNumber"_s);
        manager.addFile(u"doomed"_s);
        manager.saveChanges();
        manager.managedObjectContext()->deleteObject(
            *manager.managedObjectContext()->fetch(u"MetaFile"_s).back());
        HRFApplication::shared().willTerminate(); // saves
    }
    Manager manager;
    EXPECT_FALSE(manager.storeWasReset());
    EXPECT_THAT(manager.urls(), ElementsAre(u"file:///ä\0ö"_s));
    const auto tags = manager.managedObjectContext()->fetch(u"MetaTags"_s);
    ASSERT_THAT(tags, SizeIs(1));
    EXPECT_EQ(tags[0]->valueForKey(u"releaseTime"_s), date);
    EXPECT_EQ(tags[0]->valueForKey(u"isPodcast"_s), true);
    EXPECT_EQ(tags[0]->valueForKey(u"trackNumber"_s), -7);
    EXPECT_NE(manager.addFile({})->objectID(), tags[0]->objectID());
}

TEST_F(HRFPersistentStoreManagerTest, AnUnusableStoreIsMadeAnew)
{
    const QByteArray contents[] = {
        "no database at all, but long enough to be taken for one",
        QByteArray("SQLite format 3\0garbage", 23),
    };
    for (const QByteArray &content : contents) {
        QDir().mkpath(path(u"data/stores"_s));
        write(storeFile(), content);
        write(storeFile() + u"-wal"_s, "garbage");
        Manager manager;
        EXPECT_TRUE(manager.storeWasReset()) << content.constData();
        manager.addFile(u"x"_s);
        manager.saveChanges();
        EXPECT_FALSE(manager.managedObjectContext()->hasChanges());
        manager.resetDatabase();
    }
}

TEST_F(HRFPersistentStoreManagerTest, AnOlderSchemaIsMigrated)
{
    struct
    {
        const char *change;
        bool isKept;
    } const cases[] = {
        {R"(ALTER TABLE "MetaTags" DROP COLUMN "genre")", true}, // the model has gained one
        {R"(ALTER TABLE "MetaTags" ADD COLUMN "former" TEXT)", true}, // and lost one
        {R"(CREATE TABLE "Former" (id INTEGER PRIMARY KEY))", true},
        {R"(ALTER TABLE "MetaFile" RENAME COLUMN "fileURL" TO "former")", true},
        {R"(DROP TABLE "MetaTags"; CREATE TABLE "MetaTags" (id INTEGER, "genre" INTEGER))", false},
    };
    for (const auto &[change, isKept] : cases) {
        {
            Manager manager;
            manager.addFile(u"x"_s)->related(u"tags"_s)->setValueForKey(u"T"_s, u"title"_s);
            manager.saveChanges();
        }
        SQLite::Database(storeFile().toStdString(), SQLite::OPEN_READWRITE).exec(change);
        Manager manager;
        EXPECT_EQ(manager.storeWasReset(), !isKept) << change;
        const auto tags = manager.managedObjectContext()->fetch(u"MetaTags"_s);
        ASSERT_THAT(tags, SizeIs(isKept ? 1 : 0)) << change;
        if (isKept) {
            EXPECT_EQ(tags[0]->valueForKey(u"title"_s), u"T"_s);
            tags[0]->setValueForKey(u"G"_s, u"genre"_s);
            manager.saveChanges();
        }
        manager.resetDatabase();
    }
}

/// While it lives, files cannot grow: the disk is full.
class FullDisk
{
public:
    FullDisk()
    {
        ::getrlimit(RLIMIT_FSIZE, &m_limit);
        ::signal(SIGXFSZ, SIG_IGN);
        const struct rlimit full = {.rlim_cur = 1, .rlim_max = m_limit.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_limit); }

private:
    struct rlimit m_limit = {};
};

TEST_F(HRFPersistentStoreManagerTest, ChangesThatCouldNotBeSavedStay)
{
    {
        Manager manager;
        manager.addFile(u"one"_s);
        manager.saveChanges();
        manager.addFile(u"two"_s);
        {
            const FullDisk fullDisk;
            const auto saved = manager.managedObjectContext()->save();
            ASSERT_FALSE(saved);
            EXPECT_EQ(saved.error().domain, u"SQLite"_s);
        }
        EXPECT_TRUE(manager.managedObjectContext()->hasChanges());
        manager.saveChanges();
        EXPECT_FALSE(manager.managedObjectContext()->hasChanges());
    }
    EXPECT_THAT(Manager().urls(), ElementsAre(u"one"_s, u"two"_s));
}

TEST_F(HRFPersistentStoreManagerTest, ABurstOfDelayedSavesIsOneSave)
{
    Manager manager;
    for (int i = 0; i < 10; ++i) {
        manager.addFile(QString::number(i));
        manager.saveChangesSilentlyWithDelay();
    }
    EXPECT_TRUE(manager.managedObjectContext()->hasChanges());
    waitUntil([&] { return !manager.managedObjectContext()->hasChanges(); });
}

TEST_F(HRFPersistentStoreManagerTest, AResetLeavesOtherStoresAlone)
{
    Manager manager;
    manager.addFile(u"x"_s);
    manager.saveChanges();
    write(path(u"data/stores/one.two.sqlite"_s), "");
    write(path(u"data/stores/completions.sqlite"_s), "");
    EXPECT_TRUE(QFile::exists(storeFile() + u"-wal"_s));
    const auto background = manager.newPrivateContext();
    manager.resetDatabase();
    EXPECT_EQ(manager.managedObjectContext(), nullptr);
    EXPECT_THAT(QDir(path(u"data/stores"_s)).entryList(QDir::Files, QDir::Name),
                ElementsAre(u"completions.sqlite"_s, u"one.two.sqlite"_s));
    background->performBlockAndWait([&] { EXPECT_FALSE(background->save()); });
}

TEST_F(HRFPersistentStoreManagerTest, NobodyTakesTheFolderOfARunningProgram)
{
    const QString session = path(u"data/windowSessions/left.sqlite"_s);
    QDir().mkpath(path(u"data/windowSessions"_s));
    write(session, "");
    EXPECT_FALSE(HRFDataFolder::take(path(u"data"_s)));
    EXPECT_TRUE(QFile::exists(session));
    folder.reset(); // as when it is killed
    folder = *HRFDataFolder::take(path(u"data"_s));
    EXPECT_FALSE(QFile::exists(session));
}

TEST_F(HRFPersistentStoreManagerTest, TemporaryStoresLeaveNothing)
{
    const auto temporary = HRFDataFolder::temporary();
    write(path(u".hidden"_s), "");
    const QString before = QDir::currentPath();
    QDir::setCurrent(path({}));
    {
        Manager manager;
        EXPECT_TRUE(manager.storeWasReset());
        manager.addFile(u"x"_s);
        manager.saveChanges();
        EXPECT_FALSE(manager.managedObjectContext()->hasChanges());
        manager.resetDatabase();
    }
    QDir::setCurrent(before);
    EXPECT_THAT(QDir(path({})).entryList(QDir::Files | QDir::Hidden), ElementsAre(u".hidden"_s));
}

} // namespace
