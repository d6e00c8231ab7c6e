#include "kit/HRFMainThread.h"
#include "store/HRFMainContext.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"
#include "store/HRFObjectStore.h"
#include "store/HRFSystemFile.h"
#include "support/HRFTestApplication.h"

#include <gmock/gmock.h>

#include <latch>
#include <ranges>
#include <thread>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class HRFObjectContextTest : public HRFApplicationTest
{
protected:
    HRFObjectContextTest()
    {
        const auto model = HRFObjectModel::named(u"Lirra"_s);
        auto store =
            HRFObjectStore::open(path(u"list.sqlite"_s), model, HRFObjectStore::Migrates::Yes,
                                 HRFObjectStore::Durability::Session);
        main = std::make_shared<HRFMainContext>(model, *store);
        background = std::make_shared<HRFPrivateContext>(main);
        QObject::connect(main.get(), &HRFMainContext::objectsDidChange,
                         [this](const HRFContextChanges &changes) { record(changes); });
    }

    void record(const HRFContextChanges &changes)
    {
        QStringList updates;
        for (const HRFObjectChange &change : changes.updated) {
            QStringList keys = change.changedValues().keys();
            keys.sort();
            updates.append(change.object->entity().name + u":"_s + keys.join(u','));
        }
        updates.sort();
        events.push_back(
            u"%1 +%2 -%3 %4"_s.arg(changes.isFromBackground ? u"background"_s : u"edit"_s)
                .arg(changes.inserted.size())
                .arg(changes.deleted.size())
                .arg(updates.join(u' '))
                .trimmed());
    }

    /// Changes files on another thread.
    void inBackground(const std::function<void(HRFPrivateContext &)> &work)
    {
        std::thread thread([&] {
            background->performBlockAndWait([&] {
                work(*background);
                EXPECT_TRUE(background->save());
            });
            isDone = true;
            HRFMainThread::wakeUp();
        });
        HRFMainThread::serveUntil([this] { return isDone.exchange(false); });
        thread.join();
    }

    HRFObjectID addFile(const QString &title)
    {
        HRFObjectID objectID = 0;
        inBackground([&](HRFPrivateContext &context) {
            auto *file = context.newObject<HRFMetaFile>();
            file->tags().setValueForKey(title, u"title"_s);
            objectID = file->objectID();
        });
        return objectID;
    }

    HRFMetaTags &tags(HRFObjectID file) { return main->object<HRFMetaFile>(file)->tags(); }
    QString title(HRFObjectID file) { return tags(file).valueForKey(u"title"_s).toString(); }

    std::shared_ptr<HRFMainContext> main;
    std::shared_ptr<HRFPrivateContext> background;
    std::vector<QString> events;
    std::atomic<bool> isDone = false;
};

TEST_F(HRFObjectContextTest, BackgroundChangesArriveAsOneEventWithoutUndo)
{
    const HRFObjectID file = addFile(u"One"_s);
    EXPECT_EQ(title(file), u"One"_s);
    EXPECT_EQ(main->object<HRFMetaFile>(file)->fileInfo().parentMetaFile()->objectID(), file);
    EXPECT_THAT(events, ElementsAre(u"background +5 -0"_s));
    EXPECT_FALSE(main->undoManager().canUndo());
}

TEST_F(HRFObjectContextTest, AnEditOfManyFilesIsOneEventAndOneCommand)
{
    const HRFObjectID files[] = {addFile(u"One"_s), addFile(u"Two"_s)};
    events.clear();
    for (const HRFObjectID file : files) {
        tags(file).setValueForKey(u"Same"_s, u"title"_s);
        tags(file).setValueForKey(3, u"trackNumber"_s);
        tags(file).setValueForKey(u""_s, u"artist"_s); // as it is
    }
    main->setUndoActionName(u"Edit"_s);
    waitUntil([this] { return !events.empty(); });
    EXPECT_THAT(events,
                ElementsAre(u"edit +0 -0 MetaTags:title,trackNumber MetaTags:title,trackNumber"_s));
    EXPECT_EQ(main->undoManager().count(), 1);
    EXPECT_EQ(main->undoManager().undoText(), u"Edit"_s);

    main->undo();
    EXPECT_EQ(title(files[1]), u"Two"_s);
    EXPECT_FALSE(tags(files[0]).valueForKey(u"trackNumber"_s).isValid());
    EXPECT_THAT(events, SizeIs(2)); // undoing is an edit
    main->redo();
    EXPECT_EQ(title(files[1]), u"Same"_s);
    EXPECT_EQ(main->undoManager().count(), 1);
}

