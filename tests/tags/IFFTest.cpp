// What is particular to files of chunks: WAV, AIFF, DSDIFF and DSF.

#include "support/HRFTestBytes.h"
#include "support/HRFTestFile.h"

#include <taglib/dsdiffdiintag.h>
#include <taglib/dsdifffile.h>
#include <taglib/id3v2tag.h>
#include <taglib/infotag.h>
#include <taglib/wavfile.h>

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
    QByteArrayList kept = {}; ///< bytes that are still in the file
    QByteArrayList gone = {}; ///< bytes that are not in the file any more
    bool strips = false;
};

void PrintTo(const Case &test, std::ostream *out)
{
    *out << test.fileType << ' ' << test.name;
}

std::string nameOf(const testing::TestParamInfo<Case> &info)
{
    return info.param.fileType.toStdString() + info.param.name
        + (info.param.strips ? "Stripped" : "");
}

const char *const brokenOff =
    "The file has audio behind its last chunk; its recording was broken off.";
const char *const truncated = "The file is truncated.";
const char *const tagCutOff = "Its ID3v2 tag is cut off; a part of it would be lost.";
const char *const tagsDiffer = "It has several ID3v2 tags that differ; one would be lost.";

/// Bytes that no parser takes for a chunk.
QByteArray audio(qsizetype size = 16000)
{
    return QByteArray(size, '\x96');
}

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
    QByteArray form;
    QByteArray head; ///< what the form begins with
    QByteArray audioName;
    QByteArray (*size)(quint64 number);

    QByteArray chunk(const QByteArray &name, const QByteArray &contents) const
    {
        return name + size(quint64(contents.size())) + contents
            + QByteArray(contents.size() % 2, '\0');
    }
    QByteArray file(const QByteArray &chunks) const { return chunk(form, head + chunks); }
    QByteArray sound(qsizetype length = 16000) const { return chunk(audioName, audio(length)); }
    /// A tag that ends before it is over, and something behind it.
    QByteArray cutOffTag() const
    {
        return chunk("ID3 ", tag("Cut").first(18)) + chunk("NOTE", QByteArray(90, 'x'));
    }
};

const Layout wav = {"wav", "RIFF",
                    "WAVEfmt \x10\0\0\0\1\0\1\0\x40\x1F\0\0\x80\x3E\0\0\2\0\x10\0"_ba, "data",
                    [](quint64 number) { return littleEndian(number); }};
const Layout aiff = {"aiff", "FORM",
                     "AIFFCOMM\0\0\0\x12\0\1\0\0\x1F\x40\0\x10\x40\x0B\xFA\0\0\0\0\0\0\0"_ba,
                     "SSND", [](quint64 number) { return bigEndian(number); }};
const Layout dff = {"dff", "FRM8", "DSD ", "DSD ",
                    [](quint64 number) { return bigEndian(number, 8); }};

// clang-format off

/// What WAV and AIFF files have in common.
std::vector<Case> casesOf(const Layout &form)
{
    const QByteArray type = form.fileType;
    const QByteArray sound = form.sound();
    const QByteArray tags = sound + form.chunk("ID3 ", tag("First"));
    const QByteArray more = form.chunk("id3 ", ID3v2Tag(4, {{"TPE1", "\3Second"}}));
    const QByteArray broken = form.file(form.audioName + form.size(0) + audio());
    const QByteArray junk(300, '\1');
    return {
        {type, "Plain", form.file(sound)},
        {type, "OtherChunk", form.file(form.chunk("LIST", "adtlmark") + sound), "", {"adtlmark"}},
        {type, "OddEnd", form.file(form.sound(15999))},
        {type, "NoSoundSize", broken, brokenOff},
        {type, "NoSizes", QByteArray(broken).replace(4, 4, form.size(0)), brokenOff},
        {type, "SmallSize", form.file(form.audioName + form.size(4000) + audio()), brokenOff},
        {type, "LargeSize", form.file(form.audioName + form.size(20000) + audio()), truncated},
        {type, "ShortJunk", form.file(sound) + junk, "", {junk}},
        {type, "LongJunk", form.file(sound) + junk.repeated(30), brokenOff},
        {type, "MoreFrames", form.file(tags + more), "", {"First", "Second", foreign.content}},
        {type, "EqualTags", form.file(tags + form.chunk("id3 ", tag("First"))), "", {"First"}},
        {type, "OtherFrames", form.file(tags + form.chunk("id3 ", tag("Second"))), tagsDiffer},
        {type, "CutOff", form.file(sound + form.cutOffTag()), tagCutOff},
        {type, "NoTagInChunk", form.file(sound + form.chunk("ID3 ", "tagged\0\0\0\1else"_ba)),
         "Its ID3v2 tag is damaged; a part of it would be lost."},
    };
}

