#include "document/HRFPlaylist.h"

#include "document/HRFDocumentController.h"
#include "kit/HRFApplication.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserDefaults.h"
#include "operations/HRFTagWriteOperation.h"
#include "store/HRFDataFolder.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"
#include "store/HRFSystemFile.h"
#include "support/HRFHeldQueue.h"
#include "support/HRFScriptedInteraction.h"
#include "support/HRFTestApplication.h"
#include "support/HRFTestFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

namespace {

/// A list over copies of real files, with a user who answers as the test says.
class HRFPlaylistTest : public HRFApplicationTest
{
protected:
    HRFPlaylistTest()
        : dataFolder(*HRFDataFolder::take(path(u"data"_s))), list(documents.newDocument())
    {
        HRFUserDefaults::standard().setFilePath(path(u"settings.ini"_s));
        QDir().mkpath(path(u"music"_s));
        QObject::connect(&list, &HRFPlaylist::fileOperationsDidEnd, [this] { ++endedBatches; });
        QObject::connect(&list.fileManager(), &HRFMetaFileManager::importDidEnd,
                         [this](const std::optional<QSet<QString>> &urls) {
                             urls ? ++endsWithSelection : ++ends;
                         });
        QObject::connect(&list.fileManager(), &HRFMetaFileManager::filesWereNotImported,
                         [this](const std::vector<HRFFileProblem> &found) {
                             problems.insert(problems.end(), found.begin(), found.end());
                         });
    }
    ~HRFPlaylistTest() override { HRFUserDefaults::standard().setFilePath({}); }

    HRFFileReference music(const QString &name) const
    {
        return HRFFileReference::fromPath(path(u"music/"_s + name));
    }
    void addCopy(const QString &fixture, const QString &name) const
    {
        ASSERT_TRUE(QFile::copy(QStringLiteral(HRF_FIXTURES) + fixture, path(u"music/"_s + name)));
    }
    /// Copies of an MP3 file: "01.mp3" and so on.
    void addCopies(int count) const
    {
        for (int i = 1; i <= count; ++i)
            addCopy(u"id3v23.mp3"_s, u"%1.mp3"_s.arg(i, 2, 10, QChar(u'0')));
    }
    /// Imports a file or folder of the test and waits for it.
    void import(const QString &name = {})
    {
        const int before = ends;
        ASSERT_TRUE(list.importFileAtPath(music(name)));
        waitUntil([&] { return ends > before; });
    }
    /// Imports a number of copies.
    void importCopies(int count)
    {
        addCopies(count);
        import();
        ASSERT_THAT(list.arrangedFiles(), SizeIs(count));
    }

    HRFMetaFile &record(const QString &name) const
    {
        for (HRFMetaFile *file : list.arrangedFiles())
            if (file->fileInfo().fileName() == name)
                return *file;
        throw std::runtime_error("no record of " + name.toStdString());
    }
    HRFMetaTags &tags(const QString &name) const { return record(name).tags(); }
    /// What stands in the file, by a fresh engine.
    QString onDisk(const QString &name, HRFTagKey key) const
    {
        const auto engine = HRFTagEngine::initWithURL(music(name));
        return engine ? (*engine)->valueForKey(key).toString() : u"no engine"_s;
    }
    void waitForBatches(int count = 1)
    {
        waitUntil([&] { return endedBatches >= count; });
        EXPECT_EQ(endedBatches, count);
        endedBatches = 0;
    }
    /// Nothing is to be done any more, and nothing was.
    void expectNoBatch()
    {
        QCoreApplication::processEvents();
        EXPECT_EQ(HRFMetaFileManager::fileOperationQueue().operationCount(), 0U);
        EXPECT_EQ(endedBatches, 0);
    }

