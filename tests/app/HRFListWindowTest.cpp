#include "app/HRFControlWalk.h"
#include "app/HRFFilterMenu.h"
#include "app/HRFSidebar.h"
#include "app/HRFTestWithWindow.h"
#include "kit/HRFAssert.h"
#include "operations/HRFProgress.h"
#include "support/HRFHeldQueue.h"

#include <QBuffer>
#include <QClipboard>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

using HRFListWindowTest = HRFTestWithWindow;

QByteArray redPicture()
{
    QByteArray picture;
    QBuffer buffer(&picture);
    QImage image(600, 300, QImage::Format_RGB32);
    image.fill(Qt::red);
    EXPECT_TRUE(image.save(&buffer, "PNG"));
    return picture;
}

TEST_F(HRFListWindowTest, editsADroppedFileAndTakesItBack)
{
    const QByteArray oddName = path(u"music"_s).toUtf8() + "/\xFF.mp3"; // not UTF-8
    makeFile(u"a.mp3"_s, {{HRFTagKey::title, u"Old"_s}});
    ASSERT_EQ(::rename(music(u"a.mp3"_s).nativePath().constData(), oddName.constData()), 0);
    const auto file = HRFFileReference::fromNativePath(oddName);
    drop({file});
    waitUntil([&] { return window->model().rowCount() == 1; });
    waitForWork();
    type(cell(0, u"title"_s), u"New"_s);
    waitUntil([&] { return onDisk(file, HRFTagKey::title) == u"New"_s; });
    waitForWork();
    QAction *undo = window->commands().action(u"undo"_s);
    EXPECT_EQ(undo->text(), u"&Undo “Edit Title”"_s);
    undo->trigger();
    EXPECT_EQ(texts(u"title"_s), std::vector{u"Old"_s});
    waitUntil([&] { return onDisk(file, HRFTagKey::title) == u"Old"_s; });
    waitForWork();
}

TEST_F(HRFListWindowTest, takesOnlyValuesOfTheColumn)
{
    makeFile(u"a.mp3"_s, {{HRFTagKey::year, 1999}});
    dropFolder(1);
    struct Case
    {
        QString column;
        QString typed;
        QVariant expected;
    };
    const QDateTime day(QDate(2024, 2, 29), QTime(0, 0), Qt::UTC);
    const Case cases[] = {
        {u"trackNumber"_s, u"7"_s, 7},
        {u"trackNumber"_s, u"0"_s, QVariant()},
        {u"year"_s, u"x2,000"_s, 2000},
        {u"rating"_s, u"4"_s, 196},
        {u"releaseTime"_s, u"2024-02-29"_s, day},
        {u"releaseTime"_s, u"2023-02-29"_s, day}, // there was no such day
        {u"title"_s, u"AC/DC"_s, u"AC/DC"_s},
        {u"fileName"_s, u".."_s, u"a.mp3"_s},
    };
    for (const Case &test : cases) {
        type(cell(0, test.column), test.typed);
        EXPECT_EQ(cell(0, test.column).data(HRFListModel::Raw), test.expected)
            << test.column.toStdString() << " " << test.typed.toStdString();
    }
    click(cell(0, u"rating"_s));
    window->commands().action(u"editCell"_s)->trigger();
    QTest::keyClick(window->findChild<QWidget *>(u"cellEditor"_s), Qt::Key_Delete);
    EXPECT_EQ(window->model().rowCount(), 1); // the key is for the stars
    QTest::keyClick(window->findChild<QWidget *>(u"cellEditor"_s), Qt::Key_Escape);
    window->header().setColumnShown(column(u"isPartOfACompilation"_s), true);
    click(cell(0, u"isPartOfACompilation"_s));
    EXPECT_EQ(cell(0, u"isPartOfACompilation"_s).data(HRFListModel::Raw), true);
    waitForWork();
    EXPECT_EQ(onDisk(music(u"a.mp3"_s), HRFTagKey::rating), u"196"_s);
}

