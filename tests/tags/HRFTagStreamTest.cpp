#include "tags/HRFTagStream.h"

#include "support/HRFTestFile.h"

#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <csignal>
#include <fcntl.h>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using TagLib::IOStream;

namespace {

TagLib::ByteVector vector(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<unsigned int>(bytes.size())};
}

QByteArray bytesOf(const TagLib::ByteVector &vector)
{
    return {vector.data(), qsizetype(vector.size())};
}

/// Does the same random changes to a stream and to an array.
class RandomChanges
{
public:
    explicit RandomChanges(unsigned int seed) : m_random(seed) { }

    QByteArray bytes(int most)
    {
        QByteArray result(number(most), '\0');
        std::ranges::generate(result, [this] { return char(number(255)); });
        return result;
    }

    void apply(HRFTagStream &stream, QByteArray &model)
    {
        const int start = number(int(model.size()));
        const int length = number(longest);
        const qsizetype half = std::min<qsizetype>(model.size(), length) / 2;
        switch (number(4)) {
        case 0: {
            const QByteArray data = bytes(longest);
            stream.insert(vector(data), start, std::size_t(length));
            model.replace(start, length, data);
            break;
        }
        case 1:
            stream.removeBlock(start, std::size_t(length));
            model.remove(start, length);
            break;
        case 2:
            write(stream, model, start + (number(3) == 0 ? length : 0));
            break;
        case 3:
            stream.truncate(model.size() - half);
            model.chop(half);
            break;
        default:
            read(stream, model, start, length);
        }
    }

private:
    static constexpr int longest = 900;

    int number(int most) { return std::uniform_int_distribution<int>(0, most)(m_random); }

    /// Also in pieces, and from behind the end.
    void write(HRFTagStream &stream, QByteArray &model, qsizetype start)
    {
        stream.seek(start - stream.length(), IOStream::End);
        for (int i = number(2); i >= 0; --i) {
            const QByteArray data = bytes(longest / 3) + 'w';
            stream.writeBlock(vector(data));
            model.resize(std::max(model.size(), start), '\0');
            model.replace(start, data.size(), data);
            start += data.size();
            EXPECT_EQ(stream.tell(), start);
        }
    }

    static void read(HRFTagStream &stream, const QByteArray &model, int start, int length)
    {
        stream.seek(start, IOStream::Beginning);
        const QByteArray found = bytesOf(stream.readBlock(std::size_t(length)));
        EXPECT_EQ(found, model.mid(start, length));
        stream.seek(-found.size(), IOStream::Current);
        EXPECT_EQ(stream.tell(), start);
    }

    std::mt19937 m_random;
};

/// Lets the write calls of a commit fail one after the other, once each. Every failure must leave
/// the old bytes; the commit without one answers the new ones.
template <class Change> QByteArray commitAfterFailures(const QByteArray &old, const Change &change)
{
    for (int n = 0;; ++n) {
        HRFTestFile file{"mp3", old, {.failingWrite = n}};
        const auto stream = file.stream();
        change(*stream);
        EXPECT_TRUE(file.bytes == old);
        if (stream->commit()) {
            EXPECT_EQ(file.faults.writeCount, n);
            return file.bytes;
        }
        stream->discard();
        stream->seek(0, IOStream::Beginning);
        if (file.bytes != old || bytesOf(stream->readBlock(std::size_t(1) << 23)) != old) {
            ADD_FAILURE() << "write " << n << " of a file of " << old.size();
            return {};
        }
    }
}

QByteArray differingBytes(qsizetype size)
{
    QByteArray bytes(size, '\0');
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = char((i * i / 7 + i) % 253);
    return bytes;
}

} // namespace

TEST(HRFTagStream, DoesWhatAnArrayDoesWhicheverWriteFails)
{
    for (unsigned int seed = 0; seed < 300; ++seed) {
        SCOPED_TRACE(seed);
        const QByteArray old = RandomChanges(seed).bytes(seed % 4 == 0 ? 0 : 6000);
        QByteArray model;
        const QByteArray written = commitAfterFailures(old, [&](HRFTagStream &stream) {
            RandomChanges changes(seed + 1000);
            model = old;
            for (int i = 0; i < 10; ++i)
                changes.apply(stream, model);
            EXPECT_EQ(stream.length(), model.size());
        });
        ASSERT_TRUE(written == model);
    }
}

