#include "operations/HRFItemMove.h"

#include "HRFTestTrees.h"

#include <gmock/gmock.h>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct HRFItemMoveTest : HRFTwoFoldersTest
{
    /// Whatever a file can have that a copy may lose.
    void decorate(const QByteArray &path, std::mt19937 &random) const
    {
        const mode_t mode = 0600 | (random() & 07077);
        const std::array times{timespec{1000, 1}, timespec{long(random()), 123456789}};
        const std::string value = std::to_string(random());
        // Who may not give files away keeps them.
        EXPECT_TRUE(::chown(path.constData(), uid_t(random() % 9), 7) == 0 || ::getuid() != 0);
        ::setxattr(path.constData(), HRFTestAttribute, value.data(), value.size(), 0);
        EXPECT_EQ(::chmod(path.constData(), mode), 0);
        EXPECT_EQ(::utimensat(AT_FDCWD, path.constData(), times.data(), 0), 0);
    }
    /// A file, a folder with all kinds of items, and links that lead somewhere and nowhere.
    std::vector<QByteArray> makeItems(std::mt19937 &random) const
    {
        constexpr std::array sizes{0, 1, 4097, (1 << 20) + 1};
        const std::vector<QByteArray> files{"a\xff.mp3", "album/b.mp3", "album/scans/c.png",
                                            QByteArray(255, 'n')};
        for (const QByteArray &name : files) {
            here.make(name, QByteArray(sizes[random() % sizes.size()], char(random())));
            decorate(here.path(name), random);
        }
        EXPECT_EQ(::symlink("b.mp3", here.path("album/link").constData()), 0);
        EXPECT_EQ(::symlink("/nowhere", here.path("dangling").constData()), 0);
        for (const QByteArray name : {"album/scans", "album"})
            decorate(here.path(name), random);
        return {files[0], files[3], "album", "dangling"};
    }
};

TEST_F(HRFItemMoveTest, WhatIsMovedThereAndBackIsAsBefore)
{
    if (!hasTwoFileSystems())
        GTEST_SKIP() << "There is no second file system";
    for (unsigned seed = 0; seed < 20; ++seed) {
        std::mt19937 random(seed);
        const HRFTestFolder other;
        const HRFTestFolder &destination = seed % 4 == 0 ? other : there;
        const std::vector<QByteArray> names = makeItems(random);
        const HRFTree before = HRFTreeAt(here.path());
        for (const QByteArray &name : names)
            ASSERT_EQ(HRFMoveItem(here.path(name), destination.path(name), false), 0)
                << name.constData();
        EXPECT_EQ(HRFTreeAt(destination.path()), before) << seed;
        EXPECT_THAT(HRFNamesIn(here.path()), IsEmpty());
        for (const QByteArray &name : names)
            ASSERT_EQ(HRFMoveItem(destination.path(name), here.path(name), false), 0)
                << name.constData();
        EXPECT_EQ(HRFTreeAt(here.path()), before) << seed;
        EXPECT_THAT(HRFNamesIn(destination.path()), IsEmpty());
        for (const QByteArray &name : names)
            fs::remove_all(here.path(name).toStdString());
    }
}

TEST_F(HRFItemMoveTest, WhatIsInTheWayStaysUnlessReplaced)
{
    struct Case
    {
        const char *source;
        const char *destination;
        bool replaces;
        int failure;
    };
    constexpr Case cases[] = {
        {"file", "old", false, EEXIST},   {"file", "old", true, 0},
        {"file", "link", false, EEXIST},  {"file", "link", true, 0},
        {"file", "folder", true, EISDIR}, {"file", "none/x", true, ENOENT},
        {"none", "new", false, ENOENT},   {"folder", "old", true, ENOTDIR},
        {"pipe", "new", false, 0},
    };
    for (const bool isAcross : {false, true}) {
        for (const Case &test : cases) {
            const HRFTestFolder origin;
            const HRFTestFolder target{isAcross ? QStringLiteral("/dev/shm/lirra-test-XXXXXX")
                                                : QString()};
            origin.make("file");
            origin.make("folder/inside");
            ASSERT_EQ(::mkfifo(origin.path("pipe").constData(), 0600), 0);
            target.make("old");
            target.make("folder/inside");
            ASSERT_EQ(::symlink("nowhere", target.path("link").constData()), 0);
            const HRFTree before = HRFTreeAt(target.path());
            const HRFTree originBefore = HRFTreeAt(origin.path());
            const bool isPipeCopy =
                test.source == std::string("pipe") && !origin.isOnSameFileSystem(target);
            const int failure = isPipeCopy ? EOPNOTSUPP : test.failure;
            EXPECT_EQ(
                HRFMoveItem(origin.path(test.source), target.path(test.destination), test.replaces),
                failure)
                << test.source << " to " << test.destination;
            if (failure != 0) {
                EXPECT_EQ(HRFTreeAt(target.path()), before) << test.destination;
                EXPECT_EQ(HRFTreeAt(origin.path()), originBefore) << test.source;
            } else {
                EXPECT_EQ(HRFTreeAt(target.path())[test.destination], originBefore.at(test.source));
                EXPECT_FALSE(fs::exists(origin.path(test.source).toStdString()));
            }
        }
    }
}

