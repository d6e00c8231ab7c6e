#include "mp4/MP4TestFile.h"

#include <gtest/gtest.h>

using K = HRFTagKey;
using namespace Qt::StringLiterals;

namespace {

enum class Outcome { unreadable, refused, saved };

/// Whether a comment of the given length can be saved. The audio of a saved file stays whole, and
/// other files stay as they are.
Outcome outcomeOfSaving(QByteArray file, qsizetype length = 2000)
{
    const QByteArray oldFile = file;
    const auto engine = openMP4(file);
    if (!engine)
        return Outcome::unreadable;
    engine->setValueForKey(QString(length, u'x'), K::comment);
    const auto updated = engine->updateFileWithError();
    if (!updated) {
        EXPECT_EQ(file, oldFile);
        EXPECT_FALSE(updated.error().recoverySuggestion.isEmpty());
        return Outcome::refused;
    }
    EXPECT_TRUE(file.contains(audio));
    EXPECT_EQ(openMP4(file)->valueForKey(K::comment), QString(length, u'x'));
    return Outcome::saved;
}

const QByteArray list = metaAtom(atom("ilst", {}));
const QByteArray name = atom("name", "abcd");
const QByteArray track = trackAtom(number32(0));

/// An index with one entry, which begins with the given numbers.
QByteArray fragmentIndex(char version, const QByteArray &numbers)
{
    constexpr quint32 sizesOfFragmentNumbers = 0b01'10'11; // less 1
    return atom("mfra",
                atom("tfra",
                     version + QByteArray(3, '\0') + number32(1) + number32(sizesOfFragmentNumbers)
                         + number32(1) + numbers + "aabbbcccc")
                    + atom("mfro", number32(0) + number32(0)));
}

} // namespace

TEST(MP4Check, RefusesWhatSavingWouldDamage)
{
    const struct
    {
        const char *name;
        QByteArray file;
        Outcome outcome;
    } cases[] = {
        {"no user data", atom("moov", track) + audio, Outcome::saved},
        {"no tags", atom("moov", track + atom("udta", name)) + audio, Outcome::saved},
        {"tags", atom("moov", track + atom("udta", list)) + audio, Outcome::saved},

        {"other handler", atom("moov", atom("udta", metaAtom(atom("ilst", {}), "mdta"))) + audio,
         Outcome::refused},
        {"keys",
         atom("moov", atom("udta", metaAtom(atom("keys", QByteArray(8, '\0')) + atom("ilst", {}))))
             + audio,
         Outcome::refused},
        {"keys of the movie",
         atom("moov", metaAtom(atom("ilst", {}), "mdta") + atom("udta", list)) + audio,
         Outcome::saved},

        {"open movie", audio + openAtom("moov", track + atom("udta", list)), Outcome::refused},
        {"open movie without tags", audio + openAtom("moov", track), Outcome::refused},
        {"open user data", audio + openAtom("moov", openAtom("udta", list)), Outcome::refused},
        {"open tags", audio + openAtom("moov", openAtom("udta", number32(0) + list.sliced(4))),
         Outcome::refused},
        {"open audio", atom("moov", atom("udta", list)) + audio + openAtom("mdat", "more"),
         Outcome::saved},

        {"long movie", longAtom("moov", track) + audio, Outcome::refused},
        {"long user data", atom("moov", longAtom("udta", name)) + audio, Outcome::refused},
        {"long movie with user data", longAtom("moov", atom("udta", name)) + audio, Outcome::saved},
        {"long atoms with tags", longAtom("moov", longAtom("udta", list) + track) + audio,
         Outcome::saved},
        {"long item",
         atom("moov", atom("udta", metaAtom(atom("ilst", longAtom("\251nam", dataAtom(1, "One"))))))
             + audio,
         Outcome::refused},

        {"zero behind user data", atom("moov", atom("udta", name + number32(0)) + track) + audio,
         Outcome::refused},
        {"zero behind user data at the end",
         atom("moov", track + atom("udta", list + number32(0))) + audio, Outcome::refused},
        {"item that runs past the tags",
         atom("moov", atom("udta", metaAtom(atom("ilst", number32(40) + "\251nam"))) + track)
             + audio,
         Outcome::refused},

        {"offsets without room",
         atom("moov", atom("trak", atom("stco", number32(0) + number32(9))) + track) + audio,
         Outcome::refused},
    };
    for (const auto &[name, file, outcome] : cases)
        EXPECT_EQ(outcomeOfSaving(fileType + file), outcome) << name;
}

