#include "fuzz/HRFFuzzTarget.h"
#include "fuzz/HRFResourceLimits.h"

#include <QtEndian>
#include <gtest/gtest.h>

namespace {

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// Seven bits in every byte (ID3v2.4.0 structure §6.2).
QByteArray synchSafe(quint32 number)
{
    QByteArray bytes;
    for (const int shift : {21, 14, 7, 0})
        bytes.append(char((number >> shift) & 0x7F));
    return bytes;
}

QByteArray frame(const char *name, const char *flags, const QByteArray &content)
{
    return name + synchSafe(quint32(content.size())) + QByteArray(flags, 2) + content;
}

QByteArray tag(const QByteArray &frames)
{
    return QByteArray("ID3\4\0\0", 6) + synchSafe(quint32(frames.size())) + frames;
}

QByteArray chapterStart()
{
    return QByteArray("c\0", 2) + QByteArray(16, '\0');
}

QByteArray nestedChapters(int depth)
{
    const QByteArray start = chapterStart();
    const auto headerSize = 10;
    QByteArray frames;
    for (int level = depth; level > 0; --level)
        frames += "CHAP" + synchSafe(quint32(level * (headerSize + start.size()) - headerSize))
            + QByteArray(2, '\0') + start;
    return frames;
}

/// A few hundred KB that are a text of 200 MB.
QByteArray compressedFrame()
{
    constexpr int size = 200'000'000;
    const QByteArray packed = qCompress(QByteArray(size, 'A')).mid(4);
    return frame("TIT2", "\0\x09", synchSafe(size) + packed);
}

void check(const char *family, const QByteArray &contents)
{
    const HRFResourceLimits limits;
    EXPECT_EQ(HRFFuzzOneInput(*HRFFuzzEngineClass(family), contents).toStdString(), "");
    EXPECT_EQ(limits.exceeded().toStdString(), "");
}

TEST(HRFHostileFiles, NestedAtoms)
{
    constexpr quint32 depth = 200'000;
    QByteArray contents = bigEndian(16) + "ftypM4A " + QByteArray(4, '\0');
    for (quint32 level = depth; level > 0; --level)
        contents += bigEndian(8 * level) + "moov";
    check("mp4", contents);
}

TEST(HRFHostileFiles, NestedChapters)
{
    check("mpeg", tag(nestedChapters(100'000)));
}

TEST(HRFHostileFiles, NestedChaptersBeforeFLAC)
{
    check("flac",
          tag(nestedChapters(100'000)) + "fLaC" + QByteArray("\x80\0\0\x22", 4)
              + QByteArray(34, '\0'));
}

TEST(HRFHostileFiles, CompressedFrame)
{
    check("mpeg", tag(compressedFrame()));
}

TEST(HRFHostileFiles, CompressedFrameInChapter)
{
    check("mpeg", tag(frame("CHAP", "\0\0", chapterStart() + compressedFrame())));
}

} // namespace
