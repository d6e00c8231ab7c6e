// What is particular to files of chunks: WAV, AIFF, DSDIFF and DSF.

#include "support/HRFTestBytes.h"
#include "support/HRFTestFile.h"

using namespace HRFTestBytes;
using namespace Qt::StringLiterals;
using K = HRFTagKey;

namespace {

/// What becomes of a file when its album is set, or its tags are removed.
struct Case
{
    QByteArray fileType;
    const char *name;
    QByteArray bytes;
    const char *reason = ""; ///< why it is refused; then nothing may change
    QByteArrayList kept = {}; ///< bytes that are still in the file, besides its sound
    QByteArrayList gone = {}; ///< bytes that are not in the file any more
    bool strips = false;
    qsizetype junk = 0; ///< bytes behind the form
};

const char *const brokenOff =
    "The file has audio behind its last chunk; its recording was broken off.";
const char *const truncated = "The file is truncated.";
const char *const tagCutOff = "Its ID3v2 tag is cut off; a part of it would be lost.";
const char *const tagsDiffer = "It has several ID3v2 tags that differ; one would be lost.";

/// A tag with a title and a frame that nobody knows.
const Frame foreign = {"XQZ9", "\0\1\2\xFF unknown"_ba};

QByteArray tag(const QByteArray &title)
{
    return ID3v2Tag(4, {{"TIT2", '\3' + title}, foreign});
}

/// How a format writes its chunks.
struct Layout
{
    QByteArray fileType;
    QByteArray audioName;
    QByteArray (*number)(quint64 number, int width);
    int width = 4; ///< of sizes
    const QByteArray plain = HRFTestFile::fixture("plain." + fileType).bytes;
    const qsizetype audioAt = plain.lastIndexOf(audioName);

