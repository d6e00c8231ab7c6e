#include "document/HRFArrayController.h"

#include "kit/HRFUserDefaults.h"
#include "store/HRFAttributeManager.h"
#include "store/HRFMainContext.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"
#include "store/HRFObjectStore.h"
#include "store/HRFSystemFile.h"
#include "support/HRFTestApplication.h"
#include "support/HRFTestFile.h"

#include <random>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using Values = QHash<QString, QVariant>;

class HRFArrayControllerTest : public HRFApplicationTest
{
protected:
    HRFArrayControllerTest()
        : context(HRFObjectModel::named(u"Lirra"_s),
                  *HRFObjectStore::open(path(u"list.sqlite"_s), HRFObjectModel::named(u"Lirra"_s),
                                        HRFObjectStore::Migrates::Yes,
                                        HRFObjectStore::Durability::Session))
    {
        HRFUserDefaults::standard().setFilePath(path(u"lirra.ini"_s));
        list = newList();
    }
    ~HRFArrayControllerTest() override { HRFUserDefaults::standard().setFilePath({}); }

    std::unique_ptr<HRFArrayController> newList()
    {
        auto controller = std::make_unique<HRFArrayController>(context);
        const auto note = [this](const QString &event) { return [=, this] { events += event; }; };
        QObject::connect(controller.get(), &HRFArrayController::arrangementDidChange, note(u"A"_s));
        QObject::connect(controller.get(), &HRFArrayController::selectionDidChange, note(u"S"_s));
        return controller;
    }

    HRFMetaFile *add(const Values &tags)
    {
        auto *file = context.newObject<HRFMetaFile>();
        file->tags().setValuesForKeysWithDictionary(tags);
        return file;
    }
    void addTitles(const QStringList &titles)
    {
        for (const QString &title : titles)
            add({{u"title"_s, title}});
        context.processPendingChanges();
        events.clear();
    }
    void filter(const QString &text)
    {
        const HRFAttributeManager::Attributes attributes{
            &attribute(u"MetaTags"_s, u"title"_s), &attribute(u"MetaTags"_s, u"artist"_s),
            &attribute(u"MetaTags"_s, u"year"_s), &attribute(u"SystemFile"_s, u"fileName"_s)};
        list->setFilter(HRFRecordFilterForWords(text, attributes));
    }
    const HRFAttributeDescription &attribute(const QString &entity, const QString &name)
    {
        return *context.model()->entityNamed(entity)->attributeNamed(name);
    }
    void select(const QStringList &titles)
    {
        HRFArrayController::Records records;
        for (HRFMetaFile *file : list->arrangedObjects())
            if (titles.contains(title(*file)))
                records.insert(records.begin(), file);
        list->setSelectedObjects(records);
        events.clear();
    }

    static QString title(const HRFMetaFile &file)
    {
        return file.tags().valueForKey(u"title"_s).toString();
    }
    static QString titles(const HRFArrayController::Records &records)
    {
        QStringList texts;
        for (const HRFMetaFile *file : records)
            texts.append(title(*file));
        return texts.join(u' ');
    }
    QString shown() const { return titles(list->arrangedObjects()); }
    QString selected() const { return titles(list->selectedObjects()); }

    HRFMainContext context;
    std::unique_ptr<HRFArrayController> list;
    QString events; ///< A for a change of the arrangement, S for one of the selection
};

