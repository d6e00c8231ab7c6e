#include "conversions/HRFFileOperationCC.h"

#include "conversions/HRFPatternString.h"
#include "document/HRFDocumentController.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFUserDefaults.h"
#include "operations/HRFMoveOperation.h"
#include "store/HRFDataFolder.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"
#include "store/HRFSystemFile.h"
#include "support/HRFScriptedInteraction.h"
#include "support/HRFTestApplication.h"
#include "support/HRFTestFile.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <map>
#include <random>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::SizeIs;

namespace {

/// Tags by name.
using Tags = std::map<QString, QString>;

/// What must not change about a file: bytes, mode and modification time.
using FileFacts = std::tuple<QByteArray, unsigned, qint64, qint64>;

/// A list over files in a home of their own, which is as safe to clean up as one is.
class HRFFileOperationCCTest : public HRFApplicationTest
{
protected:
    HRFFileOperationCCTest()
        : dataFolder(*HRFDataFolder::take(path(u"data"_s))), list(documents.newDocument())
    {
        HRFUserDefaults::standard().setFilePath(path(u"settings.ini"_s));
        qputenv("HOME", path(u"home"_s).toLocal8Bit());
        qputenv("XDG_DATA_HOME", path(u"trash"_s).toLocal8Bit());
        QObject::connect(&list.fileManager(), &HRFMetaFileManager::importDidEnd,
                         [this] { ++importEnds; });
        QObject::connect(
            &list, &HRFPlaylist::fileOperationsDidEnd,
            [this](const HRFPlaylist::Operations &operations) { ended.push_back(operations); });
        progress->setLocalizedDescription(u"Work"_s);
    }
    ~HRFFileOperationCCTest() override { HRFUserDefaults::standard().setFilePath({}); }

