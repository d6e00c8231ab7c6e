// What every format must do alike. A format is a row; what differs by rule is a column.

#include "support/HRFTestFile.h"

#include <taglib/fileref.h>
#include <taglib/tpropertymap.h>

using namespace Qt::StringLiterals;
using K = HRFTagKey;

namespace {

struct Format
{
    const char *name;
    const char *fixture;
    QByteArray soundMark; ///< where the last part of the sound begins
    QString format;
    QString tagVersion; ///< once it has a tag
    int bitDepth = 0; ///< 0: none is reported
    int channels = 1; ///< as the file states; AAC in MP4 states 2 whatever the sound is
    HRFSettings::Values settings = {};

    bool isOnlyAPE() const { return tagVersion == u"APE"_s; } ///< which holds no pictures
    /// Stripping empties the ID3v2 tag only.
    bool keepsDIIN() const { return tagVersion.endsWith(u"DIIN"_s); }
};

void PrintTo(const Format &format, std::ostream *out)
{
    *out << format.fixture;
}

const QByteArray MPEG = "\xFF\xFB";
const QByteArray MP4 = "mdat";
const QByteArray FLAC = "\xFF\xF8";
const QByteArray Ogg = "OggS";
const QByteArray RIFF = "data";
const QByteArray AIFF = "SSND";
const QByteArray DSF = "data";
const QByteArray DSDIFF = "DSD ";
const QString layer3 = u"MPEG-1 layer 3"_s;
const QString v23 = u"ID3v2.3"_s;
const QString v24 = u"ID3v2.4"_s;
const QString andAPE = u"ID3v2.4, APE"_s;
const QString diin = u"ID3v2.4, DIIN"_s;
const QString info = u"ID3v2.4, INFO"_s;
const QString xiph = u"Vorbis"_s;

// clang-format off
const Format formats[] = {
    {"MP3", "plain.mp3", MPEG, layer3, v24},
    {"MP3ID3v23", "id3v23.mp3", MPEG, layer3, v24},
    {"MP3ID3v1", "id3v1.mp3", MPEG, layer3, v24},
    {"MP3ThreeTags", "id3v23-ape-id3v1.mp3", MPEG, layer3, v24},
    {"MP3To23Latin1", "plain.mp3", MPEG, layer3, v23, 0, 1, {{"ID3v2Version", 31}}},
    {"MP3To23UTF16", "plain.mp3", MPEG, layer3, v23, 0, 1, {{"ID3v2Version", 316}}},
    {"MP3To24Latin1", "plain.mp3", MPEG, layer3, v24, 0, 1, {{"ID3v2Version", 41}}},
    {"MP3To24UTF16", "plain.mp3", MPEG, layer3, v24, 0, 1, {{"ID3v2Version", 416}}},
    {"MP3To23Compatible", "plain.mp3", MPEG, layer3, v23, 0, 1,
     {{"ID3v2Version", 316}, {"iTunesID3v2Compatibility", true}}},
    {"MP3To24Compatible", "plain.mp3", MPEG, layer3, v24, 0, 1,
     {{"iTunesID3v2Compatibility", true}}},
    {"MP3AndAPE", "plain.mp3", MPEG, layer3, andAPE, 0, 1, HRFMPEGTags(true, false, true)},
    {"MP3OnlyAPE", "plain.mp3", MPEG, layer3, u"APE"_s, 0, 1, HRFMPEGTags(false, false, true)},
    {"MP4AAC", "aac.m4a", MP4, u"MP4 (AAC)"_s, u"MP4"_s, 16, 2},
    {"MP4ALAC", "alac.m4a", MP4, u"MP4 (ALAC)"_s, u"MP4"_s, 16},
    {"MP4Chapters", "chapters.m4b", MP4, u"MP4 (AAC)"_s, u"MP4"_s, 16, 2},
    {"MP4NoUdta", "no-udta.m4a", MP4, u"MP4 (AAC)"_s, u"MP4"_s, 16, 2},
    {"MP4Co64", "co64.m4a", MP4, u"MP4 (AAC)"_s, u"MP4"_s, 16, 2},
    {"FLAC", "plain.flac", FLAC, u"FLAC"_s, xiph, 16},
    {"FLACBehindID3v2", "id3v2.flac", FLAC, u"FLAC"_s, xiph, 16},
    {"FLACNoComment", "no-comment.flac", FLAC, u"FLAC"_s, xiph, 16},
    {"FLACCommentPicture", "comment-picture.flac", FLAC, u"FLAC"_s, xiph, 16},
    {"OggVorbis", "vorbis.ogg", Ogg, u"OGG Vorbis"_s, xiph},
    {"OggVorbisChained", "chained.ogg", Ogg, u"OGG Vorbis"_s, xiph},
    {"OggFLAC", "flac.oga", Ogg, u"OGG FLAC"_s, xiph, 16},
    {"OggFLACCommentLast", "flac-comment-last.ogg", Ogg, u"OGG FLAC"_s, xiph, 16},
    {"OggOpus", "opus.opus", Ogg, u"OGG Opus"_s, xiph},
    {"OggSpeex", "speex.spx", Ogg, u"OGG Speex"_s, xiph},
    {"WAV", "plain.wav", RIFF, u"WAVE"_s, info, 16},
    {"WAVBroadcast", "bext.wav", RIFF, u"WAVE"_s, info, 16},
    {"WAVTo23", "plain.wav", RIFF, u"WAVE"_s, u"ID3v2.3, INFO"_s, 16, 1, {{"ID3v2Version", 316}}},
    {"WAVOnlyID3", "id3-info.wav", RIFF, u"WAVE"_s, v24, 16, 1, {{"RIFF.INFO", false}}},
    {"WAVINFO", "info.wav", RIFF, u"WAVE"_s, info, 16},
    {"WAVID3INFO", "id3-info.wav", RIFF, u"WAVE"_s, info, 16},
    {"AIFF", "plain.aiff", AIFF, u"AIFF"_s, v24, 16},
    {"AIFFNotTo23", "plain.aiff", AIFF, u"AIFF"_s, v24, 16, 1, {{"ID3v2Version", 316}}},
    {"AIFFC", "sowt.aifc", AIFF, u"AIFF-C"_s, v24, 16},
    {"DSF", "dsf-channels2.dsf", DSF, u"DSD (SF)"_s, v24, 1, 2},
    {"DSFNotTo23", "dsf-channels2.dsf", DSF, u"DSD (SF)"_s, v24, 1, 2, {{"ID3v2Version", 316}}},
    {"DSDIFF", "plain.dff", DSDIFF, u"DSD (IFF)"_s, diin, 1, 2},
    {"DSDIFFNotTo23", "plain.dff", DSDIFF, u"DSD (IFF)"_s, diin, 1, 2, {{"ID3v2Version", 316}}},
    {"DSDIFFDIIN", "diin.dff", DSDIFF, u"DSD (IFF)"_s, diin, 1, 2},
    {"DSDIFFID3", "id3.dff", DSDIFF, u"DSD (IFF)"_s, diin, 1, 2},
    {"DSDIFFID3DIIN", "id3-diin.dff", DSDIFF, u"DSD (IFF)"_s, diin, 1, 2},
};
// clang-format on

/// A value that every format can hold; another one for every variant.
QVariant sample(K key, int variant)
{
    const HRFPropertyRow &row = HRFRowForKey(key);
    switch (row.type) {
    case HRFPropertyType::Data:
        return variant % 2 == 0 ? HRFSampleJPEG : HRFSamplePNG;
    case HRFPropertyType::Text:
        return u"%1 %2 /;,=äß"_s.arg(QLatin1StringView(row.name)).arg(variant);
    case HRFPropertyType::Date:
        return QDateTime(QDate(2001, 2, 3 + variant), QTime(4, 5, 6), Qt::UTC);
    case HRFPropertyType::Number:
        return key == K::year ? 1999LL + variant : qlonglong(key) + variant;
    default:
        return true;
    }
}

/// A text may read as empty where there is none.
QVariant normalized(const QVariant &value)
{
    return HRFTagValue::isNothing(value) ? QVariant() : value;
}

class Conformance : public testing::TestWithParam<Format>
{
protected:
    Conformance()
    {
        for (std::size_t i = 0; HRFPropertyRows[i].isTag; ++i)
            if (K(i) != K::artwork || !GetParam().isOnlyAPE())
                keys.push_back(K(i));
    }
    /// Whatever a test did, the sound is as it was. Pages of Ogg files may have new headers.
    void TearDown() override
    {
        const QByteArray &mark = GetParam().soundMark;
        const QByteArray old = HRFTestFile::fixture(GetParam().fixture).bytes;
        const QByteArray sound = old.sliced(old.lastIndexOf(mark) + (mark == Ogg ? 27 : 0), 100);
        EXPECT_EQ(file.bytes.count(sound), old.count(sound));
    }