TEST_F(HRFListWindowTest, sortsByTitlesThatAreClicked)
{
    makeFiles();
    dropFolder(3);
    sortBy(u"artist"_s);
    sortBy(u"title"_s, Qt::ShiftModifier);
    EXPECT_THAT(texts(u"title"_s), ElementsAre(u"Three"_s, u"Two"_s, u"One"_s));
    click(cell(1, u"title"_s));
    sortBy(u"artist"_s); // the other way round, and by the artist alone
    EXPECT_THAT(texts(u"title"_s), ElementsAre(u"One"_s, u"Two"_s, u"Three"_s));
    EXPECT_EQ(window->document().selectedFiles(),
              std::vector{&window->model().recordAt(1)}); // "Two", as before
    EXPECT_EQ(window->view().currentIndex(), cell(1, u"title"_s));
}

TEST_F(HRFListWindowTest, filtersByWordsAndByValues)
{
    makeFiles();
    dropFolder(3);
    QTest::keyClicks(&window->filterField(), u"an TW"_s);
    waitUntil([&] { return window->model().rowCount() == 1; });
    EXPECT_THAT(texts(u"title"_s), ElementsAre(u"Two"_s));
    window->commands().action(u"clearFilter"_s)->trigger();
    waitUntil([&] { return window->model().rowCount() == 3; });
    EXPECT_EQ(window->filterField().text(), QString());

    click(cell(0, u"artist"_s));
    window->commands().action(u"filterColumn"_s)->trigger();
    auto *menu = window->findChild<HRFFilterMenu *>();
    const auto *values = menu->findChild<QAbstractItemView *>(u"filterValues"_s)->model();
    ASSERT_EQ(values->rowCount(), 2);
    EXPECT_EQ(values->index(0, 0).data().toString(), u"Ann   (2)"_s);
    QTest::keyClicks(menu->findChild<QLineEdit *>(), u"bo"_s);
    EXPECT_EQ(values->rowCount(), 1);
    QTest::keyClick(menu->findChild<QLineEdit *>(), Qt::Key_Return);
    waitUntil([&] { return window->model().rowCount() == 1; });
    EXPECT_THAT(texts(u"title"_s), ElementsAre(u"One"_s));

    makeFile(u"d.mp3"_s, {}); // shall be seen
    dropFolder(4);
    EXPECT_FALSE(window->hasFilter());
}

TEST_F(HRFListWindowTest, remembersItsColumns)
{
    HRFListHeader *header = &window->header();
    header->setColumnShown(column(u"album"_s), false);
    header->setColumnShown(column(u"bpm"_s), true);
    header->moveSection(header->visualIndex(column(u"bpm"_s)), 0);
    header->resizeSection(column(u"title"_s), 321);
    const std::vector<int> shown = header->shownColumns();
    close();
    open();
    EXPECT_EQ(window->header().shownColumns(), shown);
    EXPECT_EQ(shown.front(), column(u"bpm"_s));
    EXPECT_TRUE(window->header().isSectionHidden(column(u"album"_s)));
    EXPECT_EQ(window->header().sectionSize(column(u"title"_s)), 321);
}

TEST_F(HRFListWindowTest, keepsSelectionsInStep)
{
    makeFiles();
    dropFolder(3);
    EXPECT_EQ(window->document().selectedFiles().size(), 3U); // what was added
    click(cell(0, u"title"_s));
    click(cell(2, u"title"_s), Qt::ControlModifier);
    EXPECT_EQ(window->document().selectedFiles(),
              (std::vector{&window->model().recordAt(0), &window->model().recordAt(2)}));
    window->document().setSelectedFiles({&window->model().recordAt(1)});
    EXPECT_TRUE(window->view().selectionModel()->isRowSelected(1));
    EXPECT_EQ(window->view().selectionModel()->selectedRows().size(), 1);
    window->view().clearSelection(); // something stays selected
    QCoreApplication::processEvents();
    EXPECT_TRUE(window->view().selectionModel()->isRowSelected(1));
    window->commands().action(u"remove"_s)->trigger();
    EXPECT_EQ(window->model().rowCount(), 2);
    EXPECT_TRUE(window->view().selectionModel()->isRowSelected(1)); // the one below
}