    HRFScriptedInteraction user;
    std::unique_ptr<HRFDataFolder> dataFolder;
    HRFDocumentController documents;
    HRFPlaylist &list;
    int ends = 0;
    int endsWithSelection = 0;
    int endedBatches = 0;
    std::vector<HRFFileProblem> problems;
};

/// From paths to records, through edits, to the bytes on the disk and back.
TEST_F(HRFPlaylistTest, AFileLivesInAList)
{
    const QStringList names = {u"a.mp3"_s, u"b.m4a"_s, u"c.flac"_s};
    addCopy(u"id3v23.mp3"_s, names[0]);
    addCopy(u"aac.m4a"_s, names[1]);
    addCopy(u"plain.flac"_s, names[2]);
    import();
    ASSERT_THAT(list.arrangedFiles(), SizeIs(3));
    expectNoBatch(); // imported values are no edits
    EXPECT_FALSE(list.undoManager().canUndo());

    const QString before = onDisk(names[0], HRFTagKey::title);
    for (const QString &name : names) {
        tags(name).setValueForKey(u"A rather long new title"_s, u"title"_s);
        tags(name).setValueForKey(7, u"trackNumber"_s);
    }
    waitForBatches();
    for (const QString &name : names) {
        EXPECT_EQ(onDisk(name, HRFTagKey::title), u"A rather long new title"_s);
        EXPECT_EQ(onDisk(name, HRFTagKey::trackNumber), u"7"_s);
        EXPECT_EQ(record(name).fileInfo().valueForKey(u"fileSize"_s),
                  QFileInfo(path(u"music/"_s + name)).size());
    }
    EXPECT_EQ(QString::number(record(names[0]).tagSize().value_or(0)),
              onDisk(names[0], HRFTagKey::tagSize));
    EXPECT_EQ(list.undoManager().count(), 1); // the refresh is no edit

    list.undo(); // the files follow
    waitForBatches();
    EXPECT_EQ(onDisk(names[0], HRFTagKey::title), before);
    list.redo();
    waitForBatches();
    EXPECT_EQ(onDisk(names[0], HRFTagKey::title), u"A rather long new title"_s);

    user.answers = {{HRFAnswerRole::Accept}};
    list.fileController().setSelectedObjects(list.arrangedFiles());
    list.strip();
    waitForBatches();
    EXPECT_EQ(user.alerts.back().message, u"Remove all metadata from 3 files ?"_s);
    EXPECT_EQ(user.notifications.back().text, u"3 File(s) Processed."_s);
    for (const QString &name : names) {
        EXPECT_EQ(onDisk(name, HRFTagKey::title), QString());
        EXPECT_FALSE(tags(name).valueForKey(u"title"_s).isValid()) << name.toStdString();
    }
    list.remove();
    EXPECT_FALSE(list.undoManager().canUndo());
    EXPECT_THAT(list.arrangedFiles(), IsEmpty());
    EXPECT_TRUE(QFile::exists(path(u"music/a.mp3"_s)));
}

TEST_F(HRFPlaylistTest, ImportsTakeEveryFileOnce)
{
    addCopies(2);
    addCopy(u"id3v23.mp3"_s, u"UPPER.MP3"_s);
    QFile::link(path(u"music/01.mp3"_s), path(u"music/link.mp3"_s));
    QDir().mkpath(path(u"music/sub/deep"_s));
    QFile::link(path(u"music"_s), path(u"music/sub/loop"_s));
    addCopy(u"aac.m4a"_s, u"sub/deep/.hidden.m4a"_s);
    addCopy(u"adts.aac"_s, u"bad.aac"_s);
    const int before = ends;
    user.answers = {{u"OK"_s}};
    ASSERT_TRUE(list.importFilesAtPaths({music(u"02.mp3"_s), music({}), music(u"missing.mp3"_s)}));
    waitUntil([&] { return ends > before && !user.presentedErrors.empty(); });
    EXPECT_THAT(list.arrangedFiles(), SizeIs(4));
    EXPECT_EQ(list.arrangedFiles().front()->fileInfo().fileName(), u"02.mp3"_s);
    EXPECT_EQ(user.presentedErrors.front().description, u"Could not add 1 invalid file(s)."_s);
    EXPECT_THAT(problems, SizeIs(2)); // the missing file, and the unreadable one

    // Again: nothing is new, and what is there gets selected.
    ends = 0;
    EXPECT_TRUE(list.importFilesAtPaths({music(u"01.mp3"_s), music(u"UPPER.MP3"_s)}));
    waitUntil([&] { return ends > 0; });
    EXPECT_THAT(list.selectedFiles(), SizeIs(2));
    EXPECT_THAT(list.arrangedFiles(), SizeIs(4));
    EXPECT_FALSE(list.importFileAtPath(music(u"nowhere"_s)));
}

TEST_F(HRFPlaylistTest, ACancelledImportLeavesNothing)
{
    importCopies(1);
    for (int i = 0; i < 700; ++i)
        addCopy(u"id3v23.mp3"_s, u"more%1.mp3"_s.arg(i));
    ASSERT_TRUE(list.importFileAtPath(music({})));
    const int before = ends;
    waitUntil([&] { return !user.shownProgresses.empty(); });
    const auto progress = user.shownProgresses.back().progress;
    EXPECT_EQ(progress->localizedDescription(), u"Reading Metadata…"_s);
    // The first 300 are in the list by then.
    waitUntil([&] { return list.arrangedFiles().size() > 100; });
    progress->cancel();
    waitUntil([&] { return ends > before; });
    EXPECT_THAT(list.arrangedFiles(), SizeIs(1));
    EXPECT_EQ(user.visibleProgressCount, 0);
    EXPECT_TRUE(list.managedObjectContext().isUndoRegistrationEnabled());
}

/// Dropped twice, a file is there once; and a list may go while it imports.
TEST_F(HRFPlaylistTest, ImportsFollowEachOther)
{
    addCopies(50);
    HRFPlaylist &other = documents.newDocument();
    other.importFileAtPath(music({}));
    other.importFileAtPath(music({}));
    for (int i = 0; i < 3; ++i)
        list.importFileAtPath(music({}));
    documents.removeDocument(other);
    waitUntil([&] { return ends == 3; });
    EXPECT_THAT(list.arrangedFiles(), SizeIs(50));
    EXPECT_EQ(user.visibleProgressCount, 0);
}

TEST_F(HRFPlaylistTest, EditsBeforeTheWriteBecomeOneWrite)
{
    importCopies(1);
    const QString old = onDisk(u"01.mp3"_s, HRFTagKey::title);
    std::vector<std::shared_ptr<HRFProgress>> progresses;
    {
        HRFHeldQueue held;
        for (const auto &[value, key] : {std::pair(u"T"_s, u"title"_s), {u"A"_s, u"artist"_s}}) {
            tags(u"01.mp3"_s).setValueForKey(value, key);
            list.managedObjectContext().processPendingChanges();
            progresses.push_back(list.fileManager().writeProgress());
        }
        list.undo(); // of the artist, before anything is written
    }
    waitForBatches(3);
    EXPECT_EQ(onDisk(u"01.mp3"_s, HRFTagKey::title), u"T"_s);
    EXPECT_NE(onDisk(u"01.mp3"_s, HRFTagKey::artist), u"A"_s);
    EXPECT_TRUE(progresses[0]->isFinished());
    EXPECT_TRUE(progresses[1]->isFinished());
    list.undo();
    waitForBatches();
    EXPECT_EQ(onDisk(u"01.mp3"_s, HRFTagKey::title), old);
}

TEST_F(HRFPlaylistTest, AStripDropsThePendingWrite)
{
    importCopies(1);
    {
        HRFHeldQueue held;
        tags(u"01.mp3"_s).setValueForKey(u"T"_s, u"title"_s);
        list.managedObjectContext().processPendingChanges();
        list.fileController().setSelectedObjects(list.arrangedFiles());
        list.stripTags();
    }
    waitForBatches(2);
    EXPECT_EQ(onDisk(u"01.mp3"_s, HRFTagKey::title), QString());
    EXPECT_FALSE(tags(u"01.mp3"_s).valueForKey(u"title"_s).isValid());
}

/// While the question is on the screen, an import selects other files.
TEST_F(HRFPlaylistTest, OnlyConfirmedFilesAreStripped)
{
    importCopies(1);
    addCopy(u"id3v23.mp3"_s, u"new.mp3"_s);
    user.answers = {{HRFAnswerRole::Accept}};
    user.onQuestion = [this](const QString &) {
        list.importFileAtPath(music(u"new.mp3"_s));
        waitUntil([&] { return endsWithSelection == 2; });
        EXPECT_EQ(list.selectedFiles()[0]->fileInfo().fileName(), u"new.mp3"_s);
    };
    list.strip();
    waitForBatches();
    EXPECT_EQ(onDisk(u"01.mp3"_s, HRFTagKey::title), QString());
    EXPECT_NE(onDisk(u"new.mp3"_s, HRFTagKey::title), QString());
}

/// A record that goes, or is edited again, while its batch is under way.
TEST_F(HRFPlaylistTest, RefreshesCopeWithWhatHappensMeanwhile)
{
    importCopies(30);
    list.fileController().setSelectedObjects(list.arrangedFiles());
    list.stripTags();
    tags(u"02.mp3"_s).setValueForKey(u"Later"_s, u"title"_s);
    list.managedObjectContext().processPendingChanges();
    waitForBatches(2);
    EXPECT_EQ(tags(u"02.mp3"_s).valueForKey(u"title"_s), u"Later"_s);
    EXPECT_EQ(onDisk(u"02.mp3"_s, HRFTagKey::title), u"Later"_s);
    EXPECT_FALSE(tags(u"03.mp3"_s).valueForKey(u"title"_s).isValid());

    list.fileController().setSelectedObjects(list.arrangedFiles());
    list.stripTags();
    HRFMetaFileManager::fileOperationQueue().waitUntilAllOperationsAreFinished();
    QCoreApplication::processEvents(); // the refresh has begun
    list.clear();
    waitForBatches();
    EXPECT_THAT(list.arrangedFiles(), IsEmpty());
}

TEST_F(HRFPlaylistTest, VanishedFilesDoNotKeepTheOthers)
{
    importCopies(4);
    QFile::remove(path(u"music/02.mp3"_s));
    user.answers = {{u"Continue"_s}};
    for (HRFMetaFile *file : list.arrangedFiles())
        file->tags().setValueForKey(u"T"_s, u"title"_s);
    waitForBatches();
    for (const QString &name : {u"01.mp3"_s, u"03.mp3"_s, u"04.mp3"_s})
        EXPECT_EQ(onDisk(name, HRFTagKey::title), u"T"_s);
    ASSERT_THAT(user.alerts, SizeIs(1));
    EXPECT_TRUE(user.alerts[0].message.contains(u"02.mp3"_s));
    EXPECT_EQ(tags(u"02.mp3"_s).valueForKey(u"title"_s), u"T"_s); // not taken back
}

TEST_F(HRFPlaylistTest, CancelEndsTheBatchAfterTheRunningFile)
{
    importCopies(6);
    QFile::remove(path(u"music/03.mp3"_s));
    user.answers = {{u"Cancel"_s}};
    const QString old = onDisk(u"05.mp3"_s, HRFTagKey::title);
    for (HRFMetaFile *file : list.arrangedFiles())
        file->tags().setValueForKey(u"T"_s, u"title"_s);
    waitForBatches();
    EXPECT_EQ(onDisk(u"02.mp3"_s, HRFTagKey::title), u"T"_s);
    EXPECT_EQ(onDisk(u"05.mp3"_s, HRFTagKey::title), old);
}

TEST_F(HRFPlaylistTest, AnEditedNameRenamesTheFile)
{
    importCopies(2);
    record(u"01.mp3"_s).fileInfo().setValueForKey(u"AC/DC.mp3"_s, u"fileName"_s);
    waitUntil([&] { return QFile::exists(path(u"music/AC:DC.mp3"_s)); });
    EXPECT_EQ(record(u"AC:DC.mp3"_s).url()->displayName(), u"AC:DC.mp3"_s);
    EXPECT_EQ(list.undoManager().undoText(), u"Rename"_s);
    list.undo();
    EXPECT_TRUE(QFile::exists(path(u"music/01.mp3"_s)));

    // A name that is taken: both stay.
    record(u"01.mp3"_s).fileInfo().setValueForKey(u"02.mp3"_s, u"fileName"_s);
    waitUntil([&] { return QFile::exists(path(u"music/02 2.mp3"_s)); });
    waitUntil([&] { return list.arrangedFiles()[0]->fileInfo().fileName() == u"02 2.mp3"_s; });

    // A name that cannot be: the edit is taken back.
    for (const QString &name :
         {QString(300, u'x') + u".mp3"_s, u""_s, u"."_s, u".."_s, u"a\0b"_s}) {
        HRFSystemFile &info = list.arrangedFiles()[1]->fileInfo();
        user.presentedErrors.clear();
        info.setValueForKey(name, u"fileName"_s);
        waitUntil([&] { return !user.presentedErrors.empty(); });
        waitUntil([&] { return info.fileName() == u"02.mp3"_s; });
        EXPECT_TRUE(QFile::exists(path(u"music/02.mp3"_s)));
    }
}

TEST_F(HRFPlaylistTest, CommandsNeedWhatTheyWorkOn)
{
    struct
    {
        const char *command;
        bool inEmptyList;
        bool withSelection;
    } const cases[] = {{"add:", true, true},
                       {"clear:", false, true},
                       {"remove:", false, true},
                       {"strip:", false, true},
                       {"unheardOf:", false, false}};
    for (const auto &row : cases)
        EXPECT_EQ(list.validateUserInterfaceItem(QString::fromLatin1(row.command)),
                  row.inEmptyList);
    importCopies(1);
    for (const auto &row : cases)
        EXPECT_EQ(list.validateUserInterfaceItem(QString::fromLatin1(row.command)),
                  row.withSelection);
    user.answers = {{HRFAnswerRole::Cancel}};
    list.strip();
    EXPECT_EQ(user.alerts.back().message, u"Remove all metadata from “01.mp3” ?"_s);
    expectNoBatch();
    list.clear();
    EXPECT_FALSE(list.validateUserInterfaceItem(u"clear:"_s));
    EXPECT_TRUE(list.managedObjectContext().isUndoRegistrationEnabled());
}

TEST_F(HRFPlaylistTest, TheLastListStaysOpen)
{
    list.close();
    EXPECT_THAT(documents.documents(), SizeIs(1));
    documents.newDocument().close();
    EXPECT_THAT(documents.documents(), SizeIs(1));
    const QString session = list.fileManager().storeURL();
    EXPECT_TRUE(QFile::exists(session));
    bool isTerminated = false;
    EXPECT_TRUE(documents.terminate([&] { isTerminated = true; }));
    EXPECT_TRUE(isTerminated);
    EXPECT_FALSE(QFile::exists(QFileInfo(session).path()));
    list.close();
    EXPECT_THAT(documents.documents(), IsEmpty());
}

TEST_F(HRFPlaylistTest, QuittingWaitsForPendingWritesUnlessTheyAreCancelled)
{
    importCopies(3);
    bool isTerminated = false;
    HRFHeldQueue held;
    for (HRFMetaFile *file : list.arrangedFiles())
        file->tags().setValueForKey(u"T"_s, u"title"_s); // in the very event of the end
    EXPECT_FALSE(documents.terminate([&] { isTerminated = true; }));
    const auto shown = user.shownProgresses.back();
    EXPECT_EQ(shown.progress->localizedDescription(), u"Writing Metadata…"_s);
    EXPECT_EQ(shown.progress->localizedAdditionalDescription(), u"3 items total"_s);
    user.answers = {{u"No"_s}, {u"Yes"_s}};
    shown.appearance.cancel();
    EXPECT_FALSE(shown.progress->isCancelled());
    EXPECT_EQ(user.alerts.back().message,
              u"Are you sure you want to cancel the remaining operations?"_s);
    shown.appearance.cancel();
    EXPECT_FALSE(isTerminated);
    held.release();
    waitUntil([&] { return isTerminated; });
    EXPECT_NE(onDisk(u"01.mp3"_s, HRFTagKey::title), u"T"_s);
}

TEST_F(HRFPlaylistTest, WorkOfAClosedListCanBeCancelled)
{
    importCopies(3);
    documents.newDocument();
    HRFHeldQueue held;
    for (HRFMetaFile *file : list.arrangedFiles()) {
        file->tags().setValueForKey(u"T"_s, u"title"_s);
        ASSERT_TRUE(QFile::remove(file->url()->displayPath()));
    }
    list.managedObjectContext().processPendingChanges();
    const QPointer closed(&list);
    list.close();
    waitUntil([&] { return !closed; });
    bool isTerminated = false;
    documents.terminate([&] { isTerminated = true; });
    EXPECT_EQ(user.shownProgresses.back().progress->totalUnitCount(), 3);
    user.answers = {{HRFAnswerRole::Cancel}};
    held.release();
    waitUntil([&] { return isTerminated; });
    EXPECT_THAT(user.alerts, testing::SizeIs(1));
    EXPECT_THAT(user.presentedErrors, IsEmpty());
}

TEST_F(HRFPlaylistTest, FoldersAreRemembered)
{
    const QString first = path(u"music"_s);
    const QString second = path(u"data"_s);
    documents.noteNewRecentMoveDestinationURL(first);
    documents.noteNewRecentMoveDestinationURL(second);
    documents.noteNewRecentMoveDestinationURL(path(u"gone"_s));
    documents.noteNewRecentMoveDestinationURL(first);
    EXPECT_EQ(documents.recentMoveDestinationURLs(), QStringList({first, second}));
    documents.saveRecentMoveDestinations();
    EXPECT_EQ(HRFUserDefaults::standard()
                  .valueForKey(u"com.harrowfield.lirra.recents.moveDestinationFolderURLs"_s)
                  .toStringList(),
              QStringList({first, path(u"gone"_s), second}));
    addCopies(1);
    HRFDocumentController::setStartupDirectoryURL(first);
    documents.openStartupDirectory();
    waitUntil([&] { return list.arrangedFiles().size() == 1; });
    EXPECT_EQ(documents.recentDocuments(), QStringList{first});
}

} // namespace