TEST_F(HRFArrayControllerTest, SortsByTheValuesOfColumns)
{
    const auto day = [](int number) { return QDate(2020, 1, number).startOfDay(Qt::UTC); };
    add({{u"title"_s, u"a"_s}, {u"artist"_s, u"Track 10"_s}, {u"trackNumber"_s, 10}})
        ->setFileURL(u"file:///z/a.mp3"_s);
    add({{u"title"_s, u"b"_s}, {u"trackNumber"_s, 9}, {u"releaseTime"_s, day(9)}})
        ->setFileURL(u"file:///y/b.mp3"_s);
    add({{u"title"_s, u"c"_s}, {u"artist"_s, u"track 2"_s}, {u"isPodcast"_s, true}})
        ->setFileURL(u"file:///Y/c.mp3"_s);
    add({{u"title"_s, u"d"_s}, {u"artist"_s, u"TRACK 2"_s}, {u"releaseTime"_s, day(10)}})
        ->setFileURL(u"file:///x/d.mp3"_s);
    add({{u"title"_s, u"e"_s}, {u"artist"_s, u"Émile"_s}, {u"trackNumber"_s, 10}})
        ->setFileURL(u"file:///z/e.mp3"_s);
    context.processPendingChanges();

    const struct
    {
        HRFSortDescriptors descriptors;
        QString titles;
    } rows[] = {
        {{{u"tags.title"_s, false}}, u"e d c b a"_s},
        {{{u"tags.artist"_s}}, u"e c d a b"_s},
        {{{u"tags.artist"_s, false}}, u"b a c d e"_s},
        {{{u"tags.trackNumber"_s}}, u"b a e c d"_s},
        {{{u"tags.trackNumber"_s, false}, {u"tags.artist"_s}}, u"c d e a b"_s},
        {{{u"tags.trackNumber"_s}, {u"tags.artist"_s, false}}, u"b a e c d"_s},
        {{{u"tags.releaseTime"_s}, {u"tags.title"_s, false}}, u"b d e c a"_s},
        {{{u"tags.isPodcast"_s}}, u"c a b d e"_s},
        {{{u"fileInfo.filePath"_s}}, u"d b c a e"_s},
        {{{u"no.such"_s}, {u"tags.nonsense"_s}, {u"tags"_s}, {u"tags.artist"_s}}, u"e c d a b"_s},
        {{}, u"a b c d e"_s},
    };
    for (const auto &row : rows) {
        list->setSortDescriptors(row.descriptors);
        EXPECT_EQ(shown(), row.titles);
    }
}

TEST_F(HRFArrayControllerTest, PutsNewRecordsWhereSortingWould)
{
    const HRFSortDescriptors orders[] = {
        {},
        {{u"tags.artist"_s}, {u"tags.trackNumber"_s, false}},
        {{u"tags.trackNumber"_s, false}, {u"tags.artist"_s, false}},
    };
    std::mt19937 random(1);
    const auto text = [&] { return random() % 5 ? QString::number(random() % 7) : QString(); };
    for (const HRFSortDescriptors &order : orders) {
        list->setSortDescriptors(order);
        for (int round = 0; round < 6; ++round) {
            for (int i = 0; i < 25; ++i)
                add({{u"artist"_s, text()}, {u"trackNumber"_s, int(random() % 4)}});
            context.processPendingChanges();
            const HRFArrayController::Records merged = list->arrangedObjects();
            list->rearrangeObjects();
            EXPECT_EQ(list->arrangedObjects(), merged);
        }
    }
    EXPECT_THAT(list->arrangedObjects(), SizeIs(450));
}

TEST_F(HRFArrayControllerTest, FindsWordsInTheTextsShown)
{
    add({{u"title"_s, u"a"_s}, {u"artist"_s, u"Beyoncé Knowles"_s}, {u"year"_s, 2003}});
    add({{u"title"_s, u"b"_s}, {u"artist"_s, u"BEYONCE\u0301"_s}});
    add({{u"title"_s, u"c"_s}, {u"artist"_s, u"Ёлка が"_s}, {u"album"_s, u"Beyonce"_s}});
    add({{u"title"_s, u"d"_s}})->setFileURL(u"file:///a/x:y.mp3"_s);
    context.processPendingChanges();
    const struct
    {
        QString words;
        QString titles;
    } rows[] = {
        {u"beyonce"_s, u"a b"_s},
        {u"BEYONCÉ"_s, u"a b"_s},
        {u" knowles  yon "_s, u"a"_s},
        {u"beyonce 2003"_s, u"a"_s},
        {u"beyonce knowlesa"_s, u""_s},
        {u"ab"_s, u""_s},
        {u"елка"_s, u"c"_s},
        {u"か"_s, u""_s},
        {u"x/y.MP3"_s, u"d"_s},
        {u" \t"_s, u"a b c d"_s},
    };
    for (const auto &row : rows) {
        filter(row.words);
        EXPECT_EQ(shown(), row.titles) << row.words.toStdString();
    }
    EXPECT_FALSE(list->hasFilter());
}

TEST_F(HRFArrayControllerTest, NewRecordsAreOneChangeAndClearTheFilter)
{
    addTitles({u"m"_s, u"z"_s});
    list->setSortDescriptors({{u"tags.title"_s}});
    filter(u"z"_s);
    select({u"z"_s});
    for (int i = 0; i < 1000; ++i)
        add({{u"title"_s, QString::number(i)}});
    context.processPendingChanges();
    EXPECT_EQ(events, u"A"_s);
    EXPECT_FALSE(list->hasFilter());
    EXPECT_THAT(list->arrangedObjects(), SizeIs(1002));
    EXPECT_EQ(selected(), u"z"_s);
}