TEST_F(HRFListWindowTest, stripsAfterAQuestion)
{
    makeFiles();
    dropFolder(3);
    click(cell(1, u"title"_s));
    QCoreApplication::processEvents();
    user.answers = {{HRFAnswerRole::Cancel}, {HRFAnswerRole::Accept}};
    window->commands().action(u"strip"_s)->trigger();
    EXPECT_EQ(cell(1, u"title"_s).data(), u"One"_s);
    window->commands().action(u"strip"_s)->trigger();
    waitUntil([&] { return cell(1, u"title"_s).data().toString().isEmpty(); });
    EXPECT_EQ(onDisk(music(u"b.mp3"_s), HRFTagKey::title), QString());
    EXPECT_EQ(onDisk(music(u"a.mp3"_s), HRFTagKey::title), u"Two"_s);
    waitForWork();
}

TEST_F(HRFListWindowTest, loadsThumbnails)
{
    makeFile(u"a.mp3"_s, {{HRFTagKey::artwork, redPicture()}});
    makeFile(u"b.mp3"_s, {{HRFTagKey::artwork, HRFSamplePNG}}); // cannot be decoded
    dropFolder(2);
    const auto thumbnail = [&](int row) {
        return cell(row, u"artwork"_s).data(HRFListModel::Thumbnail).value<QPixmap>();
    };
    EXPECT_TRUE(thumbnail(1).isNull());
    waitUntil([&] { return !thumbnail(0).isNull(); });
    EXPECT_EQ(thumbnail(0).toImage().pixelColor(5, 5), QColor(Qt::red));
    EXPECT_TRUE(thumbnail(1).isNull());
    for (int steps : {0, 1}) {
        if (steps > 0)
            window->commands().action(u"higherRows"_s)->trigger();
        const int height = window->view().rowHeight();
        waitUntil([&] { return thumbnail(0).width() == height; });
        EXPECT_EQ(thumbnail(0).height(), height / 2);
    }
}

TEST_F(HRFListWindowTest, triesOtherFilesForAThumbnail)
{
    makeFile(u"good.mp3"_s, {{HRFTagKey::artwork, redPicture()}});
    const QString good = QUrl::fromLocalFile(path(u"music/good.mp3"_s)).toString();
    const QString late = QUrl::fromLocalFile(path(u"music/late.mp3"_s)).toString();
    HRFThumbnails thumbnails;
    int changes = 0;
    QObject::connect(&thumbnails, &HRFThumbnails::thumbnailsDidChange, [&] { ++changes; });
    EXPECT_TRUE(thumbnails.thumbnail(u"1"_s, late).isNull());
    EXPECT_TRUE(thumbnails.thumbnail(u"2"_s, late).isNull());
    waitUntil([&] { return changes == 2; });
    makeFile(u"late.mp3"_s, {{HRFTagKey::artwork, redPicture()}});
    EXPECT_TRUE(thumbnails.thumbnail(u"1"_s, late).isNull()); // it is not tried at each turn
    EXPECT_TRUE(thumbnails.thumbnail(u"2"_s, good).isNull());
    waitUntil([&] { return changes == 3; });
    EXPECT_FALSE(thumbnails.thumbnail(u"2"_s, late).isNull());
    EXPECT_TRUE(thumbnails.thumbnail(u"1"_s, late).isNull());
    thumbnails.forgetFailures();
    EXPECT_TRUE(thumbnails.thumbnail(u"1"_s, late).isNull());
    waitUntil([&] { return !thumbnails.thumbnail(u"1"_s, late).isNull(); });
}