QByteArray field(const char *name, const QByteArray &text)
{
    return wav.chunk(name, text);
}

QByteArray info(const QByteArray &fields)
{
    return wav.chunk("LIST", "INFO" + fields);
}

const QByteArray artist1 = field("IART", "First\0"_ba);
const QByteArray artist2 = field("IART", "Second\0"_ba);
const QByteArray titleField = field("INAM", "Title\0"_ba);
const QByteArray twoLists = wav.file(info(artist1) + wav.sound() + info(artist2));

std::vector<Case> WAVCases()
{
    const QByteArray firstTag = wav.chunk("ID3 ", tag("First"));
    const QByteArray secondTag = wav.chunk("ID3 ", tag("Second"));
    const char *const rf64 = "RF64 files are not supported";
    const char *const twice = "It has an INFO field twice; one of them would be lost.";
    const char *const damaged = "Its INFO list is damaged; a part of it would be lost.";
    const QByteArray plain = wav.file(wav.sound()).sliced(4);
    const auto file = [](const QByteArray &fields) { return wav.file(wav.sound() + info(fields)); };
    const QByteArray unpadded = "IART" + littleEndian(3) + "Art" + titleField;
    return {
        {"wav", "RF64", "RF64" + plain, rf64},
        {"wav", "BW64", "BW64" + plain, rf64},
        {"wav", "RIFX", "RIFX" + plain, "It does not contain WAVE audio"},
        {"wav", "SameTag", wav.file(wav.sound() + firstTag + secondTag), tagsDiffer},
        {"wav", "UTF8", file(field("IART", "Bj\xC3\xB6rk\0"_ba)), "", {"Bj\xC3\xB6rk"}},
        {"wav", "Latin1", file(field("IART", "Bj\xF6rk\0"_ba)), "", {"Bj\xC3\xB6rk"}},
        {"wav", "Latin1End", file(field("IART", "Caf\xE9\0"_ba)), "", {"Caf\xC3\xA9"}},
        {"wav", "Windows1252", file(field("IART", "\x80uro\0"_ba)), "", {"\xE2\x82\xACuro"}},
        {"wav", "BehindNUL", file(field("IART", "Art\0\xFF\xFF"_ba)), "", {"Art"}},
        {"wav", "TwoLists", wav.file(info(artist1) + wav.sound() + info(titleField)), "",
         {"First", "Title"}},
        {"wav", "EqualFields", file(artist1 + artist1), "", {"First"}},
        {"wav", "TwoFields", file(artist1 + artist2), twice},
        {"wav", "TwoFieldsInTwoLists", twoLists, twice},
        {"wav", "Unpadded", file(unpadded), "", {"Art", "Title"}},
        {"wav", "LongField", file(artist1 + "INAM" + littleEndian(900) + "Title"), damaged},
        {"wav", "ZerosInList", file(artist1 + QByteArray(20, '\0')), "", {"First"}},
    };
}

QByteArray properties(const QByteArray &more = "")
{
    return dff.chunk("FVER", "\1\5\0\0"_ba)
        + dff.chunk("PROP", "SND " + dff.chunk("FS  ", bigEndian(2822400))
                                + dff.chunk("CHNL", "\0\2SLFTSRGT"_ba) + more);
}

QByteArray diinField(const char *name, const QByteArray &value)
{
    return dff.chunk(name, bigEndian(quint64(value.size())) + value);
}

const QByteArray dsd = dff.sound();
const QByteArray diin = dff.chunk(
    "DIIN", diinField("EMID", "Mark") + diinField("DITI", "Song") + diinField("DIAR", "Artist"));
const QByteArray inner = dff.chunk("ID3 ", tag("Inner"));
const QByteArray root = dff.chunk("ID3 ", tag("Root"));
const QByteArray tagFirst = dff.file(root + properties() + diin + dsd);
const QByteArray both = dff.file(properties(inner) + diin + dsd + root);
const QByteArray two = dff.file(properties() + dsd + inner + root);
const QByteArray longText = dff.chunk("DIIN", dff.chunk("DITI", bigEndian(4000) + "Song"));