    QByteArray size(qsizetype size) const { return number(quint64(size), width); }
    QByteArray chunk(const QByteArray &name, const QByteArray &contents) const
    {
        return name + size(contents.size()) + contents + QByteArray(contents.size() % 2, '\0');
    }
    QByteArray withFormSize(QByteArray bytes) const
    {
        return bytes.replace(4, width, size(bytes.size() - 4 - width));
    }
    /// The plain fixture with more chunks.
    QByteArray file(const QByteArray &chunks) const { return withFormSize(plain + chunks); }
    QByteArray fileWithAudioSize(qsizetype bytes) const
    {
        return QByteArray(plain).replace(audioAt + 4, width, size(bytes));
    }
    /// A tag that ends before it is over, and something behind it.
    QByteArray cutOffTag() const
    {
        return chunk("ID3 ", tag("Cut").first(18)) + chunk("NOTE", QByteArray(90, 'x'));
    }
};

const Layout wav = {"wav", "data", &littleEndian};
const Layout aiff = {"aiff", "SSND", [](quint64 n, int width) { return bigEndian(n, width); }};
const Layout dff = {"dff", "DSD ", aiff.number, 8};

// clang-format off

/// What WAV and AIFF files have in common.
std::vector<Case> casesOf(const Layout &form)
{
    const QByteArray type = form.fileType;
    const QByteArray first = form.chunk("ID3 ", tag("First"));
    const QByteArray more = form.chunk("id3 ", ID3v2Tag(4, {{"TPE1", "\3Second"}}));
    const QByteArray junk(300, '\1');
    return {
        {type, "OddChunk", form.file(form.chunk("LIST", "adtl odd!")), "", {"adtl odd!\0"_ba}},
        {type, "NoSoundSize", form.fileWithAudioSize(0), brokenOff},
        {type, "SmallSize", form.fileWithAudioSize(4000), brokenOff},
        {type, "LargeSize", form.fileWithAudioSize(20000), truncated},
        {type, "ShortJunk", form.plain + junk, "", {junk}, {}, false, junk.size()},
        {type, "LongJunk", form.plain + junk.repeated(30), brokenOff},
        {type, "MoreFrames", form.file(first + more), "", {"First", "Second", foreign.content}},
        {type, "EqualTags", form.file(first + form.chunk("id3 ", tag("First"))), "", {"First"}},
        {type, "OtherFrames", form.file(first + form.chunk("id3 ", tag("Second"))), tagsDiffer},
        {type, "CutOff", form.file(form.cutOffTag()), tagCutOff},
        {type, "NoTagInChunk", form.file(form.chunk("ID3 ", "tagged\0\0\0\1else"_ba)),
         "Its ID3v2 tag is damaged; a part of it would be lost."},
    };
}

QByteArray info(const QByteArray &fields)
{
    return wav.chunk("LIST", "INFO" + fields);
}

const QByteArray artist1 = wav.chunk("IART", "First\0"_ba);
const QByteArray artist2 = wav.chunk("IART", "Second\0"_ba);
const QByteArray titleField = wav.chunk("INAM", "Title\0"_ba);
const QByteArray twoLists = wav.file(info(artist1) + info(artist2));

std::vector<Case> WAVCases()
{
    const char *const rf64 = "RF64 files are not supported";
    const char *const twice = "It has an INFO field twice; one of them would be lost.";
    const char *const damaged = "Its INFO list is damaged; a part of it would be lost.";
    const auto file = [](const QByteArray &fields) { return wav.file(info(fields)); };
    const auto artist = [&](const QByteArray &text) { return file(wav.chunk("IART", text)); };
    return {
        {"wav", "RF64", "RF64" + wav.plain.sliced(4), rf64},
        {"wav", "BW64", "BW64" + wav.plain.sliced(4), rf64},
        {"wav", "RIFX", "RIFX" + wav.plain.sliced(4), "It does not contain WAVE audio"},
        {"wav", "UTF8", artist("Bj\xC3\xB6rk\0"_ba), "", {"Bj\xC3\xB6rk"}},
        {"wav", "Latin1", artist("Bj\xF6rk\0"_ba), "", {"Bj\xC3\xB6rk"}},
        {"wav", "Latin1End", artist("Caf\xE9\0"_ba), "", {"Caf\xC3\xA9"}},
        {"wav", "Windows1252", artist("\x80uro\0"_ba), "", {"\xE2\x82\xACuro"}},
        {"wav", "BehindNUL", artist("Art\0\xFF\xFF"_ba), "", {"Art"}},
        {"wav", "TwoLists", wav.file(info(artist1) + info(titleField)), "", {"First", "Title"}},
        {"wav", "EqualFields", file(artist1 + artist1), "", {"First"}},
        {"wav", "TwoFields", file(artist1 + artist2), twice},
        {"wav", "TwoFieldsInTwoLists", twoLists, twice},
        {"wav", "Unpadded", file("IART" + wav.size(3) + "Art" + titleField), "", {"Art", "Title"}},
        {"wav", "LongField", file(artist1 + "INAM" + wav.size(900) + "Title"), damaged},
        {"wav", "ZerosInList", file(artist1 + QByteArray(20, '\0')), "", {"First"}},
    };
}

const QByteArray diin = dff.chunk("DIIN", dff.chunk("EMID", bigEndian(4) + "Mark")
                                              + dff.chunk("DITI", bigEndian(4) + "Song")
                                              + dff.chunk("DIAR", bigEndian(6) + "Artist"));
const QByteArray inner = dff.chunk("ID3 ", tag("Inner"));
const QByteArray root = dff.chunk("ID3 ", tag("Root"));
const QByteArray tagFirst = dff.withFormSize(QByteArray(dff.plain).insert(16, root) + diin);
const QByteArray longText = dff.file(dff.chunk("DIIN", dff.chunk("DITI", bigEndian(4000) + "Song")));

/// A file with a tag as the last chunk of its properties, and more at its end.
QByteArray tagInPROP(const QByteArray &chunks)
{
    const qsizetype PROP = dff.plain.indexOf("PROP");
    const QByteArray size = dff.size(dff.audioAt - PROP - 12 + inner.size());
    return dff.withFormSize(
        QByteArray(dff.plain).insert(dff.audioAt, inner).replace(PROP + 4, 8, size) + chunks);
}

std::vector<Case> DSDIFFCases()
{
    const char *const several = "It has several ID3v2 tags; all but one would be lost.";
    const char *const unknown = "It does not contain DSDIFF audio";
    const QByteArray endless = dff.chunk("PROP", "SND loop" + bigEndian(quint64(-12), 8));
    return {
        {"dff", "TagFirst", tagFirst, "", {"Root", "Song", "Artist"}},
        {"dff", "InPROP", tagInPROP(diin), "", {"Inner", foreign.content}},
        {"dff", "RootAndPROP", tagInPROP(root), several},
        {"dff", "TwoTags", dff.file(inner + root), several},
        {"dff", "TextTooLong", longText, "", {"DITI"}},
        {"dff", "CutOff", dff.file(dff.cutOffTag()), tagCutOff},
        {"dff", "Trailing", dff.plain + "JUNK", "", {"JUNK"}, {}, false, 4},
        {"dff", "OtherContainer", "XXXX" + dff.plain.sliced(4), unknown},
        {"dff", "OtherForm", QByteArray(dff.plain).replace(12, 4, "AIFF"), unknown},
        {"dff", "Endless", dff.file(endless), "Its chunks are damaged"},
    };
}

/// Files whose tags are removed.
std::vector<Case> strippedCases()
{
    const QByteArray twoTags = aiff.chunk("ID3 ", tag("Inner")) + aiff.chunk("id3 ", tag("Root"));
    return {
        {"wav", "TwoFields", twoLists, "", {}, {"First", "Second"}, true},
        {"wav", "NoSize", wav.fileWithAudioSize(0), brokenOff, {}, {}, true},
        {"aiff", "TwoTags", aiff.file(twoTags), "", {}, {"Inner", "Root"}, true},
        {"dff", "TagFirst", tagFirst, "", {"Mark"}, {"ID3 ", "Root"}, true},
        {"dff", "RootAndPROP", tagInPROP(diin + root), "", {"Mark"}, {"Inner", "Root"}, true},
        {"dff", "TwoTags", dff.file(inner + root), "", {}, {"Inner", "Root"}, true},
        {"dff", "TextTooLong", longText, "", {"DITI"}, {}, true},
    };
}

const QByteArray plainDSF = HRFTestFile::fixture("dsf-channels2.dsf").bytes;

/// A DSF file whose header says what it is told to.
QByteArray dsf(qsizetype fileSize, qsizetype tagOffset, const QByteArray &tail = "",
               qsizetype audioSize = 140)
{
    const auto number = [](qsizetype value) { return littleEndian(quint64(value), 8); };
    return QByteArray(plainDSF)
        .replace(12, 16, number(fileSize) + number(tagOffset))
        .replace(84, 8, number(audioSize))
        + tail;
}

std::vector<Case> DSFCases()
{
    const char *const damaged = "Its header does not fit its contents.";
    const QByteArray id3 = tag("Title");
    const qsizetype tagStart = plainDSF.size();
    const qsizetype end = tagStart + id3.size();
    const QByteArray tagged = dsf(end, tagStart, id3);
    const QByteArray tagInAudio = dsf(tagStart, 100).replace(100, 10, "ID3\4\0\0\0\0\0\0"_ba);
    return {
        {"dsf", "Tag", tagged, "", {"Title", foreign.content}},
        {"dsf", "Tag", tagged, "", {}, {"Title", foreign.content}, true},
        {"dsf", "Behind", tagged + "TRAILING", "", {"Title", "TRAILING"}, {}, false, 8},
        {"dsf", "Behind", tagged + "TRAILING", "", {"TRAILING"}, {"Title"}, true, 8},
        {"dsf", "TagInAudio", tagInAudio, damaged},
        {"dsf", "TagInAudio", tagInAudio, damaged, {}, {}, true},
        {"dsf", "NoTagThere", dsf(tagStart + 8, tagStart, "whatever"), damaged},
        {"dsf", "SizeInAudio", dsf(200, 0), damaged},
        {"dsf", "SizeNegative", dsf(-5, 0), "It does not contain DSF audio"},
        {"dsf", "AudioNegative", dsf(tagStart, 0, "", -5), damaged},
        {"dsf", "AudioCutOff", dsf(tagStart, 0, "", 9000), truncated},
        {"dsf", "TagCutOff", dsf(end - 5, tagStart, id3), tagCutOff},
    };
}

// clang-format on

QByteArray soundOf(const QByteArray &fileType)
{
    for (const Layout &form : {wav, aiff, dff})
        if (form.fileType == fileType)
            return form.plain.sliced(form.audioAt + 4 + form.width);
    return plainDSF.sliced(92);
}

/// The size of the form as its header says.
qint64 formSize(const QByteArray &fileType, const QByteArray &bytes)
{
    if (fileType == "dsf")
        return littleEndianAt(bytes, 12, 8);
    if (fileType == "dff")
        return bigEndianAt(bytes, 4, 8) + 12;
    return (fileType == "wav" ? littleEndianAt(bytes, 4) : bigEndianAt(bytes, 4)) + 8;
}

void check(const Case &test)
{
    SCOPED_TRACE(test.fileType.toStdString() + test.name + (test.strips ? " stripped" : ""));
    HRFTestFile file{test.fileType, test.bytes};
    QByteArray reason;
    if (const auto engine = file.tryOpen(true); !engine) {
        reason = engine.error().description.toUtf8();
    } else {
        const auto done = test.strips ? file.tryStrip() : file.trySet({{K::album, u"New"_s}});
        reason = done ? "" : done.error().recoverySuggestion.toUtf8();
    }
    EXPECT_EQ(reason, test.reason);
    if (!reason.isEmpty()) {
        EXPECT_EQ(file.bytes, test.bytes);
        return;
    }
    for (const QByteArray &kept : test.kept + QByteArrayList{soundOf(test.fileType)})
        EXPECT_TRUE(file.bytes.contains(kept)) << kept;
    for (const QByteArray &gone : test.gone)
        EXPECT_FALSE(file.bytes.contains(gone)) << gone;
    EXPECT_EQ(file.text(K::album), test.strips ? u""_s : u"New"_s);
    EXPECT_EQ(formSize(test.fileType, file.bytes), file.bytes.size() - test.junk);
    if (test.fileType == "dsf") {
        EXPECT_EQ(littleEndianAt(file.bytes, 20, 8), test.strips ? 0 : plainDSF.size());
    }
}

} // namespace

