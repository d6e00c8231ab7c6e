// Inputs that broke a promise once, and files made to exhaust time or memory.

#include "fuzz/HRFFuzzTarget.h"
#include "support/HRFTestBytes.h"

#include <QDir>
#include <QElapsedTimer>
#include <gtest/gtest.h>

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
    check("mpeg", chapters);
    check("flac", chapters + "fLaC\x80\0\0\x22"_ba + QByteArray(34, '\0'));
    // Last, since it takes much memory to make.
    const QByteArray compressed = ID3v2Tag(4, {compressedFrame()});
    check("mpeg", compressed);
    check("mpeg", ID3v2Tag(4, {{"CHAP", chapterStart + compressed.sliced(10)}}));
}

TEST(Regressions, KeepEveryPromise)
{
    const QDir folder(QStringLiteral(LIRRA_FUZZ_REGRESSIONS), u"*"_s, QDir::Name, QDir::Files);
    for (const QString &name : folder.entryList()) {
        SCOPED_TRACE(name.toStdString());
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray contents = file.readAll();
        // Other settings apply to inputs of odd size.
        for (const QByteArray &input : {contents, contents + '\0'})
            check(name.section(u'-', 0, 0).toUtf8(), input);
    }
}