std::vector<Case> DSDIFFCases()
{
    const char *const several = "It has several ID3v2 tags; all but one would be lost.";
    const char *const unknown = "It does not contain DSDIFF audio";
    const QByteArray plain = properties() + dsd;
    const QByteArray endless = dff.chunk("PROP", "SND loop" + bigEndian(quint64(-12), 8));
    return {
        {"dff", "Plain", dff.file(plain)},
        {"dff", "TagFirst", tagFirst, "", {"Root", "Song", "Artist"}},
        {"dff", "InPROP", dff.file(properties(inner) + diin + dsd), "", {"Inner", foreign.content}},
        {"dff", "RootAndPROP", both, several},
        {"dff", "TwoTags", two, several},
        {"dff", "TextTooLong", dff.file(properties() + longText + dsd), "", {longText}},
        {"dff", "CutOff", dff.file(plain + dff.cutOffTag()), tagCutOff},
        {"dff", "Trailing", dff.file(plain) + "JUNK", "", {"JUNK"}},
        {"dff", "OddEnd", dff.file(properties() + dff.sound(15999)).chopped(1)},
        {"dff", "OtherContainer", "XXXX" + dff.file(plain).sliced(4), unknown},
        {"dff", "OtherForm", dff.chunk("FRM8", "AIFF" + plain), unknown},
        {"dff", "Endless", dff.file(endless + dsd), "Its chunks are damaged"},
    };
}

/// Files whose tags are removed.
std::vector<Case> strippedCases()
{
    const QByteArray twoTags =
        aiff.sound() + aiff.chunk("ID3 ", tag("Inner")) + aiff.chunk("id3 ", tag("Root"));
    return {
        {"wav", "TwoFields", twoLists, "", {}, {"First", "Second"}},
        {"wav", "NoSize", wav.file("data" + littleEndian(0) + audio()), brokenOff},
        {"aiff", "TwoTags", aiff.file(twoTags), "", {}, {"Inner", "Root"}},
        {"dff", "TagFirst", tagFirst, "", {"Mark"}, {"ID3 ", "Root"}},
        {"dff", "TagInPROP", dff.file(diin + properties(inner) + dsd), "", {"Mark"}, {"Inner"}},
        {"dff", "RootAndPROP", both, "", {"Mark"}, {"Inner", "Root"}},
        {"dff", "TwoTags", two, "", {}, {"Inner", "Root"}},
        {"dff", "TextTooLong", dff.file(properties() + longText + dsd), "", {longText}},
    };
}

constexpr qint64 tagStart = 28 + 52 + 12 + 8192;

/// A DSF file whose header says what it is told to.
QByteArray dsf(qint64 fileSize, qint64 tagOffset, const QByteArray &tail = "",
               qint64 audioSize = 12 + 8192)
{
    QByteArray format;
    for (const unsigned int number : {1U, 0U, 2U, 2U, 2822400U, 1U})
        format += littleEndian(number);
    const auto number = [](qint64 value) { return littleEndian(quint64(value), 8); };
    return "DSD " + number(28) + number(fileSize) + number(tagOffset) + "fmt " + number(52) + format
        + number(32768) + littleEndian(4096) + littleEndian(0) + "data" + number(audioSize)
        + audio(8192) + tail;
}

std::vector<Case> DSFCases(bool strips)
{
    const char *const damaged = "Its header does not fit its contents.";
    const QByteArray id3 = tag("Title");
    const qint64 end = tagStart + id3.size();
    const QByteArrayList titles = {"Title", foreign.content};
    const QByteArrayList kept = strips ? QByteArrayList() : titles;
    const QByteArrayList gone = strips ? titles : QByteArrayList();
    const QByteArrayList behind = kept + QByteArrayList{"TRAILING"};
    return {
        {"dsf", "NoTag", dsf(tagStart, 0)},
        {"dsf", "Tag", dsf(end, tagStart, id3), "", kept, gone},
        {"dsf", "TagInAudio", dsf(tagStart, 200), damaged},
        {"dsf", "NoTagAtOffset", dsf(tagStart + 8, tagStart, "whatever"), damaged},
        {"dsf", "SizeZero", dsf(0, 0), damaged},
        {"dsf", "SizeInAudio", dsf(4000, 0), damaged},
        {"dsf", "SizeNegative", dsf(-5, 0), "It does not contain DSF audio"},
        {"dsf", "NoAudioSize", dsf(tagStart, 0, "", 0), damaged},
        {"dsf", "AudioNegative", dsf(tagStart, 0, "", -5), damaged},
        {"dsf", "AudioCutOff", dsf(tagStart, 0, "", 9000), truncated},
        {"dsf", "Trailing", dsf(tagStart, 0, "TRAILING"), "", {"TRAILING"}},
        {"dsf", "BehindTag", dsf(end, tagStart, id3 + "TRAILING"), "", behind, gone},
        {"dsf", "TagCutOff", dsf(end - 5, tagStart, id3), tagCutOff},
    };
}