TEST_F(HRFObjectContextTest, UndoTakesBackTheLatestEditEvenBeforeItsEventEnds)
{
    const HRFObjectID file = addFile(u"One"_s);
    tags(file).setValueForKey(u"Two"_s, u"title"_s);
    main->processPendingChanges();
    tags(file).setValueForKey(u"A"_s, u"artist"_s);
    main->undo();
    EXPECT_EQ(title(file), u"Two"_s);
    EXPECT_FALSE(tags(file).valueForKey(u"artist"_s).isValid());
    // An object that is made here stays whole, whatever is undone.
    auto *made = main->newObject<HRFMetaFile>();
    made->tags().setValueForKey(u"Made"_s, u"title"_s);
    main->undo();
    EXPECT_EQ(title(file), u"One"_s);
    EXPECT_EQ(title(made->objectID()), u"Made"_s);
}

TEST_F(HRFObjectContextTest, RegistrationIsASwitch)
{
    const HRFObjectID file = addFile(u"One"_s);
    main->disableUndoRegistration();
    main->disableUndoRegistration();
    tags(file).setValueForKey(u"Two"_s, u"title"_s);
    main->processPendingChanges();
    EXPECT_FALSE(main->undoManager().canUndo());
    main->enableUndoRegistration();
    tags(file).setValueForKey(u"Three"_s, u"title"_s);
    main->processPendingChanges();
    EXPECT_TRUE(main->undoManager().canUndo());
}

TEST_F(HRFObjectContextTest, ABackgroundSaveTouchesNothingButWhatItChanged)
{
    const HRFObjectID file = addFile(u"One"_s);
    const HRFObjectID doomed = addFile(u"Two"_s);
    events.clear();
    inBackground([&](HRFPrivateContext &context) {
        context.object<HRFMetaFile>(file)->setTagSize(100);
        context.object<HRFMetaFile>(file)->tags().setValueForKey(u"X"_s, u"genre"_s);
        context.object<HRFMetaFile>(doomed)->setTagSize(100);
        // Meanwhile the user edits one file and removes the other.
        HRFMainThread::run(
            [&] {
                tags(file).setValueForKey(u"Edited"_s, u"title"_s);
                main->deleteObject(*main->object(doomed));
            },
            HRFMainThread::Wait::Yes);
    });
    EXPECT_THAT(events,
                ElementsAre(u"edit +0 -5 MetaTags:title"_s,
                            u"background +0 -0 MetaFile:tagSize MetaTags:genre"_s));
    EXPECT_EQ(title(file), u"Edited"_s);
    EXPECT_EQ(main->object(doomed), nullptr);
    EXPECT_THAT(main->fetch(u"SystemFile"_s), SizeIs(1));
    main->undo();
    EXPECT_EQ(title(file), u"One"_s);
}

/// What the user edits after the copy was made is newer than what comes back.
TEST_F(HRFObjectContextTest, NewerEditsStay)
{
    const HRFObjectID file = addFile(u"One"_s);
    tags(file).setValueForKey(u"Before"_s, u"artist"_s);
    inBackground([&](HRFPrivateContext &context) {
        HRFMetaTags &copy = context.object<HRFMetaFile>(file)->tags();
        HRFMainThread::run([&] { tags(file).setValueForKey(u"Newer"_s, u"title"_s); },
                           HRFMainThread::Wait::Yes);
        copy.setValueForKey(u"Read"_s, u"title"_s);
        copy.setValueForKey(u"Read"_s, u"artist"_s);
    });
    EXPECT_EQ(title(file), u"Newer"_s);
    EXPECT_EQ(tags(file).valueForKey(u"artist"_s), u"Read"_s);
    inBackground([&](HRFPrivateContext &context) {
        context.object<HRFMetaFile>(file)->tags().setValueForKey(u"Read"_s, u"title"_s);
    });
    EXPECT_EQ(title(file), u"Read"_s);
}