TEST(MP4Check, RefusesToMoveAudioBeyondTheReachOfItsOffsets)
{
    const QByteArray free = atom("free", QByteArray(500, '\0'));
    const struct
    {
        quint32 offset;
        qsizetype length;
        Outcome outcome;
    } cases[] = {{0xFFFFFFF0, 2000, Outcome::refused},
                 {0xFFFFFFF0, 400, Outcome::saved},
                 {0xFFFF0000, 2000, Outcome::saved},
                 {0x80000000, 2000, Outcome::saved},
                 {1, 2000, Outcome::saved},
                 {0xFFFFFFFF, 400, Outcome::saved}};
    for (const auto &[offset, length, outcome] : cases) {
        const QByteArray movie = atom("moov",
                                      trackAtom(number32(1) + number32(offset))
                                          + atom("udta", metaAtom(atom("ilst", {}) + free)));
        EXPECT_EQ(outcomeOfSaving(fileType + movie + audio, length), outcome) << offset;
    }
}

TEST(MP4Check, RefusesToMoveFragmentsThatCannotBeCorrected)
{
    const QByteArray movie = atom(
        "moov", atom("udta", metaAtom(atom("ilst", {}) + atom("free", QByteArray(500, '\0')))));
    const QByteArray pinned =
        atom("moof", atom("traf", atom("tfhd", number32(1) + number32(1) + QByteArray(8, '\0'))));
    const QByteArray relative =
        atom("moof", atom("traf", atom("tfhd", number32(0x20000) + number32(1))));
    const struct
    {
        const char *name;
        QByteArray rest;
        Outcome moved;
    } cases[] = {
        {"one fragment", pinned + audio, Outcome::saved},
        {"two fragments", pinned + audio + pinned + audio, Outcome::refused},
        {"two relative fragments", relative + audio + relative + audio, Outcome::saved},
        {"damaged index", relative + audio + atom("mfra", number32(9)), Outcome::refused},
        {"index without room", relative + audio + fragmentIndex(0, number32(0)), Outcome::refused},
        {"index without reach",
         relative + audio + fragmentIndex(0, number32(0) + number32(0xFFFFFFF0)), Outcome::refused},
    };
    for (const auto &[name, rest, moved] : cases) {
        EXPECT_EQ(outcomeOfSaving(fileType + movie + rest), moved) << name;
        EXPECT_EQ(outcomeOfSaving(fileType + movie + rest, 400), Outcome::saved) << name;
    }
}

TEST(MP4Check, MovesTheIndexOfFragments)
{
    const QByteArray movie = fileType + atom("moov", track);
    const QByteArray fragment = atom("moof", {}) + audio;
    const quint32 place = quint32(movie.size());
    const struct
    {
        char version;
        QByteArray time;
        QByteArray offset; ///< less its last 32 bits
    } cases[] = {{0, number32(7), {}}, {1, number32(0) + number32(7), number32(0)}};
    for (const auto &[version, time, offset] : cases) {
        const auto indexOf = [&](quint32 moved) {
            return fragmentIndex(version, time + offset + number32(moved));
        };
        QByteArray file = movie + fragment + indexOf(place);
        const auto engine = openMP4(file);
        engine->setValueForKey(u"One"_s, K::title);
        ASSERT_TRUE(engine->updateFileWithError());
        const qsizetype moved = file.indexOf(fragment);
        EXPECT_GT(moved, place);
        EXPECT_TRUE(file.endsWith(indexOf(quint32(moved))));
    }
}
