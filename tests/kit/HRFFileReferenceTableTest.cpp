#include "kit/HRFFileReferenceTable.h"

#include "kit/HRFDescriptor.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <thread>
#include <vector>

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

namespace {

class HRFFileReferenceTableTest : public testing::Test
{
protected:
    /// Names that are not UTF-8 are beyond QTemporaryDir.
    ~HRFFileReferenceTableTest() override { fs::remove_all(m_folder.path().toStdString()); }

    std::string at(const std::string &name) { return m_folder.path().toStdString() + '/' + name; }
    std::string made(const std::string &name)
    {
        fs::create_directories(fs::path(at(name)).parent_path());
        std::ofstream(at(name)) << name;
        return at(name);
    }
    static HRFFileReference file(const std::string &path)
    {
        return HRFFileReference::fromNativePath(QByteArray::fromStdString(path));
    }
    static QString reference(const std::string &path)
    {
        return HRFFileReferenceTable::referenceURLForFile(file(path)).value_or(u"none"_s);
    }
    static std::string resolved(const QString &url)
    {
        const auto found = HRFFileReferenceTable::fileForURL(url);
        return found ? found->nativePath().toStdString() : "none";
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(HRFFileReferenceTableTest, FollowsRenamesInTheFolder)
{
    for (const char *name : {"a.mp3", "\xFF \xE4.mp3", "Ä%.mp3"}) {
        const QString url = reference(made(name));
        EXPECT_TRUE(url.startsWith(u"file:///.file/id="_s));
        EXPECT_EQ(resolved(url), at(name));
        fs::rename(at(name), at("new \xFE.mp3"));
        EXPECT_EQ(resolved(url), at("new \xFE.mp3"));
        made(name); // another file under the old name
        EXPECT_EQ(resolved(url), at("new \xFE.mp3"));
        EXPECT_NE(reference(at(name)), url);
    }
}

/// Some file systems give the inode of the file that was replaced to the next new file.
TEST_F(HRFFileReferenceTableTest, KnowsReplacedFilesFromTheirNeighbours)
{
    const std::vector<std::string> names = {"1.mp3", "2.mp3", "3.mp3", "4.mp3"};
    std::vector<QString> urls;
    for (const std::string &name : names)
        urls.push_back(reference(made(name)));
    for (const std::string &name : names)
        fs::rename(made("new"), at(name));
    for (const QString &url : urls)
        EXPECT_EQ(resolved(url), "none");
    for (const std::string &name : names) {
        const QString url = reference(at(name));
        EXPECT_EQ(std::ranges::count(urls, url), 0) << url.toStdString();
        EXPECT_EQ(resolved(url), at(name));
    }
}

/// The inode of every file that goes is free for the one that replaces the next.
TEST_F(HRFFileReferenceTableTest, GivesReplacingFilesTheReferencesOfTheReplaced)
{
    const std::vector<std::string> names = {"1.mp3", "2.mp3", "3.mp3"};
    std::vector<QString> urls;
    for (const std::string &name : names)
        urls.push_back(reference(made(name)));
    for (int round = 0; round < 4; ++round)
        for (std::size_t i = 0; i < names.size(); ++i) {
            const HRFDescriptor original(::open(at(names[i]).c_str(), O_RDONLY));
            const HRFDescriptor successor(::open(made("new").c_str(), O_RDONLY));
            const bool isReplaced = round != 1;
            HRFFileReferenceTable::fileWillReplace(successor.get(), original.get());
            if (isReplaced)
                fs::rename(at("new"), at(names[i]));
            EXPECT_EQ(resolved(urls[i]), at(names[i]));
            EXPECT_EQ(reference(at(names[i])), urls[i]);
            HRFFileReferenceTable::fileDidReplace(successor.get(), original.get(), isReplaced);
            EXPECT_EQ(resolved(urls[i]), at(names[i]));
        }
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(reference(at(names[i])), urls[i]);
        fs::rename(at(names[i]), at(names[i] + " by another program"));
        EXPECT_EQ(resolved(urls[i]), at(names[i] + " by another program"));
    }
    const QString other = reference(made("other.mp3"));
    EXPECT_EQ(std::ranges::count(urls, other), 0);
}

TEST_F(HRFFileReferenceTableTest, FollowsMovesThatItIsToldOf)
{
    const QString url = reference(made("a.mp3"));
    fs::create_directory(at("b"));
    fs::rename(at("a.mp3"), at("b/c.mp3"));
    EXPECT_EQ(resolved(url), "none");
    HRFFileReferenceTable::fileDidMove(file(at("a.mp3")), file(at("b/c.mp3")));
    EXPECT_EQ(resolved(url), at("b/c.mp3"));
    fs::remove(at("b/c.mp3"));
    EXPECT_EQ(resolved(url), "none");
}

TEST_F(HRFFileReferenceTableTest, HardLinksAreOneFile)
{
    const std::string path = made("a.mp3");
    fs::create_directory(at("b"));
    fs::create_hard_link(path, at("b/link.mp3"));
    const QString url = reference(at("b/link.mp3"));
    EXPECT_EQ(reference(path), url);
    EXPECT_EQ(resolved(url), at("b/link.mp3"));
    fs::remove(at("b/link.mp3"));
    EXPECT_EQ(reference(path), url);
    EXPECT_EQ(resolved(url), path);
    fs::create_hard_link(path, at("b/link.mp3"));
    fs::rename(at("b/link.mp3"), at("b/other.mp3"));
    HRFFileReferenceTable::fileDidMove(file(at("b/link.mp3")), file(at("b/other.mp3")));
    EXPECT_EQ(resolved(url), path);
    fs::remove(path);
    HRFFileReferenceTable::fileDidMove(file(path), file(at("b/other.mp3")));
    EXPECT_EQ(resolved(url), at("b/other.mp3"));
}

TEST_F(HRFFileReferenceTableTest, FollowsRenamesOfLinksToFiles)
{
    made("b/a.mp3");
    fs::create_symlink(at("b/a.mp3"), at("link.mp3"));
    const QString url = reference(at("link.mp3"));
    EXPECT_EQ(resolved(url), at("link.mp3"));
    fs::rename(at("link.mp3"), at("other.mp3"));
    EXPECT_EQ(resolved(url), at("other.mp3"));
}

TEST_F(HRFFileReferenceTableTest, ServesManyThreads)
{
    constexpr int threadCount = 4;
    constexpr int renameCount = 100;
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < threadCount; ++thread)
        threads.emplace_back([this, path = made(std::to_string(thread) + ".mp3")] {
            const QString url = reference(path);
            for (int i = 0; i < renameCount; ++i) {
                const std::string newPath = path + (i % 2 ? "x" : "y");
                fs::rename(path, newPath);
                EXPECT_EQ(resolved(url), newPath);
                fs::rename(newPath, path);
                HRFFileReferenceTable::fileDidMove(file(newPath), file(path));
                EXPECT_EQ(resolved(url), path);
            }
        });
}

TEST_F(HRFFileReferenceTableTest, KeepsPathsWhenTheWorkingFolderChanges)
{
    const fs::path before = fs::current_path();
    fs::current_path(fs::path(made("a.mp3")).parent_path());
    const QString url = reference("a.mp3");
    fs::current_path(before);
    EXPECT_EQ(fs::path(resolved(url)), fs::canonical(at("a.mp3")));
}

TEST_F(HRFFileReferenceTableTest, RemembersTheFolderOfVanishedFiles)
{
    const QString url = reference(made("a.mp3"));
    fs::remove(at("a.mp3"));
    const std::pair<QString, std::optional<QString>> cases[] = {
        {url, m_folder.path()},
        {u"file:///a/b%20c/d.mp3"_s, u"/a/b c"_s},
        {u"file:///d.mp3"_s, u"/"_s},
        {u"file:d.mp3"_s, u""_s},
        {u"file:///.file/id=1.18446744073709551615"_s, std::nullopt},
        {u"a.mp3"_s, std::nullopt}};
    for (const auto &[asked, folder] : cases)
        EXPECT_EQ(HRFFileReferenceTable::lastKnownFolderForURL(asked), folder)
            << asked.toStdString();
}

TEST_F(HRFFileReferenceTableTest, ReadsOtherURLs)
{
    const std::pair<QString, const char *> cases[] = {
        {u"file:///a/b%20c.mp3"_s, "/a/b c.mp3"},
        {u"file:///a/%E4%23.mp3"_s, "/a/\xE4#.mp3"},
        {u"file:///.file/id=1.18446744073709551615"_s, "none"},
        {u"file:///.file/id=1"_s, "none"},
        {u"file:///.file/id=.1"_s, "none"},
        {u"file:///.file/id="_s, "none"},
        {u"http://a/b.mp3"_s, "none"},
        {u"/a/b.mp3"_s, "none"},
        {QString(), "none"}};
    for (const auto &[url, path] : cases)
        EXPECT_EQ(resolved(url), path) << url.toStdString();
    EXPECT_EQ(reference(at("nothing.mp3")), u"none"_s);
}