// clang-format on

std::vector<Case> allCases()
{
    std::vector<Case> all = strippedCases();
    std::ranges::copy(DSFCases(true), std::back_inserter(all));
    for (Case &test : all)
        test.strips = true;
    for (const auto &cases :
         {casesOf(wav), casesOf(aiff), WAVCases(), DSDIFFCases(), DSFCases(false)})
        std::ranges::copy(cases, std::back_inserter(all));
    return all;
}

/// The form is as large as its header says.
void expectWholeForm(const Case &test, const QByteArray &bytes)
{
    const int junk = int(bytes.endsWith("JUNK")) * 4 + int(bytes.endsWith("TRAILING")) * 8;
    if (test.fileType == "dff") {
        EXPECT_EQ(bigEndianAt(bytes, 4, 8), bytes.size() - junk - 12);
    } else if (test.fileType == "dsf") {
        EXPECT_EQ(littleEndianAt(bytes, 12, 8), bytes.size() - junk);
        EXPECT_EQ(littleEndianAt(bytes, 20, 8), test.strips ? 0 : tagStart);
    }
}

class IFFFiles : public testing::TestWithParam<Case>
{
};

struct NativeTexts
{
    TagLib::String id3, other;
};

NativeTexts nativeTitles(HRFTestFile &file)
{
    if (file.fileType == "wav") {
        HRFNative<TagLib::RIFF::WAV::File> native(file);
        return {native->ID3v2Tag()->title(), native->InfoTag()->title()};
    }
    HRFNative<TagLib::DSDIFF::File> native(file);
    return {native->ID3v2Tag()->title(), native->DIINTag()->title()};
}

} // namespace

TEST_P(IFFFiles, AreKeptWholeOrRefused)
{
    const Case &test = GetParam();
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
    for (const QByteArray &kept : test.kept)
        EXPECT_TRUE(file.bytes.contains(kept)) << kept;
    for (const QByteArray &gone : test.gone)
        EXPECT_FALSE(file.bytes.contains(gone)) << gone;
    EXPECT_EQ(file.bytes.count('\x96'), test.bytes.count('\x96'));
    EXPECT_EQ(file.text(K::album), test.strips ? u""_s : u"New"_s);
    expectWholeForm(test, file.bytes);
}

INSTANTIATE_TEST_SUITE_P(Cases, IFFFiles, testing::ValuesIn(allCases()), nameOf);

TEST(IFFRules, RefuseMoreThan4GiB)
{
    constexpr qint64 size = 0xFFFFFFF0;
    for (const Layout &form : {wav, aiff}) {
        QByteArray old = form.file(form.audioName);
        old += form.size(quint64(size - old.size() - 4));
        HRFTestFile file{form.fileType, old, {}, size};
        EXPECT_TRUE(HRFFailure(file.trySet({{K::album, u"New"_s}})).contains(u"4 GiB"_s));
        EXPECT_EQ(file.bytes, old);
    }
}