    QString music(const QString &name = {}) const { return path(u"home/music/"_s + name); }
    void makeFile(const QString &name) const
    {
        QDir().mkpath(QFileInfo(music(name)).path());
        QFile file(music(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("kept") > 0);
    }
    void makeSong(const QString &name, const Tags &tags = {}) const
    {
        QDir().mkpath(QFileInfo(music(name)).path());
        const QString file = music(name);
        ASSERT_TRUE(QFile::copy(QStringLiteral(HRF_FIXTURES) + u"plain.mp3"_s, file));
        const auto engine = HRFTagEngine::initWithURL(HRFFileReference::fromPath(file));
        for (const auto &[tag, value] : tags)
            (*engine)->setValueForKey(value, *HRFTagKeyForName(tag.toStdString()));
        ASSERT_TRUE(tags.empty() || (*engine)->updateFileWithError());
    }
    /// Imports all songs, and selects them.
    void import()
    {
        const int before = importEnds;
        ASSERT_TRUE(list.importFileAtPath(HRFFileReference::fromPath(music())));
        waitUntil([&] { return importEnds > before; });
        list.setSelectedFiles(list.arrangedFiles());
    }
    /// The files of the home, by path.
    QStringList files() const
    {
        QStringList found;
        QDirIterator items(music(), QDir::Files | QDir::System | QDir::Hidden,
                           QDirIterator::Subdirectories);
        while (items.hasNext())
            found += QDir(music()).relativeFilePath(items.next());
        found.sort();
        return found;
    }
    std::map<QString, FileFacts> facts() const
    {
        std::map<QString, FileFacts> all;
        for (const QString &name : files()) {
            QFile file(music(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            struct stat status{};
            EXPECT_EQ(::fstat(file.handle(), &status), 0);
            all[name] = {file.readAll(), status.st_mode, status.st_mtim.tv_sec,
                         status.st_mtim.tv_nsec};
        }
        return all;
    }
    QStringList recordNames() const
    {
        QStringList names;
        for (const HRFMetaFile *file : list.arrangedFiles())
            names += file->fileInfo().fileName();
        names.sort();
        return names;
    }

    static HRFPattern pattern(const QString &text, const HRFConversionContext &context)
    {
        return HRFPattern(HRFItemsForPatternString(text, HRFPatternItem::attributeItems()),
                          context);
    }
    HRFConversionOutcome rename(const QString &text)
    {
        const HRFConversionOutcome outcome =
            list.fileOperationCC().renameFilesWithPattern(pattern(text, context), *progress);
        list.managedObjectContext().processPendingChanges();
        HRFBackground::waitUntilIdle();
        return outcome;
    }
    /// Moves, and waits for the end of it all.
    bool move(const QString &text, const std::optional<QString> &base = {})
    {
        const std::size_t before = ended.size();
        int completions = 0;
        const bool isQueued = list.fileOperationCC().moveFilesToSubPathDefinedByPattern(
            pattern(text, context), base.transform(&HRFFileReference::fromPath), progress,
            [&] { ++completions; });
        if (!progress->isCancelled()) {
            waitUntil([&] { return ended.size() > before; });
            EXPECT_EQ(completions, 1);
        }
        return isQueued;
    }

    HRFScriptedInteraction user;
    std::unique_ptr<HRFDataFolder> dataFolder;
    HRFDocumentController documents;
    HRFPlaylist &list;
    int importEnds = 0;
    std::vector<HRFPlaylist::Operations> ended;
    HRFConversionContext context;
    std::shared_ptr<HRFProgress> progress = std::make_shared<HRFProgress>();
};

TEST_F(HRFFileOperationCCTest, RenamesWhatGetsANameAndSelectsTheRest)
{
    makeSong(u"a/1.mp3"_s, {{u"title"_s, u"AC/DC: Live"_s}});
    makeSong(u"a/2.MP3"_s, {{u"title"_s, u" "_s}}); // trimmed, nothing is left
    makeSong(u"a/3.mp3"_s, {{u"title"_s, QString(252, u'x')}}); // a byte too long
    makeSong(u"a/4.mp3"_s, {{u"title"_s, u"."_s}});
    makeSong(u"a/5.mp3"_s, {{u"title"_s, u"Same"_s}});
    makeSong(u"a/6.mp3"_s, {{u"title"_s, u"Same"_s}});
    makeSong(u"b/7.mp3"_s, {{u"title"_s, u"Same"_s}});
    QFile::link(music(u"nowhere"_s), music(u"b/Same.mp3"_s));
    makeSong(u"b/8.mp3"_s, {{u"title"_s, u"9"_s}});
    makeSong(u"b/9.mp3"_s, {{u"title"_s, u"8"_s}}); // 8 has gone to another place by then
    import();
    const HRFConversionOutcome outcome = rename(u"%title%"_s);
    EXPECT_EQ(files(),
              (QStringList{u"a/2.MP3"_s, u"a/3.mp3"_s, u"a/4.mp3"_s, u"a/AC:DC: Live.mp3"_s,
                           u"a/Same 2.mp3"_s, u"a/Same.mp3"_s, u"b/8.mp3"_s, u"b/9 2.mp3"_s,
                           u"b/Same 2.mp3"_s, u"b/Same.mp3"_s}));
    EXPECT_TRUE(QFileInfo(music(u"b/Same.mp3"_s)).isSymLink());
    EXPECT_EQ(recordNames(),
              (QStringList{u"2.MP3"_s, u"3.mp3"_s, u"4.mp3"_s, u"8.mp3"_s, u"9 2.mp3"_s,
                           u"AC:DC: Live.mp3"_s, u"Same 2.mp3"_s, u"Same 2.mp3"_s, u"Same.mp3"_s}));
    EXPECT_TRUE(outcome.hasChangedFiles);
    EXPECT_EQ(outcome.error.value_or(HRFError()).description,
              u"Some files failed renaming because their new filenames were null"_s);
    EXPECT_THAT(list.selectedFiles(), SizeIs(3));
    EXPECT_EQ(progress->completedUnitCount(), 6);
    EXPECT_EQ(list.undoManager().undoText(), u"Work"_s);
    list.undo();
    EXPECT_TRUE(QFileInfo::exists(music(u"a/1.mp3"_s)));
}

TEST_F(HRFFileOperationCCTest, AsksAboutLeadingDotsOnce)
{
    const struct
    {
        QString answer;
        QStringList renamed, moved;
    } rows[] = {
        {u"Remove Dot"_s,
         {u"a/one.mp3"_s, u"a/three.mp3"_s, u"a/two.mp3"_s},
         {u"one/1.mp3"_s, u"three/3.mp3"_s, u"two/2.mp3"_s}},
        {u"Cancel"_s,
         {u"a/2.mp3"_s, u"a/3.mp3"_s, u"a/one.mp3"_s},
         {u"a/1.mp3"_s, u"a/2.mp3"_s, u"a/3.mp3"_s}},
        {u"Continue"_s,
         {u"a/...three.mp3"_s, u"a/.two.mp3"_s, u"a/one.mp3"_s},
         {u"...three/3.mp3"_s, u".two/2.mp3"_s, u"one/1.mp3"_s}},
    };
    for (const auto &row : rows) {
        for (const bool isMove : {false, true}) {
            makeSong(u"a/1.mp3"_s, {{u"title"_s, u"one"_s}});
            makeSong(u"a/2.mp3"_s, {{u"title"_s, u".two"_s}});
            makeSong(u"a/3.mp3"_s, {{u"title"_s, u"...three"_s}});
            import();
            user.answers = {{row.answer}};
            progress = std::make_shared<HRFProgress>();
            isMove ? void(move(u"%title%"_s, music())) : void(rename(u"%title%"_s));
            EXPECT_EQ(files(), isMove ? row.moved : row.renamed) << row.answer.toStdString();
            EXPECT_EQ(progress->isCancelled(), row.answer == u"Cancel"_s);
            list.clear();
            QDir(music()).removeRecursively();
        }
    }
}

TEST_F(HRFFileOperationCCTest, MovesIntoFoldersMadeOfTags)
{
    const Tags tags{{u"artist"_s, u"A"_s}, {u"album"_s, u"B/C"_s}};
    const struct
    {
        QString pattern;
        bool hasBase;
        QString place; ///< empty when the path is refused
    } rows[] = {
        {u"%artist%/%album%"_s, true, u"base/A/B:C/song.mp3"_s},
        {u"%artist%/%album%"_s, false, u"in/A/B:C/song.mp3"_s},
        {u"/%artist%//x/./../y/"_s, true, u"base/A/y/song.mp3"_s},
        {u"%artist%/%title%"_s, true, u"base/A/Unknown Title/song.mp3"_s},
        {u"."_s, true, u"base/song.mp3"_s},
        {u"."_s, false, u"in/song.mp3"_s},
        {u"../%artist%"_s, true, {}},
        {u"a/../../%artist%"_s, false, {}},
        {QString(256, u'x'), true, {}},
        {{}, true, {}},
        {u"dangling/x"_s, true, {}}, // a link that leads nowhere
        {u"file/x"_s, true, {}},
    };
    for (const auto &row : rows) {
        makeSong(u"in/song.mp3"_s, tags);
        makeFile(u"base/file"_s);
        QFile::link(music(u"nowhere"_s), music(u"base/dangling"_s));
        import();
        const bool isRefused = row.place.isEmpty();
        if (isRefused)
            user.answers = {{u"Cancel"_s}};
        EXPECT_EQ(move(row.pattern, row.hasBase ? std::optional(music(u"base"_s)) : std::nullopt),
                  !isRefused);
        EXPECT_THAT(files(), testing::Contains(isRefused ? u"in/song.mp3"_s : row.place))
            << row.pattern.toStdString();
        EXPECT_THAT(files(), SizeIs(3)) << row.pattern.toStdString();
        ASSERT_THAT(list.arrangedFiles(), SizeIs(1));
        const HRFMetaFile &file = *list.arrangedFiles().front();
        const QString folder = QFileInfo(row.place).path();
        EXPECT_EQ(file.fileInfo().filePath(), music(isRefused ? u"in"_s : folder));
        list.clear();
        QDir(music()).removeRecursively();
    }
    EXPECT_EQ(user.alerts.back().message, u"Some of the new filepaths were invalid."_s);
    EXPECT_EQ(user.alerts.back().buttons.front().title, u"Edit Pattern"_s);
}

TEST_F(HRFFileOperationCCTest, AsksAboutConflictsAndLeavesOutWhatVanished)
{
    for (const QString &folder : {u"a/"_s, u"b/"_s, u"c/"_s})
        makeSong(folder + u"song.mp3"_s);
    makeSong(u"d/gone.mp3"_s);
    QDir().mkpath(music(u"base/song.mp3"_s)); // a folder, as hard to replace as it is to merge
    makeFile(u"base/song.mp3/inside"_s);
    import();
    QFile::remove(music(u"d/gone.mp3"_s));
    user.answers = {{u"Keep Both"_s}, {u"Skip"_s, false, true}, {u"Keep Both"_s}, {u"Cancel"_s}};
    EXPECT_TRUE(move(u"."_s, music(u"base"_s)));
    EXPECT_EQ(files(),
              (QStringList{u"b/song.mp3"_s, u"base/song 2.mp3"_s, u"base/song 3.mp3"_s,
                           u"base/song.mp3/inside"_s}));
    ASSERT_THAT(list.selectedFiles(), SizeIs(1));
    EXPECT_EQ(list.selectedFiles().front()->fileInfo().fileName(), u"gone.mp3"_s);
}

TEST_F(HRFFileOperationCCTest, TellsOfAFileThatVanishesBeforeItsRename)
{
    makeSong(u"a/1.mp3"_s, {{u"title"_s, u"one"_s}});
    import();
    const HRFFilePlan plan =
        HRFPlanRenames(list.arrangedFiles(), pattern(u"%title%"_s, context), {});
    QFile::remove(music(u"a/1.mp3"_s));
    makeFile(u"a/1.mp3"_s); // another one
    list.fileOperationCC().renamePlannedFiles(plan.files, *progress);
    list.managedObjectContext().processPendingChanges();
    waitUntil([&] { return !user.presentedErrors.empty(); });
    HRFBackground::waitUntilIdle();
    EXPECT_EQ(user.presentedErrors.front().code, HRFFileErrorCode::noSuchFile);
    EXPECT_EQ(recordNames(), QStringList(u"1.mp3"_s));
    EXPECT_EQ(files(), QStringList(u"a/1.mp3"_s));
}

TEST_F(HRFFileOperationCCTest, NothingFollowsACancelledMove)
{
    makeSong(u"a/1.mp3"_s);
    makeSong(u"b/2.mp3"_s);
    makeFile(u"a/cover.jpg"_s);
    import();
    makeFile(u"to/2.mp3"_s);
    context.moveNonAudioFiles = true;
    context.removeEmptyDirectories = true;
    user.answers = {{u"Stop"_s}};
    EXPECT_TRUE(move(u"."_s, music(u"to"_s)));
    EXPECT_TRUE(progress->isCancelled());
    EXPECT_EQ(files(), (QStringList{u"a/cover.jpg"_s, u"b/2.mp3"_s, u"to/1.mp3"_s, u"to/2.mp3"_s}));
    EXPECT_THAT(user.alerts, SizeIs(1));
}

/// By folder: does it keep its cover, and is it removed?
TEST_F(HRFFileOperationCCTest, CarriesAlongWhatBelongsToTheFiles)
{
    const auto makeAll = [this] {
        for (const QString &name :
             {u"all/1.mp3"_s, u"all/2.mp3"_s, u"spread/3.mp3"_s, u"spread/4.mp3"_s, u"part/5.mp3"_s,
              u"part/deep/left.mp3"_s, u"bare/6.mp3"_s})
            makeSong(name, {{u"artist"_s, name.section(u'/', 0, 0)}});
        for (const QString &name :
             {u"all/cover.jpg"_s, u"all/scans/page.jpg"_s, u"spread/cover.jpg"_s,
              u"part/cover.jpg"_s, u"all/.lirra-a1b2c3/item"_s})
            makeFile(name);
        makeFile(u"to/all/cover.jpg"_s);
        import();
        std::vector<HRFMetaFile *> chosen = list.arrangedFiles();
        std::erase_if(chosen, [](const HRFMetaFile *file) {
            return file->fileInfo().fileName() == u"left.mp3"_s;
        });
        list.setSelectedFiles(chosen);
    };
    makeAll();
    context.moveNonAudioFiles = true;
    context.removeEmptyDirectories = true;
    context.revealOnSuccess = true;
    // The titles of the spread songs differ, and so do their folders.
    for (HRFMetaFile *file : list.selectedFiles())
        if (file->fileInfo().fileName() == u"4.mp3"_s)
            file->tags().setValueForKey(u"elsewhere"_s, u"artist"_s);
    waitUntil([&] { return ended.size() == 1; });
    user.answers = {{u"Keep"_s, true}};
    EXPECT_TRUE(move(u"%artist%"_s, music(u"to"_s)));
    waitUntil([&] { return !user.presentedErrors.empty(); });
    EXPECT_EQ(files(),
              (QStringList{u"all/.lirra-a1b2c3/item"_s, u"all/cover.jpg"_s, u"part/cover.jpg"_s,
                           u"part/deep/left.mp3"_s, u"spread/cover.jpg"_s, u"to/all/1.mp3"_s,
                           u"to/all/2.mp3"_s, u"to/all/cover.jpg"_s, u"to/all/scans/page.jpg"_s,
                           u"to/bare/6.mp3"_s, u"to/elsewhere/4.mp3"_s, u"to/part/5.mp3"_s,
                           u"to/spread/3.mp3"_s}));
    EXPECT_EQ(user.presentedErrors.front().code, HRFFileErrorCode::writeFileExists);
    EXPECT_EQ(user.alerts.back().informativeText, u"bare"_s);
    EXPECT_TRUE(QFileInfo::exists(music(u"bare"_s)));
    EXPECT_EQ(progress->localizedAdditionalDescription(), u"Done"_s);
    std::vector<HRFFileReference> revealed;
    for (const QString &name :
         {u"to/all"_s, u"to/bare"_s, u"to/part"_s, u"to/spread"_s, u"to/elsewhere"_s})
        revealed.push_back(HRFFileReference::fromPath(music(name)));
    EXPECT_THAT(user.revealedFiles, testing::UnorderedElementsAreArray(revealed));

    // Whoever does not want to be asked again has empty folders removed, whatever was said then.
    EXPECT_TRUE(move(u"."_s, music(u"back"_s)));
    EXPECT_FALSE(QFileInfo::exists(music(u"to/bare"_s)));
    EXPECT_THAT(QDir(path(u"trash/Trash/files"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
                ElementsAre(u"all"_s, u"bare"_s, u"elsewhere"_s, u"part"_s, u"spread"_s));
    EXPECT_THAT(user.alerts, SizeIs(1));
}

TEST_F(HRFFileOperationCCTest, CopiesLeaveTheSourcesAlone)
{
    makeSong(u"in/song.mp3"_s);
    makeFile(u"in/cover.jpg"_s);
    import();
    context.fileOperationCopy = true;
    context.moveNonAudioFiles = true;
    context.removeEmptyDirectories = true;
    EXPECT_TRUE(move(u"x"_s, music(u"base"_s)));
    EXPECT_EQ(files(), (QStringList{u"base/x/song.mp3"_s, u"in/cover.jpg"_s, u"in/song.mp3"_s}));
    EXPECT_EQ(list.arrangedFiles().front()->fileInfo().filePath(), music(u"in"_s));
    list.setSelectedFiles(list.arrangedFiles());
    EXPECT_TRUE(list.validateUserInterfaceItem(u"move:"_s));
    list.moveSelectedFilesToFolder(HRFFileReference::fromPath(music(u"in"_s)));
    waitUntil([&] { return ended.size() == 2; });
    EXPECT_TRUE(ended.back().front()->succeeded()); // it is there already
    EXPECT_EQ(user.visibleProgressCount, 0);
    EXPECT_THAT(documents.recentMoveDestinationURLs(), ElementsAre(music(u"in"_s)));
}

/// On the way to another file system a file becomes another one; what waits for it finds it there.
TEST_F(HRFFileOperationCCTest, EditsFollowAFileToAnotherFileSystem)
{
    const QTemporaryDir there(u"/dev/shm/lirra-test-XXXXXX"_s);
    makeSong(u"in/song.mp3"_s);
    import();
    const HRFMetaFile &file = *list.arrangedFiles().front();
    std::size_t batches = 0;
    for (const QString &base : {there.path(), music(u"back"_s), there.path()}) {
        list.fileOperationCC().moveFilesToSubPathDefinedByPattern(pattern(u"."_s, context),
                                                                  HRFFileReference::fromPath(base));
        file.tags().setValueForKey(base, u"title"_s);
        list.managedObjectContext().processPendingChanges();
        waitUntil([&] { return ended.size() == batches + 2; });
        batches = ended.size();
        const auto engine =
            HRFTagEngine::initWithURL(HRFFileReference::fromPath(base + u"/song.mp3"_s));
        ASSERT_TRUE(engine) << base.toStdString();
        EXPECT_EQ((*engine)->valueForKey(HRFTagKey::title), base);
        EXPECT_EQ(file.fileInfo().filePath(), base);
    }
}

/// Whatever the tags are, a plan says what happens, and nothing is lost or made up.
TEST_F(HRFFileOperationCCTest, PlansComeTrueAndFilesStayWhole)
{
    std::mt19937 random(20);
    const auto pick = [&](const QStringList &from) {
        return from[qsizetype(random() % std::size_t(from.size()))];
    };
    const QStringList values{u"A"_s,   u"B/C"_s,  u"."_s,     u".."_s,  u" "_s, u"a\tb"_s,
                             u"Ä é"_s, u"same"_s, u"3.mp3"_s, u"x 2"_s, u".x"_s};
    for (int i = 0; i < 40; ++i) {
        makeSong(u"%1/%2.mp3"_s.arg(i % 4).arg(i),
                 {{u"artist"_s, pick(values)}, {u"title"_s, pick(values)}});
        QFile::setPermissions(music(u"%1/%2.mp3"_s.arg(i % 4).arg(i)),
                              i % 2 ? QFile::ReadOwner : QFile::ReadOwner | QFile::WriteOwner);
    }
    import();
    const auto factsOnly = [this] {
        std::vector<FileFacts> all;
        for (const auto &[name, fact] : facts())
            all.push_back(fact);
        std::ranges::sort(all);
        return all;
    };
    const auto before = factsOnly();
    const HRFPlanAnswers answers{.dotNames = HRFDotPrefixCheck::proceed,
                                 .existingItem = [](const HRFFileReference &, bool) {
                                     return HRFFileExistsRecovery::KeepBoth;
                                 }};
    const auto expectPlanned = [&](const HRFFilePlan &plan) {
        for (const HRFPlannedFile &planned : plan.files)
            EXPECT_EQ(list.fileWithID(planned.objectID)->url(),
                      planned.refusal ? planned.source : planned.destination);
        EXPECT_EQ(factsOnly(), before);
    };
    const auto manager = std::make_shared<HRFFileManager>();
    manager->setCreateMissingDirectories(true);
    manager->setAppliedToAllRecovery(HRFFileExistsRecovery::KeepBoth);
    for (const QString &text :
         {u"%title%"_s, u"%artist%/%title%"_s, u"x/../%title%"_s, u"."_s, u"%title%%artist%"_s}) {
        const HRFPattern renaming = pattern(text, context);
        HRFFilePlan plan = HRFPlanRenames(list.arrangedFiles(), renaming, answers);
        list.fileOperationCC().renamePlannedFiles(plan.files, *progress);
        list.managedObjectContext().processPendingChanges();
        expectPlanned(plan);
        plan = HRFPlanMoves(list.arrangedFiles(), renaming,
                            HRFFileReference::fromPath(music(u"to"_s)), answers);
        HRFFilePlan openPlan =
            HRFPlanMoves(list.arrangedFiles(), renaming, HRFFileReference::fromPath(music(u"to"_s)),
                         {.dotNames = HRFDotPrefixCheck::proceed});
        std::erase_if(openPlan.files, [](const auto &planned) { return bool(planned.refusal); });
        const std::size_t batches = ended.size();
        list.fileOperationCC().movePlannedFiles(openPlan.files, context, manager, progress, {});
        waitUntil([&] { return ended.size() > batches; });
        expectPlanned(plan);
    }
}

} // namespace