TEST(IFFFiles, AreKeptWholeOrRefused)
{
    for (const auto &cases :
         {casesOf(wav), casesOf(aiff), WAVCases(), DSDIFFCases(), strippedCases(), DSFCases()})
        std::ranges::for_each(cases, check);
}

TEST(IFFRules, RefuseMoreThan4GiB)
{
    constexpr qsizetype size = 0xFFFFFFF0;
    for (const Layout &form : {wav, aiff}) {
        const QByteArray old = form.fileWithAudioSize(size - form.audioAt - 8);
        HRFTestFile file{form.fileType, old, {}, size};
        EXPECT_TRUE(HRFFailure(file.trySet({{K::album, u"New"_s}})).contains(u"4 GiB"_s));
        EXPECT_EQ(file.bytes, old);
    }
}

TEST(IFFRules, PreferID3)
{
    const std::tuple<const char *, QString, K, QString> cases[] = {
        {"info.wav", u"INFO"_s, K::title, u"INFO title"_s},
        {"id3-info.wav", u"ID3v2.3, INFO"_s, K::title, u"ID3 title"_s},
        {"id3-info.wav", u"ID3v2.3, INFO"_s, K::trackNumber, u"3"_s},
        {"diin.dff", u"DIIN"_s, K::title, u"DIIN title"_s},
        {"id3-diin.dff", u"ID3v2.4, DIIN"_s, K::title, u"ID3 title"_s},
        {"id3-diin.dff", u"ID3v2.4, DIIN"_s, K::artist, u"DIIN artist"_s}};
    for (const auto &[fixture, version, key, text] : cases) {
        HRFTestFile file = HRFTestFile::fixture(fixture);
        EXPECT_EQ(file.text(K::tagVersion), version) << fixture;
        EXPECT_EQ(file.text(key), text) << fixture;
    }
    EXPECT_EQ(HRFTestFile::fixture("sowt.aifc").text(K::format), u"AIFF"_s);
}

