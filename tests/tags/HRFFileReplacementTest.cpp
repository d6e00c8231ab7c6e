#include "tags/HRFFileReplacement.h"

#include "kit/HRFFileReferenceTable.h"
#include "support/HRFTestFile.h"

#include <QTemporaryDir>

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// A file with a comment as another program may have made it.
class HRFFileReplacementTest : public testing::Test
{
protected:
    HRFFileReplacementTest()
    {
        std::ofstream(m_path) << m_sound;
        fs::permissions(m_path, fs::perms(0640));
        m_hasComment = ::setxattr(m_path.c_str(), "user.comment", "mine", 4, 0) == 0;
        fs::create_symlink("a.mp3", m_link);
    }

    struct stat status() const
    {
        struct stat result{};
        EXPECT_EQ(::stat(m_path.c_str(), &result), 0);
        return result;
    }
    static HRFFileReference reference(const fs::path &path)
    {
        return HRFFileReference::fromNativePath(QByteArray::fromStdString(path.native()));
    }
    std::string contents() const
    {
        std::ifstream file(m_path);
        return {std::istreambuf_iterator(file), {}};
    }
    /// Puts a head before the sound, twice by one stream.
    void insertHead()
    {
        const auto stream = openTagStream(reference(m_link));
        ASSERT_TRUE(stream);
        (*stream)->insert("HEAD", 0, 0);
        ASSERT_TRUE((*stream)->commit());
        (*stream)->insert("FORE", 0, 0);
        ASSERT_TRUE((*stream)->commit());
        EXPECT_TRUE((*stream)->readBlock(5) == TagLib::ByteVector("HEADs"));
    }

    QTemporaryDir m_folder;
    const fs::path m_path = m_folder.filePath(QStringLiteral("a.mp3")).toStdString();
    const fs::path m_link = m_folder.filePath(QStringLiteral("link.mp3")).toStdString();
    const std::string m_sound = std::string(3'000'000, 's');
    bool m_hasComment = false;
};

} // namespace

TEST_F(HRFFileReplacementTest, TakesThePlaceOfAFileThatMoves)
{
    const auto url = HRFFileReferenceTable::referenceURLForFile(reference(m_path));
    const struct stat before = status();
    const std::ifstream otherProgram(m_path); // so that the inode is not free for the next file
    insertHead();
    const struct stat after = status();
    EXPECT_NE(after.st_ino, before.st_ino);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_NE(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
    EXPECT_TRUE(contents() == "FOREHEAD" + m_sound);
    EXPECT_EQ(HRFFileReferenceTable::referenceURLForFile(reference(m_path)), url);
    EXPECT_EQ(HRFFileReferenceTable::fileForURL(*url), reference(m_path));
    EXPECT_TRUE(fs::is_symlink(m_link));
    if (m_hasComment) {
        std::array<char, 8> comment{};
        EXPECT_EQ(::getxattr(m_path.c_str(), "user.comment", comment.data(), comment.size()), 4);
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(m_path.parent_path()), {}), 2);
}

TEST_F(HRFFileReplacementTest, LeavesAFileWithTwoNamesInItsPlace)
{
    fs::create_hard_link(m_path, m_path.parent_path() / "other.mp3");
    const ino_t before = status().st_ino;
    insertHead();
    EXPECT_EQ(status().st_ino, before);
    EXPECT_TRUE(contents() == "FOREHEAD" + m_sound);
}

TEST_F(HRFFileReplacementTest, DoesNotBringBackANameThatHasGone)
{
    const int original = ::open(m_path.c_str(), O_RDONLY);
    const auto replacement =
        HRFFileReplacement::begin(QByteArray::fromStdString(m_path.native()), original);
    ASSERT_TRUE(replacement);
    fs::rename(m_path, m_path.parent_path() / "renamed.mp3");
    EXPECT_FALSE(replacement->takePlace());
    EXPECT_FALSE(fs::exists(m_path));
    ::close(original);
}

TEST_F(HRFFileReplacementTest, DoesNotReplaceWhatAnotherProgramHasChanged)
{
    const auto stream = openTagStream(reference(m_path));
    (*stream)->insert("HEAD", 0, 0);
    std::ofstream(m_path, std::ios::app) << "more";
    EXPECT_FALSE((*stream)->commit());
    EXPECT_TRUE(contents() == m_sound + "more");
    EXPECT_EQ(std::distance(fs::directory_iterator(m_path.parent_path()), {}), 2);
}
