#include "tags/HRFEngineClass.h"
#include "xiph/XiphFiles.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace XiphFiles;
using testing::HasSubstr;

namespace {

void setLongLyrics(HRFTagEngine &engine)
{
    engine.setValueForKey(QString(120'000, u'x'), HRFTagKey::lyrics);
}

QByteArray opusTags(const QList<QByteArray> &entries)
{
    return "OpusTags" + comment(entries);
}

QByteArray render(const std::vector<Page> &pages)
{
    QByteArray bytes;
    for (const Page &page : pages)
        bytes += page.render();
    return bytes;
}

const HRFEngineClass &opus()
{
    return *container("Opus").engineClass;
}

} // namespace

TEST(OGGSave, RenumbersThePagesOfItsStreamOnly)
{
    const Page head{.flags = first, .packets = {"OpusHead"}};
    const Page tags{.sequence = 1, .packets = {opusTags({})}};
    const struct
    {
        const char *name;
        std::vector<Page> behind;
        std::vector<Page> expected;
    } cases[] = {
        {"whole stream",
         {{.granule = 960, .sequence = 2, .packets = {"a", "b"}},
          {.flags = last, .granule = 1920, .sequence = 3, .packets = {"c"}}},
         {{.granule = 960, .sequence = 3, .packets = {"a", "b"}},
          {.flags = last, .granule = 1920, .sequence = 4, .packets = {"c"}}}},
        {"chain",
         {{.flags = last, .granule = 960, .sequence = 2, .packets = {"a"}},
          {.flags = first, .serial = 8, .sequence = 0, .packets = {"OpusHead"}},
          {.serial = 8, .sequence = 1, .packets = {"b"}}},
         {{.flags = last, .granule = 960, .sequence = 3, .packets = {"a"}},
          {.flags = first, .serial = 8, .sequence = 0, .packets = {"OpusHead"}},
          {.serial = 8, .sequence = 1, .packets = {"b"}}}},
        {"chain whose first link has no end",
         {{.granule = 960, .sequence = 2, .packets = {"a"}},
          {.flags = first, .serial = 8, .sequence = 0, .packets = {"OpusHead"}},
          {.flags = last, .serial = 8, .sequence = 1, .packets = {"b"}}},
         {{.granule = 960, .sequence = 3, .packets = {"a"}},
          {.flags = first, .serial = 8, .sequence = 0, .packets = {"OpusHead"}},
          {.flags = last, .serial = 8, .sequence = 1, .packets = {"b"}}}},
        {"chain of one serial number",
         {{.granule = 960, .sequence = 2, .packets = {"a"}},
          {.flags = first, .sequence = 0, .packets = {"OpusHead"}},
          {.flags = last, .sequence = 1, .packets = {"b"}}},
         {{.granule = 960, .sequence = 3, .packets = {"a"}},
          {.flags = first, .sequence = 0, .packets = {"OpusHead"}},
          {.flags = last, .sequence = 1, .packets = {"b"}}}},
        {"second stream in between",
         {{.serial = 9, .sequence = 1, .packets = {"x"}},
          {.granule = 960, .sequence = 2, .packets = {"a"}},
          {.flags = last, .serial = 9, .sequence = 2, .packets = {"y"}},
          {.flags = last, .granule = 1920, .sequence = 3, .packets = {"b"}}},
         {{.serial = 9, .sequence = 1, .packets = {"x"}},
          {.granule = 960, .sequence = 3, .packets = {"a"}},
          {.flags = last, .serial = 9, .sequence = 2, .packets = {"y"}},
          {.flags = last, .granule = 1920, .sequence = 4, .packets = {"b"}}}},
    };
    for (const auto &[name, behind, expected] : cases) {
        const QByteArray start = render({head, tags});
        const auto [file, error] = save(opus(), start + render(behind), setLongLyrics);
        EXPECT_EQ(error, QString()) << name;
        const auto all = pages(file);
        ASSERT_EQ(all.size(), 3 + expected.size()) << name;
        EXPECT_EQ(all[1].granule, -1) << name;
        EXPECT_EQ(std::vector(all.begin() + 3, all.end()), expected) << name;

        const Saved small = save(opus(), start + render(behind));
        EXPECT_TRUE(small.file.endsWith(render(behind))) << name;
    }
}

TEST(OGGSave, KeepsThePacketsAroundTheComment)
{
    const QByteArray audio(300, 'a');
    const Page shared{.granule = 960, .sequence = 1, .packets = {opusTags({}), audio, "b"}};
    const Page end{.flags = last, .granule = 1920, .sequence = 2, .packets = {"c"}};
    const QByteArray file = render({{.flags = first, .packets = {"OpusHead"}}, shared, end});

    auto saved = pages(save(opus(), file).file);
    ASSERT_EQ(saved.size(), 3U);
    EXPECT_EQ(saved[1].granule, 960);
    EXPECT_EQ(saved[1].packets, QList<QByteArray>({opusTags({"ALBUM=New"}), audio, "b"}));
    EXPECT_EQ(saved[2], end);

    // 255 segments that the audio does not fit behind
    const auto setLyrics = [](HRFTagEngine &engine) {
        engine.setValueForKey(QString(254 * 255, u'x'), HRFTagKey::lyrics);
    };
    saved = pages(save(opus(), file, setLyrics).file);
    ASSERT_EQ(saved.size(), 4U);
    EXPECT_EQ(saved[1].granule, 0);
    EXPECT_EQ(saved[2].granule, 960);
    EXPECT_EQ(saved[2].packets, QList<QByteArray>({audio, "b"}));
    EXPECT_EQ(saved[3].sequence, 3U);
}

TEST(OGGSave, RenumbersBehindForeignBytes)
{
    const Page start{.flags = first, .packets = {"OpusHead"}};
    const Page tags{.sequence = 1, .packets = {opusTags({})}};
    const Page end{.flags = last, .granule = 960, .sequence = 2, .packets = {"a"}};
    const QByteArray file = start.render() + tags.render() + "JUNK" + end.render();
    const auto saved = pages(save(opus(), file, setLongLyrics).file);
    ASSERT_EQ(saved.size(), 4U);
    EXPECT_EQ(saved[3].sequence, 3U);
}

TEST(OGGSave, ShortensALongComment)
{
    const Container vorbis = container("Vorbis");
    const QByteArray original = vorbis.file(comment({"TITLE=One"}, "\1"));
    const auto removeLyrics = [](HRFTagEngine &engine) {
        engine.setValueForKey({}, HRFTagKey::lyrics);
    };
    const QByteArray longer = save(*vorbis.engineClass, original, setLongLyrics).file;
    EXPECT_EQ(pages(longer).size(), 5U);
    EXPECT_EQ(save(*vorbis.engineClass, longer, removeLyrics).file, original);
}

TEST(OGGSave, OpensNoSpeexFileWithAudioInPlaceOfItsComment)
{
    const Container speex = container("Speex");
    EXPECT_FALSE(
        open(*speex.engineClass, std::make_shared<QByteArray>(speex.file("\x1E\x9D\x66 audio"))));
}

TEST(OGGSave, WritesTheLastCommentOfOggFlac)
{
    const Container flac = container("Ogg FLAC");
    auto all = pages(flac.file(comment({"TITLE=Last"})));
    all[1].packets.prepend(flacBlock(4, comment({"TITLE=First"})));
    const auto saved = pages(save(*flac.engineClass, render(all)).file);
    ASSERT_EQ(saved.size(), all.size());
    EXPECT_EQ(saved[1].packets,
              QList<QByteArray>({flacBlock(4, comment({"TITLE=First"})),
                                 flacBlock(4, comment({"TITLE=Last", "ALBUM=New"}), true)}));
}

TEST(OGGSave, RefusesWhatAnOggFlacBlockCannotHold)
{
    const Container flac = container("Ogg FLAC");
    const QByteArray old = flac.file(comment({}));
    const auto [file, error] = save(*flac.engineClass, old, [](HRFTagEngine &engine) {
        engine.setValueForKey(QString(1 << 24, u'x'), HRFTagKey::lyrics);
    });
    EXPECT_THAT(error.toStdString(), HasSubstr("16 MiB"));
    EXPECT_EQ(file, old);
}
