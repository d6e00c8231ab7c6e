#include "document/HRFFileWalker.h"

#include "kit/HRFFileReferenceTable.h"
#include "tags/HRFTagEngine.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

using Names = std::vector<std::string>;

class HRFFileWalkerTest : public testing::Test
{
protected:
    HRFFileWalkerTest() : m_root(m_folder.path().toStdString()) { }
    /// Names that are not UTF-8 are beyond QTemporaryDir.
    ~HRFFileWalkerTest() override { fs::remove_all(m_root); }

    void make(const Names &names)
    {
        for (const std::string &name : names) {
            fs::create_directories((m_root / name).parent_path());
            std::ofstream(m_root / name) << name;
        }
    }
    HRFFoundFiles
    find(const Names &names, const std::function<bool()> &isCancelled = [] { return false; })
    {
        std::vector<HRFFileReference> paths;
        for (const std::string &name : names)
            paths.push_back(HRFFileReference::fromNativePath(
                QByteArray::fromStdString((m_root / name).string())));
        return HRFFileWalker::find(paths, isCancelled);
    }
    std::string nameOf(const HRFFileReference &file)
    {
        return fs::path(file.nativePath().toStdString())
            .lexically_relative(m_root)
            .lexically_normal();
    }
    Names namesOf(const HRFFoundFiles &found)
    {
        Names names;
        for (const HRFFoundFile &file : found.files) {
            names.push_back(nameOf(file.file));
            EXPECT_EQ(HRFFileReferenceTable::referenceURLForFile(file.file), file.fileURL);
        }
        return names;
    }
    /// "name domain code"
    Names problemsOf(const HRFFoundFiles &found)
    {
        Names problems;
        for (const auto &[file, error] : found.problems)
            problems.push_back(nameOf(file) + ' ' + error.domain.toStdString() + ' '
                               + std::to_string(error.code));
        return problems;
    }

    QTemporaryDir m_folder;
    const fs::path m_root;
};

} // namespace

TEST_F(HRFFileWalkerTest, WalksInNaturalOrder)
{
    const Names names{".hidden/.b.mp3", "2.mp3",          "10.mp3",        "a.MP3",   "B.mp3",
                      "disc 2/1.flac",  "disc 2/x/1.mp3", "disc 10/1.ogg", "\xE4.mp3"};
    make(names);
    make({"note.txt", "mp3", ".mp3"});
    fs::create_directory_symlink(m_root, m_root / "disc 2/loop");
    fs::create_symlink(m_root / "nowhere.mp3", m_root / "dangling.mp3");
    const HRFFoundFiles found = find({"."});
    EXPECT_THAT(namesOf(found), ElementsAreArray(names));
    EXPECT_THAT(found.problems, IsEmpty());
}

TEST_F(HRFFileWalkerTest, TakesEveryFileOnce)
{
    make({"x/a.mp3", "x/b.mp3"});
    fs::create_hard_link(m_root / "x/a.mp3", m_root / "hard.mp3");
    fs::create_symlink(m_root / "x/b.mp3", m_root / "soft.mp3");
    EXPECT_THAT(namesOf(find({"hard.mp3", "x", "soft.mp3"})), ElementsAre("hard.mp3", "x/b.mp3"));
    EXPECT_THAT(namesOf(find({"soft.mp3", "x/a.mp3", "x"})), ElementsAre("soft.mp3", "x/a.mp3"));
    EXPECT_THAT(find({"x", "x"}).problems, IsEmpty());
}

TEST_F(HRFFileWalkerTest, TellsWhatItCouldNotTake)
{
    make({"a.mp3", "a.txt", "empty/note.txt", "x/b.mp3"});
    const HRFFoundFiles found = find({"gone.mp3", "a.txt", "empty", "a.mp3", "a.mp3/b", "x"});
    EXPECT_THAT(namesOf(found), ElementsAre("a.mp3", "x/b.mp3"));
    const std::string noEngine = std::string(" ") + HRFTagEngineErrorDomain + ' '
        + std::to_string(HRFTagEngineErrorCode::noEngine);
    EXPECT_THAT(problemsOf(found),
                ElementsAre("gone.mp3 POSIX " + std::to_string(ENOENT), "a.txt" + noEngine,
                            "empty" + noEngine, "a.mp3/b POSIX " + std::to_string(ENOTDIR)));
}

TEST_F(HRFFileWalkerTest, EndsWhenCancelled)
{
    make({"x/a.mp3", "x/b.mp3", "x/c.mp3", "y/d.mp3"});
    int questions = 0;
    const HRFFoundFiles found = find({"x", "y", "z"}, [&] { return ++questions > 2; });
    EXPECT_THAT(namesOf(found), ElementsAre("x/a.mp3"));
    EXPECT_THAT(found.problems, IsEmpty());
}