    HRFTagValues allSamples(int variant) const
    {
        HRFTagValues values;
        for (const K key : keys)
            values.emplace_back(key, sample(key, variant));
        return values;
    }
    void expectValues(const HRFTagValues &values)
    {
        const auto engine = file.open();
        for (const auto &[key, value] : values)
            EXPECT_EQ(normalized(engine->valueForKey(key)), value) << HRFRowForKey(key).name;
    }

    /// Whether TagLib can put in what the engine is to leave alone. Its own save makes one kind of
    /// stream unreadable: it forgets that the comment was the last metadata block.
    static bool isWritableByTagLib()
    {
        return GetParam().name != std::string("OggFLACCommentLast") && !GetParam().isOnlyAPE();
    }

    const HRFSettings settings{GetParam().settings};
    std::vector<K> keys;
    HRFTestFile file = HRFTestFile::fixture(GetParam().fixture);
};

} // namespace

TEST_P(Conformance, TellsTheProperties)
{
    const Format &expected = GetParam();
    const auto engine = file.open(true);
    EXPECT_EQ(engine->format(), expected.format);
    EXPECT_EQ(engine->channels(), expected.channels);
    EXPECT_EQ(engine->channelMode(), expected.channels == 1 ? u"Mono"_s : u"Stereo"_s);
    EXPECT_EQ(engine->bitDepth(), expected.bitDepth == 0 ? HRFNumber() : expected.bitDepth);
    EXPECT_EQ(engine->isDRMProtected(), false);
    EXPECT_GT(engine->sampleRate().value_or(0), 0);
    EXPECT_TRUE(engine->bitRate() && engine->duration());
    if (expected.format == u"DSD (SF)"_s)
        return; // TagLib reads the properties of a DSF file in any case
    for (const K key : {K::bitRate, K::sampleRate, K::channels, K::duration, K::bitDepth})
        EXPECT_EQ(file.value(key), QVariant()) << HRFRowForKey(key).name;
}

