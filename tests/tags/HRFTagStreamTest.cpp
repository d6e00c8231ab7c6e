#include "tags/HRFTagStream.h"

#include "support/HRFTestFile.h"

#include <random>

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

using Random = std::mt19937;

int number(Random &random, int most)
{
    return std::uniform_int_distribution<int>(0, most)(random);
}

QByteArray bytes(Random &random, int most)
{
    QByteArray result(number(random, most), '\0');
    std::ranges::generate(result, [&random] { return char(number(random, 255)); });
    return result;
}

/// Does the same random change to a stream and to an array.
void change(HRFTagStream &stream, QByteArray &model, Random &random)
{
    constexpr int longest = 900;
    const int start = number(random, int(model.size()));
    const int length = number(random, longest);
    const QByteArray data = bytes(random, longest) + 'd';
    switch (number(random, 4)) {
    case 0:
        stream.insert(vector(data), start, std::size_t(length));
        model.replace(start, length, data);
        break;
    case 1:
        stream.removeBlock(start, std::size_t(length));
        model.remove(start, length);
        break;
    case 2: { // in two pieces, and maybe from behind the end
        const qsizetype place = start + (length % 4 == 0 ? length : 0);
        stream.seek(place - stream.length(), IOStream::End);
        stream.writeBlock(vector(data.first(data.size() / 2)));
        stream.writeBlock(vector(data.sliced(data.size() / 2)));
        EXPECT_EQ(stream.tell(), place + data.size());
        model.resize(std::max(model.size(), place), '\0');
        model.replace(place, data.size(), data);
        break;
    }
    case 3:
        model.chop(std::min<qsizetype>(model.size(), length) / 2);
        stream.truncate(model.size());
        break;
    default:
        stream.seek(start, IOStream::Beginning);
        EXPECT_EQ(bytesOf(stream.readBlock(std::size_t(length))), model.mid(start, length));
        stream.seek(-model.mid(start, length).size(), IOStream::Current);
        EXPECT_EQ(stream.tell(), start);
    }
}

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
        Random random(seed);
        const QByteArray old = bytes(random, seed % 4 == 0 ? 0 : 6000);
        QByteArray model;
        const QByteArray written = commitAfterFailures(old, [&](HRFTagStream &stream) {
            Random sameForEveryWrite(seed + 1000);
            model = old;
            for (int i = 0; i < 10; ++i)
                change(stream, model, sameForEveryWrite);
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

TEST(HRFTagStream, WritesNothingWithoutAChange)
{
    HRFTestFile file{"mp3", differingBytes(5000), {.failingWrite = 0}};
    EXPECT_TRUE(file.stream()->commit());
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
