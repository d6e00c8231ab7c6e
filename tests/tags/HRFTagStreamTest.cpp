#include "tags/HRFTagStream.h"

#include "support/HRFTestStores.h"
#include "tags/HRFFileByteStore.h"
#include "tags/TagLibText.h"

#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using TagLib::IOStream;

namespace {

TagLib::ByteVector vector(const std::string &bytes)
{
    return {bytes.data(), static_cast<unsigned int>(bytes.size())};
}

std::string text(const TagLib::ByteVector &bytes)
{
    return {bytes.data(), bytes.size()};
}

std::unique_ptr<HRFTagStream> streamOf(std::string &bytes, HRFFaults &faults)
{
    return std::make_unique<HRFTagStream>(
        std::make_unique<HRFFaultyByteStore>(std::make_unique<HRFMemoryByteStore>(bytes), faults));
}

/// Does the same random changes to a stream and to a text.
class RandomChanges
{
public:
    explicit RandomChanges(unsigned int seed) : m_random(seed) { }

    std::string bytes(int most)
    {
        std::string result(std::size_t(number(most)), '\0');
        std::ranges::generate(result, [this] { return char(number(255)); });
        return result;
    }

    void apply(HRFTagStream &stream, std::string &model)
    {
        const auto size = std::size_t(stream.length());
        const auto start = std::size_t(number(int(size)));
        const auto length = std::size_t(number(longest));
        switch (number(4)) {
        case 0: {
            const std::string data = bytes(longest);
            stream.insert(vector(data), TagLib::offset_t(start), length);
            model.replace(start, length, data);
            break;
        }
        case 1:
            stream.removeBlock(TagLib::offset_t(start), length);
            model.erase(start, length);
            break;
        case 2:
            write(stream, model, start, length);
            break;
        case 3:
            stream.truncate(TagLib::offset_t(size - std::min(size, length) / 2));
            model.resize(size - std::min(size, length) / 2);
            break;
        default:
            read(stream, model, start, length);
        }
    }

private:
    static constexpr int longest = 900;

    int number(int most) { return std::uniform_int_distribution<int>(0, most)(m_random); }

    /// Also in pieces, and from behind the end.
    void write(HRFTagStream &stream, std::string &model, std::size_t start, std::size_t length)
    {
        start += number(3) == 0 ? length : 0;
        stream.seek(TagLib::offset_t(start) - stream.length(), IOStream::End);
        for (int i = number(2); i >= 0; --i) {
            const std::string data = bytes(longest / 3) + 'w';
            stream.writeBlock(vector(data));
            model.resize(std::max(model.size(), start));
            model.replace(start, data.size(), data);
            start += data.size();
            EXPECT_EQ(stream.tell(), TagLib::offset_t(start));
        }
    }

    static void read(HRFTagStream &stream, const std::string &model, std::size_t start,
                     std::size_t length)
    {
        stream.seek(TagLib::offset_t(start), IOStream::Beginning);
        const std::string found = text(stream.readBlock(length));
        EXPECT_EQ(found, model.substr(start, length));
        stream.seek(-TagLib::offset_t(found.size()), IOStream::Current);
        EXPECT_EQ(stream.tell(), TagLib::offset_t(start));
    }

    std::mt19937 m_random;
};

/// Lets the write calls of a commit fail one after the other, once each. Every failure must leave
/// the old bytes; the commit without one answers the new ones.
template <class Change>
std::string commitAfterFailures(const std::string &old, const Change &change)
{
    for (int n = 0;; ++n) {
        std::string bytes = old;
        HRFFaults faults{.failingWrite = n};
        const auto stream = streamOf(bytes, faults);
        change(*stream);
        if (const auto committed = stream->commit()) {
            EXPECT_EQ(faults.writeCount, n);
            return bytes;
        }
        EXPECT_TRUE(bytes == old) << "write " << n << " of a file of " << old.size();
        if (bytes != old)
            return {};
    }
}

std::string differingBytes(std::size_t size)
{
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = char((i * i / 7 + i) % 253);
    return bytes;
}

} // namespace