TEST_P(Conformance, WritesChangesAndRemovesEveryTag)
{
    for (const K key : keys) {
        for (const QVariant &nothing :
             {QVariant(), QVariant::fromValue(nullptr), QVariant(sample(key, 0).metaType())}) {
            file.set(key, sample(key, 0));
            expectValues({{key, sample(key, 0)}});
            file.set(key, sample(key, 1));
            expectValues({{key, sample(key, 1)}});
            file.set(key, nothing);
            expectValues({{key, QVariant()}});
        }
    }
}

TEST_P(Conformance, SetsPairsInBothOrders)
{
    constexpr std::pair<K, K> pairs[] = {{K::trackNumber, K::trackTotal},
                                         {K::discNumber, K::discTotal},
                                         {K::movementNumber, K::movementTotal}};
    for (const auto &[number, total] : pairs) {
        for (const auto &[first, second] : {std::pair(number, total), std::pair(total, number)}) {
            SCOPED_TRACE(HRFRowForKey(first).name);
            file.set({{number, QVariant()}, {total, QVariant()}});
            file.set(first, 4LL);
            expectValues({{first, 4LL}, {second, QVariant()}});
            file.set(second, 12LL);
            expectValues({{first, 4LL}, {second, 12LL}});
            file.set(first, 0LL);
            expectValues({{first, QVariant()}, {second, 12LL}});
            file.set({{first, 5LL}, {second, QVariant()}});
            expectValues({{first, 5LL}, {second, QVariant()}});
        }
    }
}

