// Files that are not what they should be, and values that hardly fit.

#include "support/HRFTestFile.h"

#include <QDir>

#include <random>

using namespace Qt::StringLiterals;
using K = HRFTagKey;

namespace {

std::vector<QByteArray> allFixtures()
{
    std::vector<QByteArray> names;
    const QDir folder(QString::fromLatin1(HRF_FIXTURES), u"*"_s, QDir::Name, QDir::Files);
    for (const QString &name : folder.entryList())
        if (!name.endsWith(u".md"_s))
            names.push_back(name.toLatin1());
    return names;
}

/// Saving keeps what was set, or fails and changes nothing.
void expectKeptOrRefused(HRFTestFile &file, const HRFTagValues &values)
{
    const QByteArray before = file.bytes;
    if (!file.tryOpen(true))
        return;
    if (!file.trySet(values)) {
        EXPECT_TRUE(file.bytes == before);
        return;
    }
    const auto written = file.tryOpen(true);
    ASSERT_TRUE(written);
    for (const auto &[key, value] : values)
        EXPECT_EQ((*written)->valueForKey(key), value);
}

class Damage : public testing::TestWithParam<QByteArray>
{
protected:
    HRFTestFile file = HRFTestFile::fixture(GetParam());
    const QByteArray bytes = file.bytes;
    const HRFTagValues values{{K::title, u"A title"_s}, {K::artwork, HRFSamplePNG}};
};

} // namespace

TEST_P(Damage, OfTruncatedFilesIsNotMadeWorse)
{
    constexpr qsizetype cuts = 60;
    for (qsizetype i = 0; i < cuts; ++i) {
        // Most of the structure is in front.
        const qsizetype length = i < cuts / 2 ? i * 8 : bytes.size() * (i - cuts / 2) * 2 / cuts;
        SCOPED_TRACE(length);
        file.bytes = bytes.left(length);
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
        file.bytes = QByteArray(bytes).replace(at, 1, &byte, 1);
        expectKeptOrRefused(file, values);
    }
}

INSTANTIATE_TEST_SUITE_P(Fixtures, Damage, testing::ValuesIn(allFixtures()), [](const auto &row) {
    return QByteArray(row.param).replace('-', "").replace('.', '_').toStdString();
});

TEST(WrongContents, AreNamedAsTheReason)
{
    const struct
    {
        const char *fixture, *fileType;
        QString reason;
    } cases[] = {{"adts.aac", "aac", u"an MP4 container"_s},
                 {"README.md", "mp3", u"MPEG audio or a tag"_s},
                 {"opus.opus", "ogg", u"an Ogg Vorbis or Ogg FLAC stream"_s},
                 {"vorbis.ogg", "opus", u"an Opus stream"_s},
                 {"vorbis.ogg", "spx", u"a Speex stream with a tag"_s},
                 {"flac.oga", "flac", u"a FLAC stream"_s},
                 {"plain.wav", "aiff", u"AIFF audio"_s},
                 {"plain.aiff", "wav", u"WAVE audio"_s},
                 {"plain.dff", "dsf", u"DSF audio"_s},
                 {"plain.aiff", "dff", u"DSDIFF audio"_s}};
    for (const auto &[fixture, fileType, reason] : cases) {
        HRFTestFile file = HRFTestFile::fixture(fixture, fileType);
        for (const QByteArray &contents :
             {file.bytes, QByteArray(), "no sound "_ba.repeated(500)}) {
            file.bytes = contents;
            EXPECT_EQ(HRFFailure(file.tryOpen()), u"It does not contain "_s + reason) << fileType;
        }
    }
}

constexpr const char *oneOfEach[] = {"plain.mp3", "aac.m4a",    "plain.flac",        "vorbis.ogg",
                                     "plain.wav", "plain.aiff", "dsf-channels1.dsf", "plain.dff"};

TEST(ExtremeValues, OfTextAreKeptOrRefused)
{
    const QString texts[] = {QString(u"nul\0inside"_s), QString(QChar(u'\0')), u"end\0"_s,
                             QString(QChar(0xD800)) + u"lone surrogate"_s, u"\uFFFF\u0001"_s};
    for (const char *fixture : oneOfEach) {
        for (const QString &text : texts) {
            for (const K key : {K::title, K::comment, K::lyrics, K::mood, K::genre}) {
                SCOPED_TRACE(fixture + std::to_string(&text - texts));
                HRFTestFile file = HRFTestFile::fixture(fixture);
                expectKeptOrRefused(file, {{key, text}});
            }
        }
    }
}

TEST(ExtremeValues, OfInvalidUtf8AreSurvived)
{
    for (const char *fixture : oneOfEach) {
        SCOPED_TRACE(fixture);
        HRFTestFile file = HRFTestFile::fixture(fixture);
        const QByteArray valid = u"Gültig!!"_s.toUtf8();
        file.set(K::copyright, QString::fromUtf8(valid));
        ASSERT_TRUE(file.bytes.contains(valid));
        file.bytes.replace(valid, "\xFF\xC0\xAF\xED\xA0\x80\xC3\xC3\xF8");
        expectKeptOrRefused(file, {{K::title, u"A title"_s}});
    }
}

TEST(ExtremeValues, OfPicturesAreKept)
{
    const QByteArray picture = HRFSampleJPEG + QByteArray(20'000'000, 'x');
    for (const char *fixture : oneOfEach) {
        if (fixture == std::string("plain.flac"))
            continue; // a FLAC block is smaller
        HRFTestFile file = HRFTestFile::fixture(fixture);
        file.set(K::artwork, picture);
        EXPECT_TRUE(file.value(K::artwork) == picture) << fixture;
    }
}