TEST(IFFRules, PreferID3AndWriteBoth)
{
    const std::tuple<const char *, QString, QString, K, QString> cases[] = {
        {"plain.wav", u""_s, u""_s, K::trackNumber, u""_s},
        {"info.wav", u"INFO"_s, u"INFO title"_s, K::trackNumber, u"3"_s},
        {"id3-info.wav", u"ID3v2.3, INFO"_s, u"ID3 title"_s, K::trackNumber, u"3"_s},
        {"plain.dff", u""_s, u""_s, K::artist, u""_s},
        {"diin.dff", u"DIIN"_s, u"DIIN title"_s, K::artist, u"DIIN artist"_s},
        {"id3-diin.dff", u"ID3v2.4, DIIN"_s, u"ID3 title"_s, K::artist, u"DIIN artist"_s}};
    for (const auto &[fixture, version, title, second, secondText] : cases) {
        SCOPED_TRACE(fixture);
        HRFTestFile file = HRFTestFile::fixture(fixture);
        EXPECT_EQ(file.text(K::tagVersion), version);
        EXPECT_EQ(file.text(K::title), title);
        EXPECT_EQ(file.text(second), secondText);
        file.set(K::title, u"Neü"_s);
        EXPECT_EQ(nativeTitles(file).id3, L"Ne\u00FC");
        EXPECT_EQ(nativeTitles(file).other, L"Ne\u00FC");
        file.set(K::title, QVariant());
        EXPECT_TRUE(nativeTitles(file).id3.isEmpty() && nativeTitles(file).other.isEmpty());
        EXPECT_EQ(file.text(second), secondText);
    }
    EXPECT_EQ(HRFTestFile::fixture("sowt.aifc").text(K::format), u"AIFF"_s);
}

TEST(WAVRules, LeaveTheTotalToID3)
{
    HRFTestFile file = HRFTestFile::fixture("info.wav");
    file.set(K::trackTotal, 12LL);
    HRFNative<TagLib::RIFF::WAV::File> native(file);
    EXPECT_EQ(native->ID3v2Tag()->frameList("TRCK").front()->toString(), "3/12");
    EXPECT_EQ(native->InfoTag()->fieldText("ITRK"), "3");
}

TEST(WAVRules, KeepTheTagsThatAreSwitchedOn)
{
    const std::tuple<bool, bool, QString> cases[] = {
        {true, true, u"ID3v2.4, INFO"_s}, {true, false, u"ID3v2.4"_s}, {false, true, u"INFO"_s}};
    for (const auto &[id3, info, version] : cases) {
        const HRFSettings settings({{"RIFF.ID3v2", id3}, {"RIFF.INFO", info}});
        HRFTestFile file = HRFTestFile::fixture("id3-info.wav");
        file.set(K::title, u"New"_s);
        EXPECT_EQ(file.text(K::tagVersion), version);
    }
    const HRFSettings noID3({{"RIFF.ID3v2", false}});
    HRFTestFile file = HRFTestFile::fixture("id3-info.wav");
    const QByteArray old = file.bytes;
    EXPECT_FALSE(file.trySet({{K::lyrics, u"not for an INFO list"_s}}));
    const HRFSettings noInfo({{"RIFF.INFO", false}});
    EXPECT_FALSE(file.trySet({{K::title, u"New"_s}}));
    EXPECT_TRUE(file.bytes == old);
    file.strip();
    EXPECT_EQ(file.text(K::tagVersion), u""_s);
}

TEST(WAVRules, WriteTheVersionThatTheUserWants)
{
    const HRFSettings settings({{"ID3v2Version", 316}});
    for (const auto &[fixture, version] : {std::pair("plain.wav", u"ID3v2.3, INFO"_s),
                                           {"plain.aiff", u"ID3v2.4"_s},
                                           {"dsf-channels1.dsf", u"ID3v2.4"_s},
                                           {"plain.dff", u"ID3v2.4"_s}}) {
        HRFTestFile file = HRFTestFile::fixture(fixture);
        file.set({{K::title, u"Ж"_s}, {K::mood, u"calm"_s}});
        EXPECT_EQ(file.text(K::tagVersion), version) << fixture;
        EXPECT_EQ(file.text(K::mood), u"calm"_s) << fixture;
    }
}

TEST(DSDIFFRules, WriteTexts)
{
    for (const QByteArray &more : {""_ba, diin, dff.chunk("DIIN", diinField("EMID", "odd"))}) {
        HRFTestFile file{"dff", dff.file(properties() + more + dsd)};
        file.set(K::title, u"Other"_s);
        EXPECT_TRUE(file.bytes.contains(diinField("DITI", "Other")));
        EXPECT_EQ(file.text(K::artist), more == diin ? u"Artist"_s : u""_s);
        file.set(K::title, u"Название"_s); // which DIIN cannot hold
        EXPECT_EQ(nativeTitles(file).other, "Other");
        EXPECT_TRUE(file.bytes.contains("Название"));
    }
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