TEST(HRFTagStream, MovesALargeFileAndBack)
{
    constexpr int megabyte = 1 << 20;
    const QByteArray old = differingBytes(3 * megabyte + 12345);
    struct Row
    {
        int length; ///< of what replaces the first bytes
        int replaced;
        int cut; ///< from the end
    };
    constexpr Row rows[] = {
        {5000, 100, 0}, {100, 5000, 0}, {2 * megabyte, 1, 0},    {1, 2 * megabyte, 0},
        {5000, 0, 128}, {0, 5000, 128}, {megabyte, megabyte, 0},
    };
    for (const auto &[length, replaced, cut] : rows) {
        SCOPED_TRACE(std::to_string(length) + " for " + std::to_string(replaced));
        const QByteArray head(length, 'h');
        const QByteArray written = commitAfterFailures(old, [&](HRFTagStream &stream) {
            stream.truncate(stream.length() - cut);
            stream.insert(vector(head), 0, std::size_t(replaced));
        });
        EXPECT_TRUE(written == head + old.sliced(replaced).chopped(cut));
    }
}

TEST(HRFTagStream, TellsWhatBecameOfTheOldBytes)
{
    const std::tuple<HRFFaults, int, bool> rows[] = {
        {{.prepareFails = true}, ENOSPC, true},
        {{.failingWrite = 1}, EIO, true},
        {{.failingWrite = 1, .failsForGood = true}, EIO, false},
    };
    const QByteArray old = differingBytes(5000);
    for (const auto &[faults, code, isKept] : rows) {
        HRFTestFile file{"mp3", old, faults};
        const auto stream = file.stream();
        stream->insert("new", 0, 1);
        const auto committed = stream->commit();
        ASSERT_FALSE(committed);
        EXPECT_EQ(committed.error().code, code);
        EXPECT_EQ(committed.error().recoverySuggestion.contains(u"damaged"_s), !isKept);
        EXPECT_EQ(file.bytes == old, isKept);
    }
}

TEST(HRFTagStream, RefusesToWriteWhatItCouldNotRead)
{
    const QByteArray old = differingBytes(20000);
    for (const bool failsBefore : {true, false}) {
        HRFTestFile file{"mp3", old};
        const auto stream = file.stream();
        if (failsBefore) {
            file.faults.unreadableFrom = 10000;
            stream->seek(9990, IOStream::Beginning);
            EXPECT_EQ(bytesOf(stream->readBlock(20)), old.mid(9990, 10) + QByteArray(10, '\0'));
            file.faults = {};
        }
        EXPECT_EQ(stream->hasReadFailed(), failsBefore);
        stream->insert("new", 0, 0);
        file.faults.unreadableFrom = failsBefore ? file.faults.unreadableFrom : 10000;
        const auto committed = stream->commit();
        ASSERT_FALSE(committed);
        EXPECT_EQ(committed.error().code, EIO);
        EXPECT_TRUE(file.bytes == old);
    }
}

namespace {

/// A file on the disk.
class HRFFileByteStoreTest : public testing::Test
{
protected:
    HRFFileByteStoreTest() { write(m_old); }

    void write(const QByteArray &bytes) const
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray read() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
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

    const QByteArray m_old = differingBytes(50000);
    const QByteArray m_head = QByteArray(70000, 'h');
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(u"a.mp3"_s);
};

} // namespace

TEST_F(HRFFileByteStoreTest, KeepsTheInodeWhileTheFileGrowsAndShrinks)
{
    const ino_t inode = status().st_ino;
    const auto stream = open();
    QByteArray model = m_old;
    for (const int growth : {700, -300, -20000, 40000}) {
        const QByteArray head(30000 + growth, 'h');
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
    EXPECT_TRUE(bytesOf(stream->readBlock(60000)) == m_old);
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
        stream->insert("new", 0, 0);
        change();
        const QByteArray changed = read();
        EXPECT_FALSE(stream->commit()) << name;
        EXPECT_TRUE(read() == changed) << name;
    }
}

TEST_F(HRFFileByteStoreTest, LeavesTheFileOnAFullDiskAndSavesOnceThereIsRoom)
{
    const auto stream = open();
    stream->insert(vector(m_head), 0, 0);
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
    EXPECT_EQ(HRFFailure(stream->commit()), u""_s);
    EXPECT_TRUE(read() == m_head + m_old);
}