TEST_P(Conformance, KeepsTextsAsTheyAre)
{
    const QString texts[] = {
        u"ÄÖÜ ŁÓDŹ Ελλάδα Россия 日本語 עברית"_s, u"\U0001F600 \U0001D11E \U00020000"_s,
        u"e\u0301 \u00E9 \u200F \uFEFFx"_s,       u" two  spaces \t and\nlines\r\nof text "_s,
        u"1/2; 3, 4 = \"5\" \\ (6) %25"_s,        QString(200'000, u'ж')};
    for (const QString &text : texts) {
        HRFTagValues values;
        for (const K key : {K::title, K::artist, K::comment, K::lyrics, K::work, K::mood, K::album,
                            K::genre, K::involvedPeopleList})
            values.emplace_back(key, text);
        file.set(values);
        expectValues(values);
    }
}

TEST_P(Conformance, KeepsOddTextsOrRefusesThem)
{
    const QString texts[] = {QString(u"nul\0inside"_s), QString(QChar(u'\0')), u"end\0"_s,
                             QString(QChar(0xD800)) + u"lone surrogate"_s, u"\uFFFF\u0001"_s};
    for (const QString &text : texts) {
        for (const K key : {K::title, K::comment, K::lyrics, K::mood, K::genre}) {
            const QByteArray old = file.bytes;
            if (file.trySet({{key, text}}))
                EXPECT_EQ(file.text(key), text) << HRFRowForKey(key).name;
            else
                EXPECT_TRUE(file.bytes == old) << HRFRowForKey(key).name;
        }
    }
}

TEST_P(Conformance, HoldsAnyPicture)
{
    if (GetParam().isOnlyAPE())
        return;
    for (const QByteArray &picture : {HRFSampleJPEG, HRFSamplePNG, HRFSampleGIF, "other"_ba}) {
        file.set(K::artwork, picture);
        expectValues({{K::artwork, picture}});
    }
}

TEST_P(Conformance, LeavesForeignFieldsAlone)
{
    if (!isWritableByTagLib())
        return;
    const TagLib::StringList foreign = TagLib::StringList("one").append("zwei \u00E4");
    {
        HRFNative<TagLib::FileRef> native(file);
        TagLib::PropertyMap properties = native->properties();
        properties.replace("FOREIGN", foreign);
        ASSERT_TRUE(native->setProperties(properties).isEmpty());
        native.save();
    }
    file.set(allSamples(0));
    HRFTagValues nothing;
    for (const K key : keys)
        nothing.emplace_back(key, QVariant());
    file.set(nothing);
    EXPECT_EQ(HRFNative<TagLib::FileRef>(file)->properties()["FOREIGN"], foreign);
}

TEST_P(Conformance, StripsEveryTag)
{
    const QVariant version = file.value(K::tagVersion);
    const QByteArray untouched = file.bytes;
    file.strip();
    const bool hadTag = version != file.value(K::tagVersion) || untouched.startsWith("ID3");
    EXPECT_EQ(file.bytes != untouched, hadTag);
    file.set(allSamples(0));
    expectValues(allSamples(0));
    EXPECT_EQ(file.text(K::tagVersion), GetParam().tagVersion);
    file.strip();
    const auto engine = file.open(true);
    for (const K key : keys) {
        const bool isKept = GetParam().keepsDIIN() && (key == K::artist || key == K::title);
        EXPECT_EQ(normalized(engine->valueForKey(key)), isKept ? sample(key, 0) : QVariant())
            << HRFRowForKey(key).name;
    }
    EXPECT_EQ(engine->tagVersion().value_or(QString()), GetParam().keepsDIIN() ? u"DIIN"_s : u""_s);
    EXPECT_EQ(engine->framesCount().value_or(0), 0);
    EXPECT_GT(engine->sampleRate().value_or(0), 0);
    const QByteArray stripped = file.bytes;
    file.strip();
    EXPECT_TRUE(file.bytes == stripped);
}

TEST_P(Conformance, WritesNothingWithoutAChange)
{
    file.set(K::title, u"A title"_s);
    const QByteArray before = file.bytes;
    file.set(K::title, u"A title"_s);
    EXPECT_TRUE(file.bytes == before);
}

INSTANTIATE_TEST_SUITE_P(Formats, Conformance, testing::ValuesIn(formats),
                         [](const auto &row) { return std::string(row.param.name); });

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