TEST_F(HRFListWindowTest, copiesKnownPathsAndRevealsPresentFiles)
{
    makeFiles();
    dropFolder(3);
    window->view().selectAll();
    ASSERT_TRUE(QFile::remove(path(u"music/b.mp3"_s)));
    window->commands().action(u"copyPath"_s)->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text().split(u'\n').size(), 3);
    window->commands().action(u"reveal"_s)->trigger();
    waitUntil([&] { return !user.revealedFiles.empty(); });
    EXPECT_THAT(user.revealedFiles,
                testing::UnorderedElementsAre(music(u"a.mp3"_s), music(u"c.mp3"_s)));
}

/// Only what has changed is drawn anew, also when rows have come before it.
TEST_F(HRFListWindowTest, followsWrites)
{
    makeFiles();
    dropFolder(3);
    sortBy(u"fileName"_s);
    window->view().selectRow(2);
    makeFile(u"0.mp3"_s, {});
    dropFolder(4);
    std::vector<int> rows;
    QObject::connect(&window->model(), &HRFListModel::dataChanged,
                     [&](const QModelIndex &from, const QModelIndex &to) {
                         rows.insert(rows.end(), {from.row(), to.row()});
                     });
    const auto *line = window->findChild<QLabel *>(u"statusLine"_s);
    window->view().selectAll();
    waitUntil([&] { return line->text().startsWith(u"4 files"_s); });
    const QString before = line->text();
    constexpr int moreThanPadding = 50000;
    window->model().setData(cell(3, u"title"_s), QString(moreThanPadding, u'x'), Qt::EditRole);
    waitUntil([&] { return line->text() != before; });
    EXPECT_THAT(rows, testing::AllOf(testing::Not(testing::IsEmpty()), testing::Each(3)));
    waitForWork();
}

TEST_F(HRFListWindowTest, bringsTheFilterBackWhenAnImportIsCancelled)
{
    makeFiles();
    dropFolder(3);
    constexpr int count = 310; // an import shows its files by 300
    for (int i = 1; i <= count; ++i)
        ASSERT_TRUE(QFile::copy(path(u"music/a.mp3"_s), path(u"music/%1.mp3"_s.arg(i))));
    QTest::keyClicks(&window->filterField(), u"one"_s);
    waitUntil([&] { return window->model().rowCount() == 1; });
    HRFPlaylist &list = window->document();
    int ends = 0;
    QObject::connect(&list.fileManager(), &HRFMetaFileManager::importDidEnd, [&] { ++ends; });
    const auto cancelling =
        QObject::connect(&list.fileController(), &HRFArrayController::arrangementDidChange, [&] {
            EXPECT_FALSE(window->hasFilter());
            if (const auto progress = list.fileManager().importProgress())
                progress->cancel();
        });
    drop({music(QString())});
    waitUntil([&] { return list.arrangedFiles().size() > 3; });
    QObject::disconnect(cancelling);
    waitUntil([&] { return ends > 0; });
    EXPECT_EQ(window->filterField().text(), u"one"_s);
    EXPECT_THAT(texts(u"title"_s), ElementsAre(u"One"_s));

    dropFolder(count + 3); // this time it is not brought back
    EXPECT_FALSE(window->hasFilter());
    window->header().requestFilter(column(u"fileName"_s));
    const auto *values = window->findChild<QAbstractItemView *>(u"filterValues"_s)->model();
    ASSERT_EQ(values->rowCount(), 300);
    for (int row = 0; row < values->rowCount(); ++row)
        EXPECT_EQ(values->index(row, 0).data(), u"%1.mp3   (1)"_s.arg(row + 1));
}

