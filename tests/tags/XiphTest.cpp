// What is particular to files with Vorbis comments: FLAC and everything in Ogg.

#include "support/HRFTestBytes.h"
#include "support/HRFTestFile.h"

#include <taglib/flacfile.h>
#include <taglib/flacpicture.h>
#include <taglib/xiphcomment.h>

using namespace HRFTestBytes;
using namespace Qt::StringLiterals;
using K = HRFTagKey;

namespace {

constexpr char first = 2; // flags of pages
constexpr char last = 4;

const HRFTagValues newAlbum = {{K::album, u"New"_s}};
const HRFTagValues longLyrics = {{K::lyrics, QString(120'000, u'x')}};

/// The bytes of a comment. @p count is what it states, if not the number of its entries.
QByteArray comment(const QByteArrayList &entries, const QByteArray &rest = {}, qsizetype count = -1)
{
    QByteArray bytes =
        littleEndian(6) + "vendor" + littleEndian(quint64(count < 0 ? entries.size() : count));
    for (const QByteArray &entry : entries)
        bytes += littleEndian(quint64(entry.size())) + entry;
    return bytes + rest;
}

QByteArray flacBlock(quint32 type, const QByteArray &data, bool isLast = false)
{
    return bigEndian((type << 24) | quint32(data.size()) | (isLast ? 0x80000000U : 0U)) + data;
}

const QByteArray flacStart = "fLaC" + flacBlock(0, QByteArray(34, '\1'));
const QByteArray flacAudio = "\xFF\xF8 audio";

QByteArray flacFile(const QByteArray &blocks)
{
    return flacStart + blocks + flacBlock(1, "1234", true) + flacAudio;
}

QByteArray oggFile(const std::vector<OggPage> &pages)
{
    QByteArray bytes;
    for (const OggPage &page : pages)
        bytes += page.render();
    return bytes;
}

QByteArray oggFile(const QByteArray &head, const QByteArrayList &packets)
{
    return oggFile({{.flags = first, .packets = {head}},
                    {.sequence = 1, .packets = packets},
                    {.granule = 960, .sequence = 2, .packets = {"audio 1", "audio 2"}},
                    {.flags = last, .granule = 1920, .sequence = 3, .packets = {"audio 3"}}});
}

/// A file type with what surrounds its comment.
struct Container
{
    QByteArray fileType;
    QByteArray head; ///< the first packet
    QByteArray prefix; ///< of the comment in its packet

    QByteArray file(const QByteArray &comment) const
    {
        if (fileType == "flac")
            return flacFile(flacBlock(4, comment));
        return oggFile(head, {fileType == "oga" ? flacBlock(4, comment, true) : prefix + comment});
    }
};

const Container opus = {"opus", "OpusHead", "OpusTags"};
const Container vorbis = {"ogg", "\1vorbis", "\3vorbis"};
const Container speex = {"spx", "Speex   ", ""};
const Container flac = {"flac", "", ""};
const Container oggFlac = {"oga", "\x7F\x46LAC\x01\0\0\x01"_ba + flacStart, ""};
const Container containers[] = {opus, vorbis, speex, flac, oggFlac};

/// The bytes after saving, which must succeed.
QByteArray saved(const QByteArray &fileType, const QByteArray &bytes,
                 const HRFTagValues &values = newAlbum)
{
    HRFTestFile file{fileType, bytes};
    file.set(values);
    return file.bytes;
}

} // namespace

TEST(VorbisComment, KeepsEntriesAsTheyAre)
{
    // clang-format off
    const QByteArray entries[] = {
        "ARTIST=Bj\xF6rk", "title=Two", "noequals", "", "=nameless", "BAD\xC3\xA9KEY=x",
        "TIL~DE=value", "EMPTY=", "COVERART=", "METADATA_BLOCK_PICTURE=!!!!",
        "METADATA_BLOCK_PICTURE=AAAA"};
    // clang-format on
    for (const Container &container : containers) {
        const QByteArray &type = container.fileType;
        for (const QByteArray &entry : entries) {
            const QByteArray old = comment({"TITLE=One", entry, "ARTIST=Last"}, "\1rest");
            const QByteArray expected =
                comment({"TITLE=One", entry, "ARTIST=Last", "ALBUM=New"}, "\1rest");
            HRFTestFile file{type, container.file(old)};
            const bool hasLatin1 = entry.startsWith("ARTIST");
            EXPECT_EQ(file.text(K::artist), hasLatin1 ? u"Björk Last"_s : u"Last"_s);
            file.set(newAlbum);
            EXPECT_TRUE(file.bytes.contains(expected)) << type << entry;
        }
        const QByteArray uncounted = comment({"TITLE=One", "ARTIST=Keep"}, "\1", 1);
        EXPECT_TRUE(saved(type, container.file(uncounted)).contains("ARTIST=Keep")) << type;
    }
}

TEST(VorbisComment, ReplacesOnlyTheFieldsThatChange)
{
    const struct
    {
        QByteArrayList old;
        HRFTagValues values;
        QByteArrayList expected;
    } cases[] = {
        {{"album=\xE4", "ALBUM=", "Title=x"}, newAlbum, {"Title=x", "ALBUM=New"}},
        {{"ALBUM=a", "album=b", "X=y"}, {{K::album, {}}}, {"X=y"}},
        {{"METADATA_BLOCK_PICTURE=!", "X=y", "COVERART=!"}, {{K::artwork, {}}}, {"X=y"}},
        {{"COMPOSER=a", "COMPOSER=b"}, {{K::composer, u"c"_s}}, {"COMPOSER=c"}},
        {{"DESCRIPTION=old"}, {{K::comment, u"new"_s}}, {"DESCRIPTION=new"}},
        {{"COMMENT=old"}, {{K::comment, u"new"_s}}, {"COMMENT=new"}},
        {{"COMMENT=old", "DESCRIPTION=more"}, {{K::comment, {}}}, {}},
        {{}, {{K::trackTotal, 12}}, {"TRACKTOTAL=12"}},
        {{"TRACKNUMBER=3", "TRACKTOTAL=12"}, {{K::trackNumber, 0}}, {"TRACKTOTAL=12"}},
        {{}, {{K::year, 1999}}, {"DATE=1999"}},
        {{"DATE=1999"}, {{K::year, 0}}, {}},
    };
    for (const Container &container : containers) {
        for (const auto &[old, values, expected] : cases) {
            const QByteArray file = container.file(comment(old, "\1"));
            const QByteArray bytes = saved(container.fileType, file, values);
            EXPECT_TRUE(bytes.contains(container.prefix + comment(expected))) << bytes;
        }
    }
}

TEST(VorbisComment, IsNotWrittenWhenItIsDamaged)
{
    const QByteArray whole = comment({"TITLE=One", "ARTIST=Keep"});
    const QByteArray damaged[] = {comment({"ARTIST=Keep"}, "\1", 5000),
                                  comment({"ARTIST=Keep"}, "\1", 2), whole.chopped(1),
                                  whole.first(12), "\x1E\x9D\x66 audio in its place"};
    for (const Container &container : containers) {
        for (const QByteArray &bytes : damaged) {
            const QByteArray old = container.file(bytes);
            HRFTestFile file{container.fileType, old};
            if (&container == &containers[2]) { // Speex
                EXPECT_FALSE(file.tryOpen()) << bytes;
                continue;
            }
            const QString failure = HRFFailure(file.trySet(newAlbum));
            EXPECT_TRUE(failure.contains(u"tag is damaged"_s)) << qPrintable(failure);
            EXPECT_EQ(file.bytes, old);
            file.strip();
            EXPECT_FALSE(file.bytes.contains("Keep")) << container.fileType;
        }
    }
}

TEST(VorbisComment, IsStrippedOfEverythingButForeignData)
{
    const struct
    {
        const Container &container;
        QByteArray rest;
        QByteArray kept;
    } cases[] = {{opus, "\1binary", "\1binary"}, {opus, "\0binary"_ba, ""},
                 {vorbis, "\1junk", "\1"},       {flac, "\1junk", ""},
                 {oggFlac, "\1junk", ""},        {speex, "\1junk", ""}};
    for (const auto &[container, rest, kept] : cases) {
        HRFTestFile file{container.fileType, container.file(comment({"TITLE=One"}, rest))};
        file.strip();
        const QByteArray stripped = container.prefix + comment({}, kept);
        EXPECT_TRUE(file.bytes.contains(stripped)) << container.fileType;
        EXPECT_EQ(file.bytes.contains(stripped + rest.sliced(kept.size())), kept == rest);
    }
}

TEST(FLACSave, KeepsOtherBlocksAndID3Tags)
{
    const QByteArray old = flacBlock(4, comment({"TITLE=One"}));
    const QByteArray changed = flacBlock(4, comment({"TITLE=One", "ALBUM=New"}));
    const QByteArray added =
        flacBlock(4, littleEndian(0) + littleEndian(1) + littleEndian(9) + "ALBUM=New");
    const QByteArray second = flacBlock(4, comment({"ARTIST=Second"}));
    const QByteArray picture = flacBlock(6, QByteArray(40, '\xEE'));
    const QByteArray application = flacBlock(2, "appldata");
    const auto id3v2 = [](int version) {
        return ID3v2Tag(version, {textFrame("TYER", "1999"), {"XYZW", "raw", "\x80\0"_ba}});
    };
    const QByteArray id3v1 = HRFTestFile::fixture("id3v1.mp3").bytes.last(128);
    const struct
    {
        QByteArray blocks, expected, before, behind;
    } cases[] = {{old + second, changed + second, "", ""},
                 {picture + old + application, picture + changed + application, "", ""},
                 {application, application + added, id3v2(3), id3v1},
                 {old, changed, id3v2(4) + id3v2(3), ""},
                 {old, changed, id3v2(2), id3v1}};
    for (const auto &[blocks, expected, before, behind] : cases) {
        const QByteArray bytes = saved("flac", before + flacFile(blocks) + behind);
        EXPECT_TRUE(bytes.startsWith(before + flacStart + expected)) << bytes;
        EXPECT_TRUE(bytes.endsWith(flacAudio + behind)) << bytes;
    }
    for (const QByteArray &before : {""_ba, id3v2(3), id3v2(3) + id3v2(4)}) {
        HRFTestFile file{"flac", before + flacFile(old + second + picture + application) + id3v1};
        file.strip();
        EXPECT_TRUE(file.bytes.startsWith(flacStart + application + flacBlock(4, comment({}))));
        EXPECT_TRUE(file.bytes.endsWith(flacAudio));
    }
}

TEST(FLACSave, UsesThePadding)
{
    constexpr qsizetype needed = 4 + 9; // the length and the text of the new field
    const std::pair<qsizetype, qsizetype> cases[] = {
        {0, 4096}, {needed - 1, 4096}, {needed, 0}, {needed + 5, 5}, {100'000, 4096}};
    for (const auto &[old, expected] : cases) {
        EXPECT_EQ(saved("flac",
                        flacStart + flacBlock(4, comment({}))
                            + flacBlock(1, QByteArray(old, 'p'), true) + flacAudio),
                  flacStart + flacBlock(4, comment({"ALBUM=New"}))
                      + flacBlock(1, QByteArray(expected, '\0'), true) + flacAudio);
    }
}

TEST(FLACSave, RefusesWhatABlockCannotHold)
{
    constexpr qsizetype tooLarge = 1 << 24;
    for (const Container &container : {flac, oggFlac}) {
        for (const HRFTagValues &values : {HRFTagValues{{K::lyrics, QString(tooLarge, u'x')}},
                                           HRFTagValues{{K::artwork, QByteArray(tooLarge, 'x')}}}) {
            for (const int storage : {0, 1, 2}) {
                const HRFSettings setting({{"preferredFLACArtworkStorageType", storage}});
                const QByteArray old = container.file(comment({}));
                HRFTestFile file{container.fileType, old};
                EXPECT_TRUE(HRFFailure(file.trySet(values)).contains(u"16 MiB"_s)) << storage;
                EXPECT_EQ(file.bytes, old) << storage;
            }
        }
    }
}

TEST(FLACSave, StoresPicturesWhereTheUserWantsThem)
{
    HRFTestFile file = HRFTestFile::fixture("comment-picture.flac");
    EXPECT_TRUE(file.value(K::artwork).toByteArray().startsWith("\x89PNG"));
    const auto expectPlaces = [&file](bool inBlock, bool inComment) {
        HRFNative<TagLib::FLAC::File> native(file);
        EXPECT_EQ(native->pictureList().size(), inBlock ? 1U : 0U);
        EXPECT_EQ(native->xiphComment()->pictureList().size(), inComment ? 1U : 0U);
        for (const auto *picture : native->pictureList())
            EXPECT_EQ(picture->type(), TagLib::FLAC::Picture::FrontCover);
    };
    const std::tuple<QVariant, bool, bool> cases[] = {
        {{}, true, false}, {0, true, false}, {1, false, true}, {2, true, true}, {7, true, true}};
    for (const auto &[storage, inBlock, inComment] : cases) {
        SCOPED_TRACE(storage.toInt());
        for (const bool isRemoved : {false, true}) {
            {
                const HRFSettings both({{"preferredFLACArtworkStorageType", 2}});
                file.set(K::artwork, HRFSampleJPEG);
                expectPlaces(true, true);
            }
            const HRFSettings setting({{"preferredFLACArtworkStorageType", storage}});
            file.set(K::artwork, isRemoved ? QVariant() : HRFSamplePNG);
            expectPlaces(inBlock && !isRemoved, inComment && !isRemoved);
        }
    }
}

TEST(FLACSave, DoesNotCopyID3FieldsIntoANewComment)
{
    HRFTestFile file = HRFTestFile::fixture("no-comment.flac");
    const QByteArray tagged = HRFTestFile::fixture("id3v2.flac").bytes;
    file.bytes.prepend(tagged.first(ID3v2Size(tagged)));
    file.set(newAlbum);
    EXPECT_EQ(file.text(K::title), u""_s);
    EXPECT_EQ(file.value(K::framesCount), 1);
}

TEST(OggSave, RenumbersThePagesOfItsStreamOnly)
{
    const OggPage head{.flags = first, .packets = {"OpusHead"}};
    const OggPage tags{.sequence = 1, .packets = {"OpusTags" + comment({})}};
    const OggPage a{.granule = 960, .sequence = 2, .packets = {"a", "b"}};
    const OggPage end{.flags = last, .granule = 1920, .sequence = 3, .packets = {"c"}};
    const OggPage endA{.flags = last, .granule = 960, .sequence = 2, .packets = {"a"}};
    const OggPage head8{.flags = first, .serial = 8, .packets = {"OpusHead"}};
    const OggPage end8{.flags = last, .serial = 8, .sequence = 1, .packets = {"b"}};
    const OggPage end7{.flags = last, .sequence = 1, .packets = {"b"}};
    const OggPage x{.serial = 9, .sequence = 1, .packets = {"x"}};
    const OggPage endX{.flags = last, .serial = 9, .sequence = 2, .packets = {"y"}};
    const struct
    {
        const char *name;
        std::vector<OggPage> behind;
        std::vector<quint32> sequences; ///< of those pages afterwards
    } cases[] = {
        {"whole stream", {a, end}, {3, 4}},
        {"chain", {endA, head8, end8}, {3, 0, 1}},
        {"chain whose first link has no end", {a, head8, end8}, {3, 0, 1}},
        {"chain of one serial number", {a, head, end7}, {3, 0, 1}},
        {"second stream in between", {x, a, endX, end}, {1, 3, 2, 4}},
    };
    const QByteArray start = oggFile({head, tags});
    for (const auto &[name, behind, sequences] : cases) {
        for (const QByteArray &foreign : {""_ba, "JUNK"_ba}) {
            SCOPED_TRACE(name + foreign.toStdString());
            const QByteArray old = start + foreign + oggFile(behind);
            const auto pages = OggPages(saved("opus", old, longLyrics));
            ASSERT_EQ(pages.size(), 3 + behind.size());
            EXPECT_EQ(pages[1].granule, -1);
            for (std::size_t i = 0; i < behind.size(); ++i) {
                OggPage expected = behind[i];
                expected.sequence = sequences[i];
                EXPECT_EQ(pages[3 + i], expected) << i;
            }
            EXPECT_TRUE(saved("opus", old).endsWith(foreign + oggFile(behind)));
        }
    }
}

TEST(OggSave, KeepsThePacketsAroundTheComment)
{
    const QByteArray audio(300, 'a');
    const QByteArray tags = "OpusTags" + comment({});
    const OggPage end{.flags = last, .granule = 1920, .sequence = 2, .packets = {"c"}};
    const QByteArray file = oggFile({{.flags = first, .packets = {"OpusHead"}},
                                     {.granule = 960, .sequence = 1, .packets = {tags, audio, "b"}},
                                     end});
    auto pages = OggPages(saved("opus", file));
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(pages[1].granule, 960);
    EXPECT_EQ(pages[1].packets, QByteArrayList({"OpusTags" + comment({"ALBUM=New"}), audio, "b"}));
    EXPECT_EQ(pages[2], end);

    // 255 segments that the audio does not fit behind
    pages = OggPages(saved("opus", file, {{K::lyrics, QString(qsizetype(254) * 255, u'x')}}));
    ASSERT_EQ(pages.size(), 4U);
    EXPECT_EQ(pages[1].granule, 0);
    EXPECT_EQ(pages[2].granule, 960);
    EXPECT_EQ(pages[2].packets, QByteArrayList({audio, "b"}));
    EXPECT_EQ(pages[3].sequence, 3U);
}

TEST(OggSave, ShortensALongComment)
{
    const QByteArray original = vorbis.file(comment({"TITLE=One"}, "\1"));
    const QByteArray longer = saved("ogg", original, longLyrics);
    EXPECT_EQ(OggPages(longer).size(), 5U);
    EXPECT_EQ(saved("ogg", longer, {{K::lyrics, {}}}), original);
}

TEST(OggSave, WritesTheLastCommentOfOggFlac)
{
    const QByteArray firstBlock = flacBlock(4, comment({"TITLE=First"}));
    const QByteArray file =
        oggFile(oggFlac.head, {firstBlock, flacBlock(4, comment({"TITLE=Last"}), true)});
    const QByteArray changed = flacBlock(4, comment({"TITLE=Last", "ALBUM=New"}), true);
    EXPECT_EQ(OggPages(saved("oga", file)).at(1).packets, QByteArrayList({firstBlock, changed}));
}