TEST(HRFTagStream, DoesWhatATextDoes)
{
    for (unsigned int seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE(seed);
        RandomChanges changes(seed);
        std::string bytes = changes.bytes(seed % 4 == 0 ? 0 : 9000);
        std::string model = bytes;
        HRFFaults faults;
        const auto stream = streamOf(bytes, faults);
        for (int round = 0; round < 3; ++round) {
            const std::string before = bytes;
            for (int i = 0; i < 15; ++i)
                changes.apply(*stream, model);
            ASSERT_TRUE(bytes == before);
            ASSERT_EQ(stream->length(), TagLib::offset_t(model.size()));
            ASSERT_TRUE(stream->commit());
            ASSERT_TRUE(bytes == model);
        }
        changes.apply(*stream, model);
        stream->discard();
        EXPECT_TRUE(stream->commit());
        stream->seek(0, IOStream::Beginning);
        EXPECT_TRUE(text(stream->readBlock(1 << 20)) == bytes);
    }
}

TEST(HRFTagStream, LeavesTheOldBytesWhicheverWriteFails)
{
    for (unsigned int seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE(seed);
        const std::string old = RandomChanges(seed).bytes(5000);
        std::string model;
        const std::string written = commitAfterFailures(old, [&](HRFTagStream &stream) {
            RandomChanges changes(seed + 1000);
            model = old;
            for (int i = 0; i < 8; ++i)
                changes.apply(stream, model);
        });
        ASSERT_TRUE(written == model);
    }
}

TEST(HRFTagStream, MovesALargeFileAndBack)
{
    constexpr std::size_t megabyte = 1 << 20;
    const std::string old = differingBytes(3 * megabyte + 12345);
    struct Row
    {
        std::size_t length; ///< of what replaces the first bytes
        std::size_t replaced;
        std::size_t cut; ///< from the end
    };
    constexpr Row rows[] = {
        {5000, 100, 0}, {100, 5000, 0}, {2 * megabyte, 1, 0},    {1, 2 * megabyte, 0},
        {5000, 0, 128}, {0, 5000, 128}, {megabyte, megabyte, 0},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(std::to_string(row.length) + " for " + std::to_string(row.replaced));
        const std::string head(row.length, 'h');
        const std::string written = commitAfterFailures(old, [&](HRFTagStream &stream) {
            stream.truncate(stream.length() - TagLib::offset_t(row.cut));
            stream.insert(vector(head), 0, row.replaced);
        });
        EXPECT_TRUE(written
                    == head + old.substr(row.replaced, old.size() - row.replaced - row.cut));
    }
}

TEST(HRFTagStream, TellsWhatBecameOfTheOldBytes)
{
    const std::tuple<HRFFaults, int, bool> rows[] = {
        {{.prepareFails = true}, ENOSPC, true},
        {{.failingWrite = 1}, EIO, true},
        {{.failingWrite = 1, .failsForGood = true}, EIO, false},
    };
    const std::string old = differingBytes(5000);
    for (auto [faults, code, isKept] : rows) {
        std::string bytes = old;
        const auto stream = streamOf(bytes, faults);
        stream->insert(vector("new"), 0, 1);
        const auto committed = stream->commit();
        ASSERT_FALSE(committed);
        EXPECT_EQ(committed.error().code, code);
        EXPECT_EQ(committed.error().recoverySuggestion.contains(u"damaged"_s), !isKept);
        EXPECT_EQ(bytes == old, isKept);
    }
}

TEST(HRFTagStream, RefusesToWriteWhatItCouldNotRead)
{
    const std::string old = differingBytes(20000);
    for (const bool failsBefore : {true, false}) {
        std::string bytes = old;
        HRFFaults faults;
        const auto stream = streamOf(bytes, faults);
        if (failsBefore) {
            faults.unreadableFrom = 10000;
            stream->seek(9990, IOStream::Beginning);
            EXPECT_EQ(text(stream->readBlock(20)), old.substr(9990, 10) + std::string(10, '\0'));
            faults = {};
        }
        EXPECT_EQ(stream->hasReadFailed(), failsBefore);
        stream->insert(vector("new"), 0, 0);
        faults.unreadableFrom = failsBefore ? faults.unreadableFrom : 10000;
        const auto committed = stream->commit();
        ASSERT_FALSE(committed);
        EXPECT_EQ(committed.error().code, EIO);
        EXPECT_TRUE(bytes == old);
    }
}

namespace {

class HRFFileByteStoreTest : public testing::Test
{
protected:
    HRFFileByteStoreTest() { write(m_old); }

