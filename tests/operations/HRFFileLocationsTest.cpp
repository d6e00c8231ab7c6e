#include "HRFTestTrees.h"
#include "operations/HRFFileReference+Access.h"
#include "operations/HRFFileReference+Locations.h"

#include <filesystem>
#include <sys/stat.h>

namespace {

HRFFileReference at(const QByteArray &path)
{
    return HRFFileReference::fromNativePath(path);
}

class HRFFileLocationsTest : public testing::Test
{
protected:
    void SetUp() override { qputenv("HOME", folder.path("home")); }
    void TearDown() override { qputenv("HOME", m_home); }

    HRFTestFolder folder;

private:
    const QByteArray m_home = qgetenv("HOME");
};

TEST_F(HRFFileLocationsTest, SafeFoldersAreDeepInTheHomeOrInAVolume)
{
    folder.make("home/Music/Album/song.mp3");
    ASSERT_EQ(::symlink("Music", folder.path("home/link").constData()), 0);
    const std::pair<QByteArray, bool> cases[] = {
        {folder.path("home"), false},
        {folder.path("home/Music"), false},
        {folder.path("home/Music/"), false},
        {folder.path("home/Music/Album/.."), false},
        {folder.path("home/link"), false},
        {folder.path("home/Music/Album"), true},
        {folder.path("home/Music/Album/"), true},
        {folder.path("home/link/not/there"), true},
        {folder.path("home/Music/dropBOX"), false},
        {folder.path("home/Music/Dropbox/Album"), true},
        {folder.path("home2/Music/Album"), false},
        {folder.path(), false},
        {"/", false},
        {"/usr/share/sounds", false},
        {"/media/someone", false},
        {"/media/someone/STICK", false},
        {"/media/someone/STICK/Music", true},
        {"/run/media/someone/STICK", false},
        {"/run/media/someone/STICK/Music", true},
        {"/mnt/disk", false},
        {"/mnt/disk/Music", true},
        {"/Volumes/Disk", false},
        {"/Volumes/Disk/Music", true},
    };
    for (const auto &[path, isSafe] : cases)
        EXPECT_EQ(isSafeURL(at(path)), isSafe) << path.constData();
    qputenv("HOME", "/mnt/homes/someone");
    EXPECT_FALSE(isSafeURL(at("/mnt/homes/someone/Music")));
    EXPECT_FALSE(isSafeURL(at("/mnt/homes/someone")));
    EXPECT_TRUE(isSafeURL(at("/mnt/homes/other")));
}

TEST_F(HRFFileLocationsTest, TheNearestFolderThatExists)
{
    folder.make("a\xff/song.mp3");
    const std::pair<QByteArray, QByteArray> cases[] = {
        {folder.path("a\xff"), folder.path("a\xff")},
        {folder.path("a\xff/song.mp3"), folder.path("a\xff")},
        {folder.path("a\xff/song.mp3/b"), folder.path("a\xff")},
        {folder.path("none/b/c"), folder.path()},
        {"/no such/folder", "/"},
        {"/", "/"},
        {"no such name", "."},
    };
    for (const auto &[path, ancestor] : cases)
        EXPECT_EQ(firstExistingAncestorURL(at(path)).nativePath(), ancestor) << path.constData();
}

TEST_F(HRFFileLocationsTest, ALockedFileIsUnlockedAgain)
{
    const HRFFileReference file = folder.make("song.mp3");
    EXPECT_FALSE(isLocked(file));
    EXPECT_FALSE(isLocked(folder.file("none")));
    EXPECT_FALSE(setLocked(folder.file("none"), true));
    if (!setLocked(file, true))
        GTEST_SKIP() << "Files cannot be locked here";
    EXPECT_TRUE(isLocked(file));
    EXPECT_NE(::unlink(file.nativePath().constData()), 0);
    EXPECT_TRUE(setLocked(file, false));
    EXPECT_FALSE(isLocked(file));
}

} // namespace
