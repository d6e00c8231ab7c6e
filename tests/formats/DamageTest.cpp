// Files that are not what they should be, and values that hardly fit.

#include "formats/HRFFormatFile.h"

#include <QDir>
#include <taglib/fileref.h>
#include <taglib/tpropertymap.h>

#include <random>

using namespace Qt::StringLiterals;
using K = HRFTagKey;

namespace {

std::vector<std::string> allFixtures()
{
    std::vector<std::string> names;
    const QDir folder(QString::fromLatin1(HRF_FIXTURES), u"*"_s, QDir::Name, QDir::Files);
    for (const QString &name : folder.entryList())
        if (!name.endsWith(u".md"_s))
            names.push_back(name.toStdString());
    return names;
}

/// Saving keeps what was set, or fails and changes nothing.
void expectKeptOrRefused(const HRFFormatFile &file, const HRFTagValues &values)
{
    const QByteArray before = file.bytes();
    if (!file.tryOpen(true))
        return;
    if (!file.trySet(values)) {
        EXPECT_TRUE(file.bytes() == before);
        return;
    }
    const auto written = file.tryOpen(true);
    ASSERT_TRUE(written);
    for (const auto &[key, value] : values)
        EXPECT_EQ((*written)->valueForKey(key), value);
}

class Damage : public ::testing::TestWithParam<std::string>
{
protected:
    HRFFormatFile file{GetParam().c_str()};
    const QByteArray bytes = file.bytes();
    const HRFTagValues values{{K::title, u"A title"_s}, {K::artwork, HRFSamplePNG}};
};

} // namespace

TEST_P(Damage, OfTruncatedFilesIsNotMadeWorse)
{
    constexpr int cuts = 60;
    for (int i = 0; i < cuts; ++i) {
        // Most of the structure is in front.
        const qsizetype length = i < cuts / 2 ? i * 8 : bytes.size() * (i - cuts / 2) * 2 / cuts;
        SCOPED_TRACE(length);
        file.setBytes(bytes.left(length));
        expectKeptOrRefused(file, values);
    }
}

TEST_P(Damage, OfSingleBytesIsNotMadeWorse)
{
    std::minstd_rand random(4711);
    for (int i = 0; i < 100; ++i) {
        const qsizetype at = qsizetype(random()) % std::min<qsizetype>(bytes.size(), 2000);
        const char byte = i % 2 == 0 ? '\xFF' : char(random() & 0xFF);
        SCOPED_TRACE(at);
        file.setBytes(QByteArray(bytes).replace(at, 1, &byte, 1));
        expectKeptOrRefused(file, values);
    }
}

INSTANTIATE_TEST_SUITE_P(Fixtures, Damage, ::testing::ValuesIn(allFixtures()), [](const auto &row) {
    return QString::fromStdString(row.param).remove(u'-').replace(u'.', u'_').toStdString();
});

TEST(WrongContents, AreNamedAsTheReason)
{
    const char *const fileTypes[] = {"mp3", "mp2", "m4a",  "mp4",  "aac",  "flac", "ogg", "oga",
                                     "spx", "wav", "opus", "aiff", "aifc", "dsf",  "dff"};
    EXPECT_EQ(HRFFormatFile("README.md", "txt").tryOpen().error().code,
              HRFTagEngineErrorCode::noEngine);
    for (const char *fileType : fileTypes) {
        const HRFFormatFile file("README.md", fileType);
        for (const QByteArray &contents : {QByteArray(), QByteArray("no sound ").repeated(500)}) {
            file.setBytes(contents);
            const auto engine = file.tryOpen();
            ASSERT_FALSE(engine) << fileType;
            EXPECT_EQ(engine.error().code, HRFTagEngineErrorCode::unreadable) << fileType;
            EXPECT_TRUE(engine.error().fullText().contains(u"It does not contain"_s)) << fileType;
        }
    }
}