    void write(const std::string &bytes) const
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes.data(), qint64(bytes.size()));
    }
    std::string read() const
    {
        QFile file(m_path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().toStdString();
    }
    struct stat status() const
    {
        struct stat result = {};
        EXPECT_EQ(::stat(QFile::encodeName(m_path).constData(), &result), 0);
        return result;
    }
    void setModificationTime(time_t seconds) const
    {
        const timespec times[] = {{seconds, 0}, {seconds, 0}};
        EXPECT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(m_path).constData(), times, 0), 0);
    }
    std::shared_ptr<HRFTagStream> open() const
    {
        return openTagStream(HRFFileReference::fromPath(m_path)).value();
    }

    const std::string m_old = differingBytes(50000);
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(u"a.mp3"_s);
};

} // namespace

TEST_F(HRFFileByteStoreTest, KeepsTheInodeWhileTheFileGrowsAndShrinks)
{
    const ino_t inode = status().st_ino;
    const auto stream = open();
    std::string model = m_old;
    for (const int growth : {700, -300, -20000, 40000}) {
        const std::string head(std::size_t(30000 + growth), 'h');
        stream->insert(vector(head), 0, 30000);
        model.replace(0, 30000, head);
        ASSERT_TRUE(stream->commit());
        EXPECT_TRUE(read() == model);
    }
    EXPECT_EQ(status().st_ino, inode);
}

TEST_F(HRFFileByteStoreTest, LeavesTheModificationTimeWhenItOnlyReads)
{
    setModificationTime(1000000000);
    const auto stream = open();
    EXPECT_FALSE(stream->readOnly());
    EXPECT_TRUE(text(stream->readBlock(60000)) == m_old);
    EXPECT_TRUE(stream->commit());
    EXPECT_EQ(status().st_mtim.tv_sec, 1000000000);
}

TEST_F(HRFFileByteStoreTest, RefusesAFileThatAnotherProgramChanged)
{
    const std::pair<const char *, std::function<void()>> rows[] = {
        {"longer", [this] { write(m_old + "more"); }},
        {"touched", [this] { setModificationTime(1000000000); }},
        {"replaced",
         [this] {
             QFile::rename(m_path, m_path + u".old"_s);
             write(m_old);
         }},
        {"removed", [this] { QFile::remove(m_path); }},
    };
    for (const auto &[name, change] : rows) {
        write(m_old);
        const auto stream = open();
        stream->insert(vector("new"), 0, 0);
        change();
        const bool exists = QFile::exists(m_path);
        const std::string changed = exists ? read() : "";
        EXPECT_FALSE(stream->commit()) << name;
        EXPECT_EQ(QFile::exists(m_path), exists) << name;
        EXPECT_TRUE(!exists || read() == changed) << name;
    }
}

TEST_F(HRFFileByteStoreTest, LeavesTheFileWhicheverWriteFails)
{
    for (int n = 0;; ++n) {
        HRFFaults faults{.failingWrite = n};
        HRFTagStream stream(std::make_unique<HRFFaultyByteStore>(
            HRFFileByteStore::open(HRFFileReference::fromPath(m_path)).value(), faults));
        stream.insert(vector(std::string(70000, 'h')), 0, 0);
        stream.removeBlock(stream.length() - 128, 128);
        if (stream.commit()) {
            EXPECT_GT(n, 1);
            break;
        }
        ASSERT_EQ(status().st_size, qint64(m_old.size())) << "write " << n;
        ASSERT_TRUE(read() == m_old) << "write " << n;
    }
}

TEST_F(HRFFileByteStoreTest, LeavesTheFileOnAFullDiskAndSavesOnceThereIsRoom)
{
    const auto stream = open();
    stream->insert(vector(std::string(70000, 'h')), 0, 0);
    {
        rlimit old{};
        ::getrlimit(RLIMIT_FSIZE, &old);
        auto *oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        const auto restore = qScopeGuard([&] {
            ::setrlimit(RLIMIT_FSIZE, &old);
            std::signal(SIGXFSZ, oldHandler);
        });
        const rlimit limit{60000, old.rlim_max};
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
        EXPECT_FALSE(stream->commit());
        EXPECT_TRUE(read() == m_old);
    }
    const auto committed = stream->commit();
    EXPECT_TRUE(committed) << qPrintable(committed.error().fullText());
    EXPECT_TRUE(read() == std::string(70000, 'h') + m_old);
}