TEST_F(HRFListWindowTest, closesListsAndEndsWithTheLast)
{
    int ends = 0;
    QObject::connect(application.get(), &HRFApplicationDelegate::didTerminate, [&] { ++ends; });
    HRFListWindow &second = application->newList();
    second.closeList();
    EXPECT_EQ(application->documents().documents().size(), 1U);
    QCoreApplication::processEvents();
    EXPECT_EQ(ends, 0);
    window->close();
    EXPECT_EQ(ends, 1);
}

TEST_F(HRFListWindowTest, tellsWhatWasNotAdded)
{
    makeFiles();
    QDir().mkpath(path(u"empty"_s));
    auto *notice = window->findChild<QToolButton *>(u"importNotice"_s);
    drop({music(u"a.mp3"_s), HRFFileReference::fromPath(path(u"empty"_s)), music(u"gone.mp3"_s)});
    waitUntil([&] { return notice->isVisible(); });
    EXPECT_EQ(notice->text(), u"2 items were not added"_s);
    user.answers = {{u"Show Files"_s}};
    QTest::mouseClick(notice, Qt::LeftButton);
    EXPECT_THAT(user.alerts.back().informativeText.split(u'\n'), testing::SizeIs(2));
    EXPECT_THAT(user.revealedFiles, testing::SizeIs(2));
    EXPECT_FALSE(notice->isVisible());
    waitForWork();
}

TEST_F(HRFListWindowTest, letsTheUserCancelWhatIsNotWritten)
{
    makeFiles();
    dropFolder(3);
    auto *pending = window->findChild<QWidget *>(u"pendingWork"_s);
    {
        const HRFHeldQueue held;
        type(cell(0, u"title"_s), u"Never"_s);
        waitUntil([&] { return pending->isVisible(); });
        user.answers = {{HRFAnswerRole::Cancel}, {HRFAnswerRole::Accept}};
        for (int click = 0; click < 2; ++click)
            pending->findChild<QAbstractButton *>()->click();
    }
    waitForWork();
    waitUntil([&] { return !pending->isVisible(); });
    EXPECT_EQ(onDisk(music(u"a.mp3"_s), HRFTagKey::title), u"Two"_s);
}

/// Commands that take no focus away: what was typed was meant to be kept.
TEST_F(HRFListWindowTest, takesWhatIsBeingTypedBeforeItEnds)
{
    makeFiles();
    dropFolder(3);
    bool hasEnded = false;
    QObject::connect(application.get(), &HRFApplicationDelegate::didTerminate,
                     [&] { hasEnded = true; });
    click(cell(0, u"title"_s));
    const QString name = cell(0, u"fileName"_s).data().toString();
    window->commands().action(u"editCell"_s)->trigger();
    QTest::keyClicks(window->findChild<QLineEdit *>(u"cellEditor"_s), u"Typed"_s);
    application->newList().commands().action(u"quit"_s)->trigger();
    waitUntil([&] { return hasEnded; });
    EXPECT_EQ(onDisk(music(name), HRFTagKey::title), u"Typed"_s);
}

TEST_F(HRFListWindowTest, keepsACellOpenThatHasNoValue)
{
    makeFiles();
    dropFolder(3);
    window->header().setColumnShown(column(u"releaseTime"_s), true);
    click(cell(0, u"releaseTime"_s));
    window->commands().action(u"editCell"_s)->trigger();
    const QPointer editor(window->findChild<QLineEdit *>(u"cellEditor"_s));
    QTest::keyClicks(editor, u"2023-02-29"_s);
    window->filterField().setFocus();
    window->commands().action(u"selectAll"_s)->trigger();
    click(cell(2, u"title"_s));
    QCoreApplication::processEvents();
    ASSERT_TRUE(editor && editor->isVisible());
    EXPECT_EQ(editor->text(), u"2023-02-29"_s);
    EXPECT_FALSE(shownError().isEmpty());
    EXPECT_EQ(editor->accessibleDescription(), shownError());
    editor->selectAll();
    QTest::keyClicks(editor, u"2023-02"_s);
    EXPECT_EQ(editor->accessibleDescription(), QString());
    window->commands().action(u"filter"_s)->trigger();
    EXPECT_EQ(cell(0, u"releaseTime"_s).data(HRFListModel::Raw).toDate(), QDate(2023, 2, 1));
}