TEST(WrongContents, OfAnotherFormatAreNotTaken)
{
    const struct
    {
        const char *fixture, *fileType;
        QString reason;
    } cases[] = {{"adts.aac", "aac", u"an MP4 container"_s},
                 {"adts.aac", "adts", u"an MP4 container"_s},
                 {"opus.opus", "ogg", u"an Ogg Vorbis or Ogg FLAC stream"_s},
                 {"vorbis.ogg", "opus", u"an Opus stream"_s},
                 {"vorbis.ogg", "spx", u"a Speex stream"_s},
                 {"flac.oga", "flac", u"a FLAC stream"_s},
                 {"plain.wav", "aiff", u"AIFF audio"_s},
                 {"plain.aiff", "wav", u"WAVE audio"_s},
                 {"plain.dff", "dsf", u"DSF audio"_s},
                 {"plain.aiff", "dff", u"DSDIFF audio"_s}};
    for (const auto &[fixture, fileType, reason] : cases) {
        const auto engine = HRFFormatFile(fixture, fileType).tryOpen();
        ASSERT_FALSE(engine) << fixture << ' ' << fileType;
        EXPECT_EQ(engine.error().code, HRFTagEngineErrorCode::unreadable);
        EXPECT_TRUE(engine.error().fullText().contains(reason)) << fixture << ' ' << fileType;
    }
}

constexpr const char *oneOfEach[] = {"plain.mp3", "aac.m4a",    "plain.flac",        "vorbis.ogg",
                                     "plain.wav", "plain.aiff", "dsf-channels1.dsf", "plain.dff"};

TEST(ExtremeValues, OfTextAreKeptOrRefused)
{
    const QString texts[] = {QString(u"nul\0inside"_s), QString(QChar(u'\0')), u"end\0"_s,
                             QString(QChar(0xD800)) + u"lone surrogate"_s, u"\uFFFF\u0001"_s};
    for (const char *fixture : oneOfEach)
        for (const QString &text : texts)
            for (const K key : {K::title, K::comment, K::lyrics, K::mood, K::genre}) {
                SCOPED_TRACE(fixture + std::to_string(&text - texts));
                expectKeptOrRefused(HRFFormatFile(fixture), {{key, text}});
            }
}

TEST(ExtremeValues, OfInvalidUtf8AreSurvived)
{
    for (const char *fixture : oneOfEach) {
        SCOPED_TRACE(fixture);
        const HRFFormatFile file(fixture);
        const QByteArray valid = u"Gültig!!"_s.toUtf8();
        file.set(K::copyright, QString::fromUtf8(valid));
        QByteArray bytes = file.bytes();
        ASSERT_TRUE(bytes.contains(valid));
        file.setBytes(bytes.replace(valid, "\xFF\xC0\xAF\xED\xA0\x80\xC3\xC3\xF8"));
        expectKeptOrRefused(file, {{K::title, u"A title"_s}});
    }
}

TEST(ExtremeValues, OfPicturesAreKept)
{
    const QByteArray picture = HRFSampleJPEG + QByteArray(20'000'000, 'x');
    for (const char *fixture : oneOfEach) {
        if (fixture == std::string("plain.flac"))
            continue; // a FLAC block is smaller
        const HRFFormatFile file(fixture);
        file.set(K::artwork, picture);
        EXPECT_TRUE(file.value(K::artwork) == picture) << fixture;
    }
}

TEST(ExtremeValues, OfFieldCountsAreKept)
{
    for (const char *fixture : {"plain.mp3", "aac.m4a", "plain.flac", "vorbis.ogg", "plain.aiff"}) {
        const HRFFormatFile file(fixture);
        TagLib::PropertyMap fields;
        for (int i = 0; i < 3000; ++i)
            fields.insert(TagLib::String("FOREIGN") + TagLib::String::number(i), {"value"});
        {
            TagLib::FileRef native(file.path().constData());
            native.setProperties(fields);
            ASSERT_TRUE(native.save());
        }
        file.set(K::title, u"A title"_s);
        EXPECT_EQ(file.text(K::title), u"A title"_s) << fixture;
        fields.insert("TITLE", {"A title"});
        EXPECT_TRUE(TagLib::FileRef(file.path().constData(), false).properties().contains(fields))
            << fixture;
    }
}
