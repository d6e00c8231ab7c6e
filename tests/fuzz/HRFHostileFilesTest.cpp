// Damaged files, inputs that broke a promise once, and files made to exhaust time or memory.

#include "fuzz/HRFFuzzTarget.h"
#include "support/HRFTestBytes.h"

#include <QDir>
#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <stdexcept>
#include <sys/resource.h>

using namespace HRFTestBytes;
using namespace Qt::StringLiterals;

namespace {

long peakMemory()
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024; // MiB
}

void check(const QByteArray &family, const QByteArray &contents)
{
    QElapsedTimer timer;
    timer.start();
    const long memoryBefore = peakMemory();
    EXPECT_EQ(HRFFuzzOneInput(*HRFFuzzEngineClass(family), contents).toStdString(), "");
    EXPECT_LT(timer.elapsed(), 20'000);
    EXPECT_LT(peakMemory() - memoryBefore, 512);
}

QByteArray familyOf(const QByteArray &path)
{
    return path.sliced(path.lastIndexOf('.') + 1);
}

QByteArray bytesIn(const QByteArray &path)
{
    QFile file(QString::fromUtf8(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll()
                                          : throw std::runtime_error(path.toStdString());
}

/// The paths of the files that an engine opens.
QByteArrayList filesIn(const char *folder)
{
    QByteArrayList paths;
    for (const QFileInfo &file : QDir(QString::fromUtf8(folder)).entryInfoList(QDir::Files))
        if (HRFFuzzEngineClass(familyOf(file.filePath().toUtf8())))
            paths.append(file.filePath().toUtf8());
    return paths;
}

QByteArray nestedAtoms(int depth)
{
    QByteArray contents = bigEndian(16) + "ftypM4A " + bigEndian(0);
    for (int level = depth; level > 0; --level)
        contents += bigEndian(8 * quint64(level)) + "moov";
    return contents;
}

const QByteArray chapterStart = "c\0"_ba + QByteArray(16, '\0');

QByteArray nestedChapters(int depth)
{
    const quint64 size = 10 + quint64(chapterStart.size());
    QByteArray rest;
    for (int level = depth - 1; level > 0; --level)
        rest += "CHAP" + bigEndian(quint64(level) * size - 10, 4, 7) + "\0\0"_ba + chapterStart;
    return ID3v2Tag(4, {{"CHAP", chapterStart + rest}});
}

/// A few hundred KB that are a text of 200 MB.
Frame compressedFrame()
{
    constexpr int size = 200'000'000;
    return {"TIT2", bigEndian(size, 4, 7) + qCompress(QByteArray(size, 'A')).mid(4), "\0\x09"_ba};
}

} // namespace

TEST(HostileFiles, AreReadAndTaggedWithinLimits)
{
    const QByteArray chapters = nestedChapters(100'000);
    check("mp4", nestedAtoms(200'000));
    check("mp3", chapters);
    check("flac", chapters + "fLaC\x80\0\0\x22"_ba + QByteArray(34, '\0'));
    // Last, since it takes much memory to make.
    const QByteArray compressed = ID3v2Tag(4, {compressedFrame()});
    check("mp3", compressed);
    check("mp3", ID3v2Tag(4, {{"CHAP", chapterStart + compressed.sliced(10)}}));
}

TEST(HostileFiles, ThatBrokeAPromiseOnceKeepIt)
{
    for (const QByteArray &path : filesIn(LIRRA_FUZZ_REGRESSIONS)) {
        SCOPED_TRACE(path.constData());
        // Other settings apply to inputs of odd size.
        for (const QByteArray &input : {bytesIn(path), bytesIn(path) + '\0'})
            check(familyOf(path), input);
    }
}

TEST(DamagedFixtures, KeepEveryPromise)
{
    std::minstd_rand random(4711);
    for (const QByteArray &path : filesIn(HRF_FIXTURES)) {
        const QByteArray bytes = bytesIn(path);
        const QByteArray family = familyOf(path);
        for (int i = 0; i < 20; ++i) {
            SCOPED_TRACE(path.toStdString() + " cut " + std::to_string(i));
            check(family, bytes.left(qsizetype(i) * 8)); // Most of the structure is in front.
            check(family, bytes.left(bytes.size() * i / 20));
        }
        for (int i = 0; i < 40; ++i) {
            const qsizetype at = qsizetype(random()) % std::min<qsizetype>(bytes.size(), 2000);
            const char byte = i % 2 == 0 ? '\xFF' : char(random() & 0xFF);
            SCOPED_TRACE(path.toStdString() + " byte " + std::to_string(at));
            check(family, QByteArray(bytes).replace(at, 1, &byte, 1));
        }
    }
}
