#include "tags/FLACMetaData.h"
#include "xiph/XiphFiles.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace XiphFiles;
using testing::HasSubstr;

namespace {

const HRFEngineClass &flac = FLACMetaData::metadataClass;

QByteArray id3v2(char version)
{
    const QByteArray frames("TYER\0\0\0\5\0\0\0001999"
                            "XYZW\0\0\0\3\x80\0raw",
                            28);
    return QByteArray("ID3", 3) + version + QByteArray("\0\0\0\0\0", 5) + char(frames.size())
        + frames;
}

QByteArray id3v1()
{
    return "TAG" + QByteArray(125, 'x');
}

/// Everything before the padding and the audio behind it.
std::pair<QByteArray, QByteArray> parts(const QByteArray &file, const QByteArray &blocks)
{
    const qsizetype end = file.indexOf(blocks) + blocks.size();
    return {file.left(end), file.mid(file.indexOf("\xFF\xF8"))};
}

} // namespace

TEST(FLACSave, KeepsOtherBlocksAndID3Tags)
{
    const QByteArray changed = flacBlock(4, comment({"TITLE=One", "ALBUM=New"}));
    const QByteArray original = flacBlock(4, comment({"TITLE=One"}));
    const QByteArray added = flacBlock(4,
                                       QByteArray(4, '\0') + QByteArray("\1\0\0\0", 4)
                                           + QByteArray("\x9\0\0\0", 4) + "ALBUM=New");
    const QByteArray second = flacBlock(4, comment({"ARTIST=Second"}));
    const QByteArray picture = flacBlock(6, QByteArray(40, '\xEE'));
    const QByteArray application = flacBlock(2, "appldata");
    const struct
    {
        QByteArray old;
        QByteArray expected;
        QByteArray before;
        QByteArray behind;
    } cases[] = {{original + second, changed + second, "", ""},
                 {picture + original + application, picture + changed + application, "", ""},
                 {application, application + added, id3v2(3), id3v1()},
                 {original, changed, id3v2(3), ""},
                 {original, changed, id3v2(4) + id3v2(3), ""},
                 {original, changed, id3v2(2), id3v1()}};
    for (const auto &[old, expected, before, behind] : cases) {
        const auto [file, error] = save(flac, before + flacFile(old) + behind);
        EXPECT_EQ(error, QString());
        const auto [head, tail] = parts(file, expected);
        EXPECT_EQ(head, before + "fLaC" + flacBlock(0, streamInfo()) + expected);
        EXPECT_EQ(tail, "\xFF\xF8 audio" + behind);
    }
}

TEST(FLACSave, StripsAllTags)
{
    const QByteArray blocks = flacBlock(4, comment({"TITLE=Tag"}))
        + flacBlock(4, comment({"ARTIST=Tag"})) + flacBlock(6, QByteArray(40, '\xEE'))
        + flacBlock(2, "appldata");
    const QByteArray kept = flacBlock(4, comment({}));
    for (const QByteArray &before : {QByteArray(), id3v2(3), id3v2(3) + id3v2(4)}) {
        const auto [file, error] = save(flac, before + flacFile(blocks) + id3v1(), strip);
        EXPECT_EQ(error, QString());
        const QByteArray expected = flacBlock(2, "appldata") + kept;
        const auto [head, tail] = parts(file, expected);
        EXPECT_EQ(head, "fLaC" + flacBlock(0, streamInfo()) + expected);
        EXPECT_EQ(tail, "\xFF\xF8 audio");
    }
}

TEST(FLACSave, UsesThePadding)
{
    const qsizetype needed = 4 + 9; // the length and the text of the new field
    const struct
    {
        qsizetype old;
        qsizetype expected;
    } cases[] = {{0, 4096}, {needed - 1, 4096}, {needed, 0}, {needed + 5, 5}, {100'000, 4096}};
    for (const auto &[old, expected] : cases) {
        const QByteArray before = "fLaC" + flacBlock(0, streamInfo());
        const QByteArray behind = "\xFF\xF8 audio";
        const auto file = save(flac,
                               before + flacBlock(4, comment({}))
                                   + flacBlock(1, QByteArray(old, 'p'), true) + behind)
                              .file;
        EXPECT_EQ(file,
                  before + flacBlock(4, comment({"ALBUM=New"}))
                      + flacBlock(1, QByteArray(expected, '\0'), true) + behind)
            << old;
    }
}

TEST(FLACSave, ReplacesPictures)
{
    const QByteArray old = flacBlock(4, comment({})) + flacBlock(6, QByteArray(40, '\xEE'));
    const QByteArray data("\x89PNG\r\n\x1A\n data", 13);
    const auto setArtwork = [&](HRFTagEngine &engine) {
        engine.setValueForKey(data, HRFTagKey::artwork);
    };
    const auto [file, error] = save(flac, flacFile(old), setArtwork);
    EXPECT_EQ(error, QString());
    EXPECT_TRUE(file.contains(data));
    EXPECT_FALSE(file.contains("\xEE"));
    const auto engine = open(flac, std::make_shared<QByteArray>(file));
    ASSERT_TRUE(engine);
    EXPECT_EQ((*engine)->valueForKey(HRFTagKey::artwork), data);
}

TEST(FLACSave, RefusesWhatABlockCannotHold)
{
    constexpr qsizetype tooLarge = 1 << 24;
    const Change changes[] = {[](HRFTagEngine &engine) {
                                  engine.setValueForKey(QString(tooLarge, u'x'), HRFTagKey::lyrics);
                              },
                              [](HRFTagEngine &engine) {
                                  engine.setValueForKey(QByteArray(tooLarge, 'x'),
                                                        HRFTagKey::artwork);
                              }};
    const QByteArray old = flacFile(flacBlock(4, comment({})));
    for (const Change &change : changes) {
        const auto [file, error] = save(flac, old, change);
        EXPECT_THAT(error.toStdString(), HasSubstr("16 MiB"));
        EXPECT_EQ(file, old);
    }
}
