// What is particular to files with Vorbis comments.

#include "formats/HRFFormatFile.h"
#include "tags/FLACMetaData.h"

#include <taglib/flacfile.h>
#include <taglib/flacpicture.h>
#include <taglib/vorbisfile.h>
#include <taglib/xiphcomment.h>

using namespace Qt::StringLiterals;
using namespace TagLib;
using K = HRFTagKey;

namespace {

const QString storageKey = u"lirra.tagging.preferredFLACArtworkStorageType"_s;

template <class Change> void changeNatively(const HRFFormatFile &file, const Change &change)
{
    Ogg::Vorbis::File native(file.path().constData());
    change(*native.tag());
    ASSERT_TRUE(native.save());
}

StringList nativeField(const HRFFormatFile &file, const char *name)
{
    return Ogg::Vorbis::File(file.path().constData()).tag()->fieldListMap()[name];
}

} // namespace

TEST(VorbisRules, JoinsValuesWithASpaceAndWritesOne)
{
    const HRFFormatFile file("vorbis.ogg");
    changeNatively(file, [](Ogg::XiphComment &comment) {
        for (const char *value : {"A", "B", "C"})
            comment.addField("COMPOSER", value, false);
    });
    EXPECT_EQ(file.text(K::composer), u"A B C"_s);
    file.set(K::composer, u"D"_s);
    EXPECT_EQ(nativeField(file, "COMPOSER"), StringList("D"));
}

TEST(VorbisRules, KeepsNumberAndTotalInTwoFields)
{
    const HRFFormatFile file("vorbis.ogg");
    file.set(
        {{K::trackNumber, 3LL}, {K::trackTotal, 12LL}, {K::discTotal, 2LL}, {K::year, 1999LL}});
    for (const auto &[name, value] : {std::pair("TRACKNUMBER", "3"),
                                      {"TRACKTOTAL", "12"},
                                      {"DISCTOTAL", "2"},
                                      {"DATE", "1999"}})
        EXPECT_EQ(nativeField(file, name), StringList(value)) << name;
    file.set({{K::trackNumber, 0LL}, {K::year, 0LL}});
    EXPECT_TRUE(nativeField(file, "TRACKNUMBER").isEmpty());
    EXPECT_TRUE(nativeField(file, "DATE").isEmpty());
}

TEST(VorbisRules, UsesTheCommentFieldThatTheFileHas)
{
    const HRFFormatFile file("vorbis.ogg");
    changeNatively(file, [](Ogg::XiphComment &comment) { comment.addField("COMMENT", "old"); });
    EXPECT_EQ(file.text(K::comment), u"old"_s);
    file.set(K::comment, u"new"_s);
    EXPECT_EQ(nativeField(file, "COMMENT"), StringList("new"));
    EXPECT_TRUE(nativeField(file, "DESCRIPTION").isEmpty());
    changeNatively(file,
                   [](Ogg::XiphComment &comment) { comment.addField("DESCRIPTION", "more"); });
    file.set(K::comment, QVariant());
    EXPECT_TRUE(nativeField(file, "COMMENT").isEmpty());
    EXPECT_TRUE(nativeField(file, "DESCRIPTION").isEmpty());
}

TEST(VorbisRules, StoresFLACPicturesWhereTheUserWantsThem)
{
    const HRFFormatFile file("comment-picture.flac");
    EXPECT_TRUE(file.value(K::artwork).toByteArray().startsWith("\x89PNG"));
    const struct
    {
        QVariant storage;
        bool inBlock, inComment;
    } cases[] = {
        {{}, true, false}, {0, true, false}, {1, false, true}, {2, true, true}, {7, true, true}};
    const auto expectPlaces = [&file](bool inBlock, bool inComment) {
        FLAC::File native(file.path().constData());
        EXPECT_EQ(native.pictureList().size(), inBlock ? 1U : 0U);
        EXPECT_EQ(native.xiphComment()->pictureList().size(), inComment ? 1U : 0U);
        for (const FLAC::Picture *picture : native.pictureList())
            EXPECT_EQ(picture->type(), FLAC::Picture::FrontCover);
    };
    for (const auto &[storage, inBlock, inComment] : cases) {
        SCOPED_TRACE(storage.toInt());
        for (const bool isRemoved : {false, true}) {
            {
                const HRFSetting both(storageKey, 2);
                file.set(K::artwork, HRFSampleJPEG);
                expectPlaces(true, true);
            }
            const HRFSetting setting(storageKey, storage);
            file.set(K::artwork, isRemoved ? QVariant() : HRFSamplePNG);
            expectPlaces(inBlock && !isRemoved, inComment && !isRemoved);
            EXPECT_EQ(file.value(K::artwork).toByteArray(),
                      isRemoved ? QByteArray() : HRFSamplePNG);
        }
    }
}

TEST(VorbisRules, DoesNotCopyID3FieldsIntoANewComment)
{
    const HRFFormatFile file("no-comment.flac");
    const QByteArray tagged = HRFFormatFile("id3v2.flac").bytes();
    file.setBytes(tagged.first(tagged.indexOf("fLaC")) + file.bytes());
    file.set(K::album, u"An album"_s);
    EXPECT_EQ(file.text(K::album), u"An album"_s);
    EXPECT_EQ(file.text(K::title), u""_s);
    EXPECT_EQ(file.open()->framesCount(), 1);
    EXPECT_TRUE(FLAC::File(file.path().constData()).hasID3v2Tag());
}

TEST(VorbisRules, RefusesWhatAFLACBlockCannotHold)
{
    const QByteArray picture = HRFSamplePNG + QByteArray(20'000'000, 'x');
    const HRFFormatFile file("plain.flac");
    const QByteArray before = file.bytes();
    for (const int storage : {0, 1, 2}) {
        const HRFSetting setting(storageKey, storage);
        const auto result = file.trySet({{K::artwork, picture}});
        ASSERT_FALSE(result) << storage;
        EXPECT_TRUE(result.error().fullText().contains(u"16 MiB"_s)) << storage;
        EXPECT_TRUE(file.bytes() == before) << storage;
    }
}

TEST(VorbisRules, OpensNoSpeexStreamWithoutATag)
{
    const HRFFormatFile file("speex.spx");
    const QByteArray bytes = file.bytes();
    file.setBytes(bytes.first(bytes.indexOf("OggS", 4)));
    const auto engine = file.tryOpen();
    ASSERT_FALSE(engine);
    EXPECT_EQ(engine.error().code, HRFTagEngineErrorCode::unreadable);
}