TEST_F(HRFListWindowTest, arrangesColumnsByCommands)
{
    makeFiles();
    dropFolder(3);
    click(cell(0, u"title"_s));
    QCoreApplication::processEvents(); // validates commands
    const auto shown = [&] { return window->header().shownColumns(); };
    const std::vector<int> before = shown();
    const auto first = std::ranges::find(before, column(u"title"_s)) - before.begin();
    window->header().setColumnShown(before[std::size_t(first - 1)], false); // is passed over
    window->commands().action(u"moveColumnLeft"_s)->trigger();
    EXPECT_EQ(shown().front(), column(u"title"_s));
    QCoreApplication::processEvents();
    EXPECT_FALSE(window->commands().action(u"moveColumnLeft"_s)->isEnabled());
    window->commands().action(u"moveColumnRight"_s)->trigger();
    EXPECT_EQ(shown()[1], column(u"title"_s));
    window->header().resizeSection(column(u"title"_s), 400);
    window->commands().action(u"fitColumnWidth"_s)->trigger();
    EXPECT_LT(window->header().sectionSize(column(u"title"_s)), 200);

    QMenu menu;
    window->header().sortBy(column(u"artist"_s), false);
    window->header().addSortActions(menu);
    for (const QAction *action : menu.findChild<QMenu *>()->actions()) {
        EXPECT_NE(action->text(), u"Artist"_s);
        if (action->text() == u"Title"_s)
            Q_EMIT const_cast<QAction *>(action)->triggered();
    }
    EXPECT_THAT(texts(u"title"_s), ElementsAre(u"Three"_s, u"Two"_s, u"One"_s));
}

/// Who cannot see the screen is told what a control is.
TEST_F(HRFListWindowTest, namesItsControls)
{
    makeFiles();
    dropFolder(3);
    window->header().requestFilter(column(u"artist"_s));
    for (const QString &name : {u"editCell"_s, u"configureSidebar"_s})
        window->commands().action(name)->trigger();
    EXPECT_GT(HRFCheckControls(*window), 30);
    auto *stars = QAccessible::queryAccessibleInterface(
        window->sidebar().findChild<QWidget *>(u"field.rating"_s));
    stars->valueInterface()->setCurrentValue(9);
    EXPECT_EQ(stars->valueInterface()->currentValue(), stars->valueInterface()->maximumValue());
    EXPECT_EQ(cell(0, u"rating"_s).data(HRFListModel::Raw), 255);
    auto *status =
        QAccessible::queryAccessibleInterface(window->findChild<QLabel *>(u"statusLine"_s));
    waitUntil([&] { return status->text(QAccessible::Name).startsWith(u"3 files"_s); });
    waitForWork();
}

/// What cannot be done for want of the data folder is told, and that is all.
TEST_F(HRFListWindowTest, outlivesAFault)
{
    const QString sessions = path(u"data/windowSessions"_s);
    ASSERT_TRUE(QFile::rename(sessions, path(u"moved"_s)));
    ASSERT_TRUE(QFile(sessions).open(QIODevice::WriteOnly)); // a file, no folder
    window->commands().action(u"newList"_s)->trigger();
    waitUntil([&] { return user.presentedErrors.size() == 2; });
    EXPECT_TRUE(user.presentedErrors[1].description.contains(u"persistent store"_s));
    QMetaObject::invokeMethod(window, [] { HRFRequire(false, "a fault"); }, Qt::QueuedConnection);
    waitUntil([&] { return user.presentedErrors.size() == 3; });
    EXPECT_EQ(application->documents().documents().size(), 1U);
    user.presentedErrors.clear();
}

} // namespace