TEST_F(HRFArrayControllerTest, EditsMoveNothingUntilTheListIsArrangedAnew)
{
    addTitles({u"a"_s, u"b"_s, u"c"_s});
    list->setSortDescriptors({{u"tags.title"_s}});
    HRFMetaFile &first = *list->arrangedObjects().front();
    const auto rename = [&](const QString &title) {
        first.tags().setValueForKey(title, u"title"_s);
        context.processPendingChanges();
    };
    rename(u"x"_s);
    EXPECT_EQ(shown(), u"x b c"_s);
    list->rearrangeObjects();
    EXPECT_EQ(shown(), u"b c x"_s);
    rename(u"0"_s);
    context.deleteObject(*list->arrangedObjects().front());
    context.processPendingChanges();
    EXPECT_EQ(shown(), u"c 0"_s);
    list->setFilter([](const HRFMetaFile &) { return true; });
    EXPECT_EQ(shown(), u"0 c"_s);
}

TEST_F(HRFArrayControllerTest, SomethingIsSelectedUnlessNothingIsShown)
{
    addTitles({u"a1"_s, u"b1"_s, u"c2"_s, u"d1"_s, u"e2"_s});
    EXPECT_EQ(selected(), u"a1"_s);
    list->setSelectedObjects({});
    EXPECT_EQ(selected(), u"a1"_s);
    EXPECT_EQ(events, u""_s);

    const struct
    {
        QStringList selected;
        QString filter;
        QString stays;
    } rows[] = {
        {{u"c2"_s, u"e2"_s}, u"2"_s, u"c2 e2"_s},
        {{u"b1"_s, u"c2"_s}, u"2"_s, u"c2"_s},
        {{u"d1"_s}, u"2"_s, u"e2"_s},
        {{u"e2"_s}, u"1"_s, u"d1"_s},
        {{u"b1"_s}, u"nothing"_s, u""_s},
    };
    for (const auto &row : rows) {
        list->clearFilter();
        select(row.selected);
        filter(row.filter);
        EXPECT_EQ(selected(), row.stays);
        EXPECT_EQ(events, row.selected.join(u' ') == row.stays ? u"A"_s : u"AS"_s);
    }
    list->clearFilter();
    select({u"a1"_s, u"c2"_s});
    list->setSortDescriptors({{u"tags.title"_s, false}});
    EXPECT_EQ(selected(), u"c2 a1"_s);
}

TEST_F(HRFArrayControllerTest, RemovesWhatIsSelectedOrShown)
{
    addTitles({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"ab"_s, u"e"_s});
    select({u"b"_s, u"d"_s});
    list->removeSelectedObjects();
    EXPECT_EQ(shown(), u"a c ab e"_s);
    EXPECT_EQ(selected(), u"c"_s);
    EXPECT_EQ(events, u"AS"_s);
    filter(u"a"_s);
    list->removeArrangedObjects();
    EXPECT_EQ(shown(), u""_s);
    EXPECT_THAT(list->selectedObjects(), IsEmpty());
    EXPECT_TRUE(list->hasFilter());
    list->clearFilter();
    EXPECT_EQ(shown(), u"c e"_s);
    EXPECT_THAT(context.fetch<HRFMetaTags>(), SizeIs(2));
}

TEST_F(HRFArrayControllerTest, AllListsFollowTheSetting)
{
    addTitles({u"a"_s, u"b"_s});
    const auto other = newList();
    list->setSortDescriptors({{u"tags.title"_s, false}});
    EXPECT_EQ(titles(other->arrangedObjects()), u"b a"_s);
    EXPECT_EQ(events, u"AA"_s);
    other->setSortDescriptors({{u"tags.title"_s, true}});
    EXPECT_EQ(shown(), u"a b"_s);

    const QString key = u"lirra.display.sortDescriptors"_s;
    const HRFUserDefaults stored(path(u"lirra.ini"_s));
    EXPECT_THAT(HRFUnarchivedSortDescriptors(stored.valueForKey(key)),
                ElementsAre(HRFSortDescriptor{u"tags.title"_s, true}));
    EXPECT_EQ(newList()->sortDescriptors(), list->sortDescriptors());

    list->setSortDescriptors({{u"tags.title"_s, false}});
    const QVariant whole = stored.valueForKey(key);
    const QVariant archives[] = {QVariant(),
                                 u"nonsense"_s,
                                 u"%%%"_s,
                                 7,
                                 whole.toString().chopped(4),
                                 HRFArchivedSortDescriptors({{u"tags.nothing"_s}})};
    for (const QVariant &archive : archives) {
        HRFUserDefaults::standard().setValueForKey(whole, key);
        HRFUserDefaults::standard().setValueForKey(archive, key);
        EXPECT_EQ(shown(), u"a b"_s);
    }
}

} // namespace