TEST(WAVRules, KeepTheTagsThatAreSwitchedOn)
{
    const HRFSettings noID3({{"RIFF.ID3v2", false}});
    HRFTestFile file = HRFTestFile::fixture("id3-info.wav");
    const QByteArray old = file.bytes;
    EXPECT_FALSE(file.trySet({{K::lyrics, u"not for an INFO list"_s}}));
    EXPECT_EQ(file.bytes, old);
    file.set(K::title, u"New"_s);
    EXPECT_EQ(file.text(K::tagVersion), u"INFO"_s);
    file.bytes = old;
    const HRFSettings noInfo({{"RIFF.INFO", false}});
    EXPECT_FALSE(file.trySet({{K::title, u"New"_s}}));
    EXPECT_TRUE(file.bytes == old);
    file.strip();
    EXPECT_EQ(file.text(K::tagVersion), u""_s);
}

TEST(DSDIFFRules, WriteLatin1Texts)
{
    HRFTestFile file = HRFTestFile::fixture("diin.dff");
    file.set(K::title, u"Älter"_s);
    EXPECT_TRUE(file.bytes.contains(dff.chunk("DITI", bigEndian(5) + "\xC4lter")));
    EXPECT_EQ(file.text(K::artist), u"DIIN artist"_s);
    file.set(K::title, u"Название"_s);
    EXPECT_TRUE(file.bytes.contains("\xC4lter") && file.bytes.contains("Название"));
}