TEST_F(HRFObjectContextTest, PrivateContextsForgetWhatTheyRollBack)
{
    const HRFObjectID file = addFile(u"One"_s);
    events.clear();
    inBackground([&](HRFPrivateContext &context) {
        context.newObject<HRFMetaFile>();
        context.deleteObject(*context.object(file));
        EXPECT_EQ(context.object(file), nullptr);
        EXPECT_THAT(context.fetch<HRFMetaFile>(), SizeIs(1));
        context.rollback();
        EXPECT_FALSE(context.hasChanges());
        EXPECT_THAT(context.fetch<HRFMetaFile>(), SizeIs(1));
    });
    EXPECT_THAT(events, IsEmpty());
    EXPECT_EQ(title(file), u"One"_s);
}

TEST_F(HRFObjectContextTest, RecordsAreNeverFoundWithoutTheirParts)
{
    constexpr int count = 3000;
    for (int i = 0; i < count; ++i)
        main->newObject<HRFMetaFile>();
    const std::vector<HRFMetaFile *> files = main->fetch<HRFMetaFile>();
    std::vector<HRFObjectID> objectIDs;
    for (const HRFMetaFile *file : files)
        objectIDs.push_back(file->objectID());
    std::latch isLooking(1);
    std::thread worker([&] {
        background->performBlockAndWait([&] {
            isLooking.count_down();
            for (std::size_t i = objectIDs.size(); i-- > 0;)
                if (const HRFManagedObject *file = background->object(objectIDs[i])) {
                    ASSERT_NE(file->related(u"tags"_s), nullptr);
                    ASSERT_NE(file->related(u"fileInfo"_s), nullptr);
                }
        });
    });
    isLooking.wait();
    for (HRFMetaFile *file : files | std::views::reverse)
        main->deleteObject(*file);
    worker.join();
}

/// The worker holds the context and needs the main thread, which waits for the context.
TEST_F(HRFObjectContextTest, AWorkerThatNeedsTheMainThreadDoesNotHang)
{
    std::latch holdsContext(1);
    int order = 0;
    int workerWasAt = 0;
    std::thread worker([&] {
        background->performBlockAndWait([&] {
            holdsContext.count_down();
            HRFMainThread::run([&] { workerWasAt = ++order; }, HRFMainThread::Wait::Yes);
            auto *file = background->newObject<HRFMetaFile>();
            file->setTagSize(1);
            EXPECT_TRUE(background->save()); // needs the main thread once more
        });
    });
    holdsContext.wait();
    int mainWasAt = 0;
    background->performBlockAndWait([&] { mainWasAt = ++order; });
    worker.join();
    EXPECT_EQ(workerWasAt, 1);
    EXPECT_EQ(mainWasAt, 2);
}

TEST_F(HRFObjectContextTest, BlocksRunInTheOrderInWhichTheyCame)
{
    std::vector<int> order;
    for (int i = 0; i < 100; ++i)
        background->performBlock([&order, i] { order.push_back(i); });
    HRFBackground::waitUntilIdle();
    EXPECT_THAT(order, SizeIs(100));
    EXPECT_TRUE(std::ranges::is_sorted(order));
}

TEST_F(HRFObjectContextTest, FailuresReachTheOneWhoWaits)
{
    std::thread([] {
        EXPECT_THROW(
            HRFMainThread::run([] { throw std::runtime_error("no"); }, HRFMainThread::Wait::Yes),
            std::runtime_error);
        HRFMainThread::wakeUp();
    }).detach();
    bool hasRun = false;
    std::thread last([&] { HRFMainThread::run([&] { hasRun = true; }, HRFMainThread::Wait::Yes); });
    HRFMainThread::serveUntil([&] { return hasRun; });
    last.join();
}

} // namespace