TEST_F(HRFItemMoveTest, NothingIsCopiedIntoItself)
{
    here.make("album/song.mp3");
    const HRFTree before = HRFTreeAt(here.path());
    EXPECT_EQ(HRFCopyItemIntoPlace(here.path("album"), here.path("album/copy"), false), EINVAL);
    EXPECT_EQ(HRFTreeAt(here.path()), before);
}

/// One folder at two places, which looks like two file systems.
TEST_F(HRFItemMoveTest, AFileThatIsThereAlreadyByAnotherWayStays)
{
    const HRFFileReference song = here.make("song.mp3");
    there.make("mounted/under");
    if (::mount(here.path().constData(), there.path("mounted").constData(), nullptr, MS_BIND,
                nullptr)
        != 0)
        GTEST_SKIP() << "Nothing can be mounted here";
    for (const QByteArray name : {"song.mp3", "Song.mp3"}) {
        for (const bool replaces : {false, true}) {
            const int failure =
                HRFMoveItem(song.nativePath(), there.path("mounted/" + name), replaces);
            EXPECT_EQ(failure, 0);
            EXPECT_EQ(here.contents(name), "song.mp3") << replaces;
            here.make("song.mp3");
        }
    }
    EXPECT_EQ(::umount(there.path("mounted").constData()), 0);
}

TEST_F(HRFItemMoveTest, AFullDiskLeavesTheSourceAndNothingElse)
{
    here.make("album/song.mp3", QByteArray(100'000, 's'));
    there.make("old");
    const HRFTree before = HRFTreeAt(here.path());
    for (const bool replaces : {false, true}) {
        {
            const HRFFullDisk fullDisk;
            const QByteArray target = there.path(replaces ? "old" : "new");
            EXPECT_EQ(HRFCopyItemIntoPlace(here.path("album"), there.path("new"), false), EFBIG);
            EXPECT_EQ(HRFCopyItemIntoPlace(here.path("album/song.mp3"), target, replaces), EFBIG);
            if (hasTwoFileSystems()) {
                EXPECT_EQ(HRFMoveItem(here.path("album/song.mp3"), target, replaces), EFBIG);
            }
        }
        EXPECT_EQ(HRFTreeAt(here.path()), before);
        EXPECT_THAT(HRFNamesIn(there.path()), ElementsAre("old"));
        EXPECT_EQ(there.contents("old"), "old");
    }
}

QByteArray numberedName(int number)
{
    return QByteArray::number(number) + ".mp3";
}

constexpr int movedCount = 200;

/// Moves numbered files in a process of its own, which is killed some random while after it has
/// begun with the given one.
void moveAndDie(const HRFTestFolder &from, const HRFTestFolder &to, int fatal, std::mt19937 &random)
{
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        for (int i = 0; i < movedCount && ::write(pipe[1], "", 1) == 1; ++i)
            if (HRFMoveItem(from.path(numberedName(i)), to.path(numberedName(i)), false) != 0)
                ::_exit(1);
        ::_exit(0);
    }
    ::close(pipe[1]);
    char byte = 0;
    for (int begun = 0; begun <= fatal; ++begun)
        ASSERT_EQ(::read(pipe[0], &byte, 1), 1);
    for (auto spin = random() % 60'000; spin > 0; --spin)
        ::getppid();
    ::kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ::close(pipe[0]);
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
}

/// Whether a file is there; it must be whole then. The fatal one is so large that there is time to
/// die in the middle of it.
bool isThere(const HRFTestFolder &folder, int number, const QByteArray &contents)
{
    const bool exists = fs::exists(folder.path(numberedName(number)).toStdString());
    EXPECT_TRUE(!exists || folder.contents(numberedName(number)) == contents) << number;
    return exists;
}

TEST_F(HRFItemMoveTest, KilledInTheMiddleEveryFileIsWhole)
{
    if (!hasTwoFileSystems())
        GTEST_SKIP() << "There is no second file system";
    std::mt19937 random(1);
    for (int round = 0; round < 12; ++round) {
        const HRFTestFolder &from = round % 2 == 0 ? here : there;
        const HRFTestFolder &to = round % 2 == 0 ? there : here;
        const int fatal = int(random() % movedCount);
        const auto contents = [fatal](int number) {
            return numberedName(number).repeated(number == fatal ? 3'000'000 : 1'000);
        };
        for (int i = 0; i < movedCount; ++i)
            from.make(numberedName(i), contents(i));
        ASSERT_NO_FATAL_FAILURE(moveAndDie(from, to, fatal, random));
        int twiceCount = 0;
        for (int i = 0; i < movedCount; ++i) {
            const int count = isThere(from, i, contents(i)) + isThere(to, i, contents(i));
            EXPECT_GE(count, 1) << i;
            twiceCount += count - 1;
        }
        EXPECT_LE(twiceCount, 1);
        for (const HRFTestFolder *folder : {&from, &to}) {
            for (const std::string &name : HRFNamesIn(folder->path())) {
                EXPECT_TRUE(name.starts_with(".lirra-") || name.ends_with(".mp3")) << name;
                fs::remove_all((folder->path() + '/').toStdString() + name);
            }
        }
    }
}

} // namespace