TEST(DSDIFFRules, LeaveNoEmptyChunks)
{
    for (const char *fixture : {"plain.dff", "diin.dff", "id3.dff", "id3-diin.dff"}) {
        HRFTestFile file = HRFTestFile::fixture(fixture);
        const auto engine = file.open();
        for (const QString &title : {u"Neu"_s, QString(), u"Wieder"_s, QString()}) {
            engine->setTitle(title);
            engine->setArtist(title);
            EXPECT_EQ(HRFFailure(engine->updateFileWithError()), u""_s) << fixture;
            EXPECT_EQ(file.text(K::artist), title) << fixture;
        }
        EXPECT_TRUE(file.bytes == HRFTestFile::fixture("plain.dff").bytes) << fixture;
    }
}

TEST(DSFRules, NameTheChannelTypes)
{
    const QString modes[] = {u"Mono"_s,       u"Stereo"_s,     u"3 Channels"_s,   u"Quadraphonic"_s,
                             u"4 Channels"_s, u"5 Channels"_s, u"5.1 Surround"_s, u""_s};
    for (int type = 1; type <= 8; ++type) {
        HRFTestFile file = HRFTestFile::fixture("dsf-channels" + QByteArray::number(type) + ".dsf");
        EXPECT_EQ(file.open(true)->channelMode().value_or(QString()), modes[type - 1]) << type;
    }
}

TEST(AIFFRules, ReadTheFirstOfTwoTags)
{
    HRFTestFile file = HRFTestFile::fixture("plain.aiff");
    file.set(K::title, u"one"_s);
    file.bytes += QByteArray(file.bytes.sliced(file.bytes.indexOf("ID3 ")));
    file.bytes.replace(4, 4, bigEndian(quint64(file.bytes.size() - 8)));
    EXPECT_EQ(file.text(K::title), u"one"_s);
    file.set(K::artist, u"two"_s);
    EXPECT_EQ(file.bytes.count("ID3 "), 1);
}
