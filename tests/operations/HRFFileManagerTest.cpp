#include "operations/HRFFileManager.h"

#include "HRFTestTrees.h"
#include "kit/HRFFileReferenceTable.h"
#include "operations/HRFExclusiveRename.h"
#include "operations/HRFFileReference+Access.h"
#include "support/HRFTestFile.h"

#include <QDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Recovery = HRFFileExistsRecovery;

namespace {

class HRFFileManagerTest : public HRFTwoFoldersTest
{
protected:
    HRFFileReference file(const QByteArray &name) const { return here.file(name); }
    HRFFileReference make(const QByteArray &name) const { return here.make(name); }
    QByteArray contents(const QByteArray &name) const { return here.contents(name); }
    HRFResult<HRFFileReference> move(const HRFFileReference &from, const QByteArray &to,
                                     Recovery recovery = Recovery::Stop) const
    {
        HRFFileManager manager;
        manager.setFileExistsRecovery(recovery);
        return manager.moveItemAtURL(from, file(to));
    }
};

TEST_F(HRFFileManagerTest, WhatIsInTheWayIsTreatedAsTold)
{
    struct Case
    {
        Recovery recovery;
        QByteArray destination;
        QByteArray result; ///< empty for a failure
    };
    const Case cases[] = {
        {Recovery::Stop, "free.mp3", "free.mp3"},
        {Recovery::Stop, "a.mp3", ""},
        {Recovery::Skip, "a.mp3", ""},
        {Recovery::KeepBoth, "a.mp3", "a 3.mp3"},
        {Recovery::KeepBoth, "song", "song 2."},
        {Recovery::KeepBoth, ".hidden", ".hidden 2."},
        {Recovery::KeepBoth, "b\xff.x.mp3", "b\xff.x 2.mp3"},
        {Recovery::Replace, "a 2.mp3", "a 2.mp3"},
    };
    for (const QByteArray name : {"a.mp3", "a 2.mp3", "song", ".hidden", "b\xff.x.mp3"})
        make(name);
    for (const Case &test : cases) {
        const HRFFileReference source = make("source.flac");
        const QString reference = *HRFFileReferenceTable::referenceURLForFile(source);
        const auto result = move(source, test.destination, test.recovery);
        if (test.result.isEmpty()) {
            ASSERT_FALSE(result) << test.destination.constData();
            EXPECT_EQ(result.error().code, HRFFileErrorCode::writeFileExists);
            EXPECT_TRUE(result.error().fullText().contains(u"“a.mp3” already exists"_s));
            EXPECT_EQ(contents(test.destination), test.destination);
            continue;
        }
        ASSERT_TRUE(result) << test.destination.constData();
        EXPECT_EQ(*result, file(test.result)) << test.result.constData();
        EXPECT_EQ(contents(test.result), "source.flac");
        EXPECT_EQ(contents("source.flac"), "");
        EXPECT_EQ(HRFFileReferenceTable::fileForURL(reference), *result);
    }
}

TEST_F(HRFFileManagerTest, FailuresNameTheFileAndLeaveIt)
{
    struct Case
    {
        QByteArray destination;
        const char *domain;
        int code;
        const char *reason;
    };
    const Case cases[] = {
        {"missing/a.mp3", HRFFileErrorDomain, HRFFileErrorCode::noSuchFile, "No such file"},
        {QByteArray(256, 'n'), HRFPOSIXErrorDomain, ENAMETOOLONG, "too long"},
        {"source.mp3/a.mp3", HRFPOSIXErrorDomain, ENOTDIR, "Not a directory"},
    };
    const HRFFileReference source = make("source.mp3");
    for (const Case &test : cases) {
        const auto result = move(source, test.destination, Recovery::KeepBoth);
        ASSERT_FALSE(result) << test.reason;
        EXPECT_EQ(result.error().domain, QString::fromLatin1(test.domain)) << test.reason;
        EXPECT_EQ(result.error().code, test.code) << test.reason;
        const QString text = result.error().fullText();
        EXPECT_TRUE(text.contains(u"“source.mp3”"_s)) << test.reason;
        EXPECT_TRUE(text.contains(QString::fromLatin1(test.reason))) << text.toStdString();
        EXPECT_EQ(contents("source.mp3"), "source.mp3");
    }
}

/// As on a file system that does not tell case apart: both names lead to the file.
TEST_F(HRFFileManagerTest, AFileIsNotInTheWayOfItself)
{
    const HRFFileReference source = make("song.mp3");
    ASSERT_EQ(::link(source.nativePath().constData(), file("Song.mp3").nativePath().constData()),
              0);
    EXPECT_EQ(move(source, "Song.mp3", Recovery::KeepBoth), file("Song.mp3"));
    EXPECT_EQ(contents("Song 2.mp3"), "");
}

TEST_F(HRFFileManagerTest, RenamingInStepsOverwritesNothingEither)
{
    for (const auto rename : {HRFExclusiveRename, HRFExclusiveRenameInSteps}) {
        const QByteArray one = make("one").nativePath();
        const QByteArray two = make("two").nativePath();
        EXPECT_EQ(rename(one, two), EEXIST);
        EXPECT_EQ(contents("two"), "two");
        EXPECT_EQ(rename(file("none").nativePath(), file("new").nativePath()), ENOENT);
        EXPECT_EQ(rename(one, file("three").nativePath()), 0);
        EXPECT_EQ(contents("three"), "one");
        EXPECT_EQ(contents("one"), "");
        ASSERT_TRUE(
            QDir(QString::fromUtf8(here.path())).mkdir(u"folder"_s)); // which cannot be linked
        EXPECT_EQ(rename(file("folder").nativePath(), two), EEXIST);
        EXPECT_EQ(rename(file("folder").nativePath(), file("moved").nativePath()), 0);
        ASSERT_TRUE(QDir(QString::fromUtf8(here.path())).rmdir(u"moved"_s));
        ASSERT_EQ(::unlink(file("three").nativePath().constData()), 0);
    }
}

TEST_F(HRFFileManagerTest, WhatCannotSucceedTouchesNothing)
{
    const QByteArray longName(256, 'n');
    const std::tuple<QByteArray, QByteArray, int> cases[] = {
        {"song.mp3", "new/" + longName, ENAMETOOLONG},
        {"song.mp3", longName + "/song.mp3", ENAMETOOLONG},
        {"none.mp3", "new/none.mp3", HRFFileErrorCode::noSuchFile},
        {"song.mp3", "dangling/song.mp3", ENOTDIR},
        {"song.mp3", "song.mp3/new/song.mp3", ENOTDIR},
        {"song.mp3", "folder", EISDIR},
    };
    make("song.mp3");
    make("folder/inside.mp3");
    ASSERT_EQ(::symlink("nowhere", here.path("dangling").constData()), 0);
    const HRFTree before = HRFTreeAt(here.path());
    HRFFileManager manager;
    manager.setCreateMissingDirectories(true);
    manager.setFileExistsRecovery(Recovery::Replace);
    for (const auto &[from, to, code] : cases) {
        for (const bool isCopy : {false, true}) {
            const auto result = isCopy ? manager.copyItemAtURL(file(from), file(to))
                                       : manager.moveItemAtURL(file(from), file(to));
            ASSERT_FALSE(result) << to.constData();
            EXPECT_EQ(result.error().code, code) << result.error().fullText().toStdString();
            EXPECT_EQ(HRFTreeAt(here.path()), before) << to.constData();
        }
    }
}

TEST_F(HRFFileManagerTest, AtomicCopiesTakeThePlaceOfWhatIsThere)
{
    for (const QByteArray to : {"new", "old", "new"}) {
        here.make("old", "old contents");
        EXPECT_EQ(HRFFileManager::atomicCopyItemAtURL(make("source"), file(to)), file(to));
        EXPECT_EQ(contents(to), "source");
    }
    EXPECT_THAT(HRFNamesIn(here.path()), testing::ElementsAre("new", "old", "source"));
    EXPECT_FALSE(HRFFileManager::atomicCopyItemAtURL(file("none"), file("old")));
    EXPECT_EQ(contents("old"), "old contents");
}

TEST_F(HRFFileManagerTest, AcrossFileSystemsAnItemInTheWayIsReplacedOrKept)
{
    for (const Recovery recovery : {Recovery::Stop, Recovery::KeepBoth, Recovery::Replace}) {
        HRFFileManager manager;
        manager.setFileExistsRecovery(recovery);
        there.make("a.mp3", "old");
        const auto result = manager.moveItemAtURL(here.make("a.mp3", "new"), there.file("a.mp3"));
        EXPECT_EQ(result.has_value(), recovery != Recovery::Stop);
        EXPECT_EQ(contents("a.mp3"), result ? "" : "new");
        EXPECT_EQ(there.contents("a.mp3"), recovery == Recovery::Replace ? "new" : "old");
    }
    EXPECT_THAT(HRFNamesIn(there.path()), testing::ElementsAre("a 2.mp3", "a.mp3"));
}

TEST_F(HRFFileManagerTest, LockedFilesMoveWhenTheyMayBeUnlocked)
{
    for (const HRFTestFolder *folder : {&here, &there}) {
        for (const bool unlocks : {false, true}) {
            const HRFFileReference source = make("locked.mp3");
            if (!setLocked(source, true))
                GTEST_SKIP() << "Files cannot be locked here";
            HRFFileManager manager;
            manager.setUnlockFiles(unlocks);
            const auto result = manager.moveItemAtURL(source, folder->file("moved.mp3"));
            EXPECT_EQ(result.has_value(), unlocks);
            EXPECT_EQ(isLocked(source), !unlocks);
            EXPECT_TRUE(setLocked(unlocks ? *result : source, false));
            EXPECT_EQ(folder->contents("moved.mp3"), unlocks ? "locked.mp3" : "");
            EXPECT_EQ(contents("locked.mp3"), unlocks ? "" : "locked.mp3");
            std::filesystem::remove(folder->path("moved.mp3").toStdString());
        }
    }
}

TEST_F(HRFFileManagerTest, FoldersThatCannotBeWrittenGetOtherPermissions)
{
    struct Case
    {
        QByteArray destination;
        QByteArray barred; ///< the folder that cannot be written
        bool isCopy;
    };
    const Case cases[] = {{"to/a.mp3", "from", false},  {"to/a.mp3", "to", false},
                          {"to/a.mp3", "to", true},     {"to/b/c/a.mp3", "to", false},
                          {"to/b/c/a.mp3", "to", true}, {"to/b/c/a.mp3", "from", false}};
    const HRFUserRights rights;
    for (const Case &test : cases) {
        for (const bool fixes : {false, true}) {
            const HRFTestFolder folder;
            folder.make("to/other.mp3");
            const HRFFileReference source = folder.make("from/a.mp3");
            ASSERT_EQ(::chmod(folder.path(test.barred).constData(), 0555), 0);
            HRFFileManager manager;
            manager.setFixPermissions(fixes);
            manager.setCreateMissingDirectories(true);
            const auto destination = folder.file(test.destination);
            const auto result = test.isCopy ? manager.copyItemAtURL(source, destination)
                                            : manager.moveItemAtURL(source, destination);
            EXPECT_EQ(HRFFailure(result).isEmpty(), fixes) << HRFFailure(result).toStdString();
            EXPECT_EQ(folder.contents(test.destination), fixes ? "from/a.mp3" : "");
            EXPECT_EQ(folder.contents("from/a.mp3").isEmpty(), fixes && !test.isCopy);
            EXPECT_EQ(result ? 0 : result.error().code,
                      fixes ? 0 : HRFFileErrorCode::writeNoPermission);
            struct stat status{};
            ASSERT_EQ(::stat(folder.path(test.barred).constData(), &status), 0);
            EXPECT_EQ(status.st_mode & 07777, fixes ? 0755U : 0555U);
            ::chmod(folder.path(test.barred).constData(), 0755);
        }
    }
}

TEST_F(HRFFileManagerTest, WhatBelongsToOthersStays)
{
    if (::getuid() != 0)
        GTEST_SKIP() << "Files cannot be given away";
    const HRFFileReference source = make("common/song.mp3");
    ASSERT_EQ(::chmod(here.path("common").constData(), 01777), 0);
    ASSERT_EQ(::chmod(here.path().constData(), 0755), 0);
    for (const HRFTestFolder *folder : {&here, &there}) {
        ASSERT_EQ(::chmod(folder->path().constData(), 0777), 0);
        const HRFUserRights rights;
        const auto result = HRFFileManager().moveItemAtURL(source, folder->file("moved.mp3"));
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().code, HRFFileErrorCode::writeNoPermission);
        EXPECT_EQ(contents("common/song.mp3"), "common/song.mp3");
        EXPECT_EQ(folder->contents("moved.mp3"), "");
    }
}

} // namespace
