#include "tags/HRFEngineClass.h"
#include "xiph/XiphFiles.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace XiphFiles;
using testing::HasSubstr;

namespace {

QVariant valueIn(const Container &container, const QByteArray &comment, HRFTagKey key)
{
    const auto engine =
        open(*container.engineClass, std::make_shared<QByteArray>(container.file(comment)));
    return engine ? (*engine)->valueForKey(key) : QVariant(u"not opened"_s);
}

} // namespace

TEST(VorbisSave, KeepsEntriesAsTheyAre)
{
    const QByteArray entries[] = {"ARTIST=Bj\xF6rk",
                                  "title=Two",
                                  "noequals",
                                  "",
                                  "=nameless",
                                  "BAD\xC3\xA9KEY=value",
                                  "TIL~DE=value",
                                  "EMPTY=",
                                  "METADATA_BLOCK_PICTURE=!!!!",
                                  "METADATA_BLOCK_PICTURE=AAAA",
                                  "COVERART="};
    for (const Container &container : containers()) {
        for (const QByteArray &entry : entries) {
            const QByteArray old = comment({"TITLE=One", entry, "ARTIST=Last"}, "\1rest");
            const auto [file, error] = save(*container.engineClass, container.file(old));
            EXPECT_EQ(error, QString()) << container.name;
            const QByteArray expected =
                comment({"TITLE=One", entry, "ARTIST=Last", "ALBUM=New"}, "\1rest");
            EXPECT_TRUE(file.contains(expected)) << container.name << ' ' << entry.constData();
        }
    }
}

TEST(VorbisSave, ReplacesOnlyTheFieldsThatChange)
{
    const struct
    {
        QList<QByteArray> old;
        Change change;
        QList<QByteArray> expected;
    } cases[] = {
        {{"album=\xE4", "ALBUM=", "Title=x"}, setAlbum, {"Title=x", "ALBUM=New"}},
        {{"ALBUM=a", "album=b", "X=y"},
         [](HRFTagEngine &engine) { engine.setValueForKey({}, HRFTagKey::album); },
         {"X=y"}},
        {{"METADATA_BLOCK_PICTURE=!", "X=y", "COVERART=!"},
         [](HRFTagEngine &engine) { engine.setValueForKey({}, HRFTagKey::artwork); },
         {"X=y"}},
        {{"ALBUM=a", "X"}, strip, {}},
    };
    for (const Container &container : containers()) {
        for (const auto &[old, change, expected] : cases) {
            const auto [file, error] =
                save(*container.engineClass, container.file(comment(old, "\1")), change);
            EXPECT_EQ(error, QString()) << container.name;
            EXPECT_TRUE(file.contains(container.prefix + comment(expected))) << container.name;
        }
    }
}

TEST(VorbisSave, ShowsLatin1)
{
    for (const Container &container : containers()) {
        const QByteArray bytes = comment({"ARTIST=Bj\xF6rk", "TITLE=\xC3\xB6"}, "\1");
        EXPECT_EQ(valueIn(container, bytes, HRFTagKey::artist), u"Björk"_s) << container.name;
        EXPECT_EQ(valueIn(container, bytes, HRFTagKey::title), u"ö"_s) << container.name;
    }
}

TEST(VorbisSave, RefusesADamagedComment)
{
    const QByteArray whole = comment({"TITLE=One", "ARTIST=Keep"});
    const QByteArray damaged[] = {comment({"ARTIST=Keep"}, "\1", 5000),
                                  comment({"ARTIST=Keep"}, "\1", 2), whole.chopped(1),
                                  whole.first(12)};
    for (const Container &container : containers()) {
        for (const QByteArray &bytes : damaged) {
            const QByteArray old = container.file(bytes);
            if (container.name == std::string("Speex")) {
                EXPECT_FALSE(open(*container.engineClass, std::make_shared<QByteArray>(old)));
                continue;
            }
            const auto [file, error] = save(*container.engineClass, old);
            EXPECT_THAT(error.toStdString(), HasSubstr("tag is damaged")) << container.name;
            EXPECT_EQ(file, old) << container.name;
            const Saved stripped = save(*container.engineClass, old, strip);
            EXPECT_EQ(stripped.error, QString()) << container.name;
            EXPECT_FALSE(stripped.file.contains("Keep")) << container.name;
        }
    }
}

TEST(VorbisSave, KeepsWhatFollowsTheEntries)
{
    const QByteArray hidden = comment({"TITLE=One", "ARTIST=Keep"}, "\1", 1);
    for (const Container &container : containers()) {
        const auto [file, error] = save(*container.engineClass, container.file(hidden));
        EXPECT_EQ(error, QString()) << container.name;
        EXPECT_TRUE(file.contains("ARTIST=Keep")) << container.name;
    }
}

TEST(VorbisSave, StripsEverythingButForeignData)
{
    const struct
    {
        const char *container;
        QByteArray rest;
        QByteArray expected;
    } cases[] = {{"Opus", "\1binary", "\1binary"},
                 {"Opus", QByteArray("\0binary", 7), ""},
                 {"Opus", "", ""},
                 {"Vorbis", "\1junk", "\1"},
                 {"FLAC", "\1junk", ""},
                 {"Ogg FLAC", "\1junk", ""},
                 {"Speex", "\1junk", ""}};
    for (const auto &[name, rest, expected] : cases) {
        const Container format = container(name);
        const auto [file, error] =
            save(*format.engineClass, format.file(comment({"TITLE=One"}, rest)), strip);
        EXPECT_EQ(error, QString()) << name;
        const QByteArray empty = comment({}, expected);
        if (name == std::string("FLAC"))
            EXPECT_TRUE(file.contains(flacBlock(4, empty)));
        else if (name == std::string("Ogg FLAC"))
            EXPECT_EQ(pages(file).at(1).packets.front(), flacBlock(4, empty, true));
        else
            EXPECT_EQ(pages(file).at(1).packets.front(), format.prefix + empty) << name;
    }
}
