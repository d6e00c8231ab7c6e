// What every format must do alike. A format is a row; what differs by rule is a column.

#include "formats/HRFSoundBytes.h"
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
    HRFContainer container;
    QString format;
    QString tagVersion; ///< once it has a tag
    int bitDepth = 0; ///< 0: none is reported
    int channels = 1; ///< as the file states; AAC in MP4 states 2 whatever the sound is
    HRFSettings::Values settings = {};

    bool isID3() const { return tagVersion.startsWith(u"ID3"_s); }
    bool isOnlyAPE() const { return tagVersion == u"APE"_s; } ///< which holds no pictures
    /// Stripping empties the ID3v2 tag only.
    bool keepsDIIN() const { return container == HRFContainer::DSDIFF; }
};

void PrintTo(const Format &format, std::ostream *out)
{
    *out << format.fixture;
}

using enum HRFContainer;
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
    {"WAVINFO", "info.wav", RIFF, u"WAVE"_s, info, 16},
    {"WAVID3INFO", "id3-info.wav", RIFF, u"WAVE"_s, info, 16},
    {"AIFF", "plain.aiff", AIFF, u"AIFF"_s, v24, 16},
    {"AIFFC", "sowt.aifc", AIFF, u"AIFF-C"_s, v24, 16},
    {"DSF", "dsf-channels2.dsf", DSF, u"DSD (SF)"_s, v24, 1, 2},
    {"DSDIFF", "plain.dff", DSDIFF, u"DSD (IFF)"_s, diin, 1, 2},
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

QVariant zeroOf(K key)
{
    switch (HRFRowForKey(key).type) {
    case HRFPropertyType::Data:
        return QByteArray();
    case HRFPropertyType::Number:
        return qlonglong(0);
    case HRFPropertyType::Boolean:
        return false;
    case HRFPropertyType::Date:
        return QVariant();
    default:
        return u""_s;
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
    /// Whatever a test did, the sound is as it was.
    void TearDown() override { EXPECT_TRUE(soundOf(file) == m_sound); }

    static QByteArray soundOf(const HRFTestFile &file)
    {
        return HRFSoundBytes(file.bytes, GetParam().container);
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

private:
    const QByteArray m_sound = soundOf(file);
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
    if (expected.container == DSF)
        return; // TagLib reads the properties of a DSF file in any case
    for (const K key : {K::bitRate, K::sampleRate, K::channels, K::duration, K::bitDepth})
        EXPECT_EQ(file.value(key), QVariant()) << HRFRowForKey(key).name;
}

TEST_P(Conformance, WritesChangesAndRemovesEveryTag)
{
    for (const K key : keys) {
        for (const QVariant &nothing : {QVariant(), QVariant::fromValue(nullptr), zeroOf(key)}) {
            file.set(key, sample(key, 0));
            expectValues({{key, sample(key, 0)}});
            file.set(key, sample(key, 1));
            expectValues({{key, sample(key, 1)}});
            file.set(key, nothing);
            expectValues({{key, QVariant()}});
        }
    }
}

TEST_P(Conformance, HoldsAllTagsAtOnce)
{
    HRFTagValues values = allSamples(0);
    file.set(values);
    expectValues(values);
    EXPECT_EQ(file.text(K::tagVersion), GetParam().tagVersion);
    for (std::size_t i = 0; i < values.size(); i += 5) {
        values[i].second = sample(values[i].first, 1);
        file.set({values[i]});
    }
    expectValues(values);
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

TEST_P(Conformance, HoldsAnyPicture)
{
    if (GetParam().isOnlyAPE())
        return;
    for (const QByteArray &picture : {HRFSampleJPEG, HRFSamplePNG, HRFSampleGIF, "other"_ba}) {
        file.set(K::artwork, picture);
        expectValues({{K::artwork, picture}});
        const auto pictures = HRFNative<TagLib::FileRef>(file)->complexProperties("PICTURE");
        ASSERT_EQ(pictures.size(), 1U);
        const TagLib::String type = pictures.front().value("mimeType").toString();
        EXPECT_TRUE(picture != HRFSampleJPEG || type == "image/jpeg");
        EXPECT_TRUE(picture != HRFSamplePNG || type == "image/png");
    }
}

TEST_P(Conformance, ReplacesTheFirstOfSeveralPictures)
{
    if (!isWritableByTagLib())
        return;
    TagLib::List<TagLib::VariantMap> pictures;
    for (const char *data : {"first", "second", "third"}) {
        TagLib::VariantMap picture;
        picture["data"] = TagLib::ByteVector(data);
        picture["mimeType"] = TagLib::String("image/png");
        pictures.append(picture);
    }
    {
        HRFNative<TagLib::FileRef> native(file);
        native->setComplexProperties("PICTURE", pictures);
        native.save();
    }
    expectValues({{K::artwork, "first"_ba}});
    file.set(K::artwork, HRFSamplePNG);
    expectValues({{K::artwork, HRFSamplePNG}});
    const auto kept = HRFNative<TagLib::FileRef>(file)->complexProperties("PICTURE");
    EXPECT_EQ(kept.size(), GetParam().isID3() ? 3U : 1U);
    EXPECT_EQ(kept.back().value("data").toByteVector() == "third", GetParam().isID3());
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
