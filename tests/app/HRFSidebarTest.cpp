#include "app/HRFSidebar.h"

#include "app/HRFArtworkPane.h"
#include "app/HRFSidebarDialog.h"
#include "app/HRFStars.h"
#include "app/HRFTestWithWindow.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"

#include <QBuffer>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using testing::Each;
using testing::ElementsAre;

namespace {

QByteArray pictureOf(Qt::GlobalColor colour)
{
    QByteArray picture;
    QBuffer buffer(&picture);
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(colour);
    EXPECT_TRUE(image.save(&buffer, "PNG"));
    return picture;
}

class HRFSidebarTest : public HRFTestWithWindow
{
protected:
    template <class Widget = QLineEdit> Widget *field(const QString &name) const
    {
        auto *found = window->sidebar().findChild<Widget *>(u"field."_s + name);
        if (!found)
            throw std::out_of_range(name.toStdString());
        return found;
    }
    void waitForText(const QString &name, const QString &text) const
    {
        waitUntil([&] { return field(name)->text() == text; });
    }
    static void enter(QLineEdit *line, const QString &text, Qt::Key end = Qt::Key_Return)
    {
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, text);
        QTest::keyClick(line, end);
    }
    void waitForWrites() const
    {
        QCoreApplication::processEvents();
        waitForWork();
    }
    /// What the three files say now.
    std::vector<QString> filesSay(HRFTagKey key) const
    {
        waitForWrites();
        std::vector<QString> texts;
        for (const QString &name : {u"a.mp3"_s, u"b.mp3"_s, u"c.mp3"_s})
            texts.push_back(onDisk(music(name), key));
        return texts;
    }
    std::vector<QString> picturesOfFiles() const
    {
        waitForWrites();
        std::vector<QString> digests;
        for (const HRFMetaFile *file : window->document().arrangedFiles())
            digests.push_back(file->artworkMD5());
        return digests;
    }
    void dropOnPane(const QMimeData &data) const
    {
        HRFArtworkPane &pane = window->sidebar().artworkPane();
        QDragEnterEvent enter({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&pane, &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDropEvent event(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&pane, &event);
        HRFBackground::waitUntilIdle();
    }
};

TEST_F(HRFSidebarTest, editsAllSelectedFilesInOneStep)
{
    makeFiles();
    dropFolder(3);
    waitForText(u"artist"_s, QString());
    EXPECT_EQ(field(u"artist"_s)->placeholderText(), u"Multiple values"_s);
    const QString albumBefore = field(u"album"_s)->text();
    const QString bpmBefore = field(u"bpm"_s)->text();
    enter(field(u"album"_s), u"New"_s);
    enter(field(u"bpm"_s), u"120"_s, Qt::Key_Tab);
    EXPECT_THAT(filesSay(HRFTagKey::album), Each(u"New"_s));
    EXPECT_THAT(filesSay(HRFTagKey::bpm), Each(u"120"_s));
    EXPECT_THAT(filesSay(HRFTagKey::title), ElementsAre(u"Two"_s, u"One"_s, u"Three"_s));
    QAction *undo = window->commands().action(u"undo"_s);
    EXPECT_EQ(undo->text(), u"&Undo “Edit BPM”"_s);
    undo->trigger();
    undo->trigger();
    EXPECT_THAT(filesSay(HRFTagKey::album), Each(albumBefore));
    EXPECT_THAT(filesSay(HRFTagKey::bpm), Each(bpmBefore));
    EXPECT_FALSE(window->canUndo());
}

TEST_F(HRFSidebarTest, writesOnlyWhatWasTyped)
{
    makeFiles();
    dropFolder(3);
    waitForText(u"artist"_s, QString());
    enter(field(u"artist"_s), QString()); // a Return in an untouched field
    enter(field(u"artist"_s), u"Zed"_s, Qt::Key_Escape);
    EXPECT_EQ(field(u"artist"_s)->text(), QString());
    field(u"artist"_s)->clearFocus();
    enter(field(u"releaseTime"_s), u"2023-02-29"_s); // there was no such day
    EXPECT_EQ(field(u"releaseTime"_s)->text(), u"2023-02-29"_s); // to be put right
    enter(field(u"releaseTime"_s), u"2023-02-29"_s, Qt::Key_Tab);
    EXPECT_EQ(field(u"releaseTime"_s)->text(), u"2023-02-29"_s);
    sortBy(u"title"_s);
    sortBy(u"artist"_s, Qt::ShiftModifier);
    EXPECT_EQ(field(u"releaseTime"_s)->text(), u"2023-02-29"_s); // of the same files
    EXPECT_EQ(field(u"releaseTime"_s)->toolTip(), shownError());
    QTest::keyClick(field(u"releaseTime"_s), Qt::Key_Escape);
    EXPECT_EQ(field(u"releaseTime"_s)->text(), QString());
    EXPECT_EQ(shownError(), QString());
    enter(field(u"releaseTime"_s), u"x"_s);
    click(cell(0, u"title"_s)); // other files: what was typed was not meant for them
    EXPECT_EQ(field(u"releaseTime"_s)->text(), QString());
    window->commands().action(u"selectAll"_s)->trigger();
    waitForText(u"artist"_s, QString());
    EXPECT_TRUE(field(u"fileName"_s)->isReadOnly()); // three files cannot have one name
    EXPECT_THAT(filesSay(HRFTagKey::artist), ElementsAre(u"Ann"_s, u"Bob"_s, u"Ann"_s));
    EXPECT_FALSE(window->canUndo());
}

TEST_F(HRFSidebarTest, removesValuesThatDifferAndTakesThatBackByKey)
{
    makeFiles();
    makeFile(u"c.mp3"_s, {{HRFTagKey::title, u"Three"_s}, {HRFTagKey::sortTitle, u"3"_s}});
    dropFolder(3);
    waitForText(u"title"_s, QString());
    QLineEdit *title = field(u"title"_s);
    Q_EMIT title->customContextMenuRequested({});
    auto *removal = title->findChild<QAction *>(u"removeValue"_s);
    ASSERT_TRUE(removal && removal->isEnabled());
    removal->trigger();
    QApplication::activePopupWidget()->close();
    EXPECT_THAT(filesSay(HRFTagKey::title), Each(QString()));
    window->activateWindow(); // which the menu was instead
    waitUntil([&] { return QApplication::activeWindow() == window; });
    title->setFocus();
    QTest::keyClick(title, Qt::Key_Z, Qt::ControlModifier); // the field has nothing to undo
    EXPECT_THAT(filesSay(HRFTagKey::title), ElementsAre(u"Two"_s, u"One"_s, u"Three"_s));
    EXPECT_EQ(title->placeholderText(), u"Multiple values"_s);
    window->document().setSelectedFiles({&window->model().recordAt(2)});
    waitForText(u"title"_s, window->model().recordAt(2).tags().valueForKey(u"title"_s).toString());
    EXPECT_EQ(field(u"sortTitle"_s)->text(), QString()); // in a group that is not shown
    window->sidebar().findChildren<QToolButton *>(u"title"_s).at(3)->click();
    waitForText(u"sortTitle"_s, u"3"_s);
}

TEST_F(HRFSidebarTest, givesWhatWasTypedToTheFilesItWasTypedFor)
{
    makeFiles();
    dropFolder(3);
    click(cell(0, u"title"_s));
    waitForText(u"title"_s, cell(0, u"title"_s).data().toString());
    field(u"title"_s)->setFocus();
    field(u"title"_s)->setText(u"Typed"_s);
    window->document().setSelectedFiles({&window->model().recordAt(1)}); // not by a click
    waitForText(u"title"_s, u"One"_s);
    EXPECT_THAT(filesSay(HRFTagKey::title), ElementsAre(u"Typed"_s, u"One"_s, u"Three"_s));
}

TEST_F(HRFSidebarTest, takesWhatIsTypedBeforeTheFilesLeaveTheList)
{
    makeFiles();
    dropFolder(3);
    for (const QString &command : {u"remove"_s, u"clear"_s}) {
        click(cell(0, u"title"_s));
        const QString name = cell(0, u"fileName"_s).data().toString();
        waitForText(u"title"_s, cell(0, u"title"_s).data().toString());
        field(u"title"_s)->setFocus();
        field(u"title"_s)->setText(command);
        window->commands().action(command)->trigger();
        waitForWrites();
        EXPECT_EQ(onDisk(music(name), HRFTagKey::title), command);
    }
    EXPECT_EQ(window->model().rowCount(), 0);
}

TEST_F(HRFSidebarTest, choosesStarsByWhatIsMeantForThem)
{
    constexpr int none = -1;
    constexpr int differing = 9;
    const auto click = [](Qt::MouseButton button, int x) {
        return [=](QWidget *stars) { QTest::mouseClick(stars, button, {}, {x, 10}); };
    };
    const auto key = [](Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) {
        return [=](QWidget *stars) { QTest::keyClick(stars, pressed, modifiers); };
    };
    const struct
    {
        int before;
        std::function<void(QWidget *)> act;
        int chosen;
    } cases[] = {
        {3, click(Qt::LeftButton, 25), 2},
        {2, click(Qt::LeftButton, 25), 0}, // the last of them
        {3, click(Qt::LeftButton, 150), none}, // beside them
        {3, click(Qt::RightButton, 25), none},
        {3, key(Qt::Key_Left), 2},
        {0, key(Qt::Key_Left), none},
        {5, key(Qt::Key_Right), none},
        {3, key(Qt::Key_3), none},
        {3, key(Qt::Key_0, Qt::ControlModifier), none},
        {3, key(Qt::Key_Delete), 0},
        {differing, key(Qt::Key_Left), none},
        {differing, click(Qt::LeftButton, 150), none},
        {differing, key(Qt::Key_Right), 1},
        {differing, key(Qt::Key_Backspace), 0},
        {differing, key(Qt::Key_0), 0},
    };
    for (const auto &test : cases) {
        HRFStarsEditor stars(nullptr);
        stars.resize(200, 20);
        if (test.before == differing)
            stars.setDiffering(u"Several"_s);
        else
            stars.setStars(test.before);
        int chosen = none;
        QObject::connect(&stars, &HRFStarsEditor::didChoose, [&] { chosen = stars.stars(); });
        test.act(&stars);
        EXPECT_EQ(chosen, test.chosen) << "case " << &test - cases;
    }
}

TEST_F(HRFSidebarTest, showsAndSetsOtherKindsOfValues)
{
    makeFile(u"a.mp3"_s, {{HRFTagKey::isPartOfACompilation, true}, {HRFTagKey::rating, 196}});
    makeFile(u"b.mp3"_s, {{HRFTagKey::rating, 196}});
    makeFile(u"c.mp3"_s, {{HRFTagKey::comment, u"1\n2"_s}, {HRFTagKey::rating, 190}});
    dropFolder(3);
    auto *box = field<QCheckBox>(u"isPartOfACompilation"_s);
    waitUntil([&] { return box->checkState() == Qt::PartiallyChecked; });
    QTest::mouseClick(box, Qt::LeftButton, {}, {8, box->height() / 2});
    EXPECT_THAT(filesSay(HRFTagKey::isPartOfACompilation), Each(u"true"_s));
    auto *stars = field<HRFStarsEditor>(u"rating"_s);
    EXPECT_EQ(stars->stars(), 0); // 190 is another rating than 196, if as many stars
    QTest::keyClick(stars, Qt::Key_2);
    EXPECT_THAT(filesSay(HRFTagKey::rating), Each(u"64"_s));
    auto *comment = field<QPlainTextEdit>(u"comment"_s);
    comment->setFocus();
    QTest::keyClicks(comment, u"3"_s);
    QTest::keyClick(comment, Qt::Key_Return);
    QTest::keyClicks(comment, u"4"_s);
    QTest::keyClick(comment, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_THAT(filesSay(HRFTagKey::comment), Each(u"3\n4"_s));
}

TEST_F(HRFSidebarTest, setsAndRemovesArtwork)
{
    const QByteArray red = pictureOf(Qt::red);
    makeFiles();
    makeFile(u"a.mp3"_s, {{HRFTagKey::artwork, red}});
    dropFolder(3);
    HRFArtworkPane &pane = window->sidebar().artworkPane();
    const auto *facts = window->sidebar().findChild<QLabel *>(u"artworkFacts"_s);
    waitUntil([&] { return pane.accessibleDescription() == u"Several pictures"_s; });
    QFile image(path(u"blue.png"_s));
    ASSERT_TRUE(image.open(QIODevice::WriteOnly));
    image.write(pictureOf(Qt::blue));
    image.close();
    QMimeData dropped;
    dropped.setUrls({QUrl::fromLocalFile(image.fileName())});
    dropOnPane(dropped);
    waitUntil([&] { return facts->text().startsWith(u"PNG  ·  40 × 20"_s); });
    for (const QString &name : {u"a.mp3"_s, u"b.mp3"_s, u"c.mp3"_s})
        EXPECT_EQ((*HRFTagEngine::initWithURL(music(name)))->valueForKey(HRFTagKey::artwork),
                  pictureOf(Qt::blue));
    waitUntil([&] { return pane.grab().toImage().pixelColor(pane.width() / 2, 96) == Qt::blue; });
    QTest::keyClick(&pane, Qt::Key_Delete);
    waitUntil([&] { return facts->text().isEmpty(); });
    EXPECT_EQ(window->model().rowCount(), 3); // the files themselves stay in the list
    EXPECT_THAT(picturesOfFiles(), Each(QString()));
}

TEST_F(HRFSidebarTest, refusesFilesThatAreNoPictures)
{
    makeFiles();
    dropFolder(3);
    ASSERT_TRUE(QFile::copy(music(u"a.mp3"_s).displayPath(), path(u"no.png"_s)));
    QMimeData dropped;
    dropped.setUrls({QUrl::fromLocalFile(path(u"no.png"_s))});
    dropOnPane(dropped);
    waitUntil([&] { return user.presentedErrors.size() == 1; });
    user.presentedErrors.clear();
    EXPECT_THAT(picturesOfFiles(), Each(QString()));
}

TEST_F(HRFSidebarTest, remembersWhatItShows)
{
    window->commands().action(u"configureSidebar"_s)->trigger();
    auto *dialog = window->findChild<HRFSidebarDialog *>();
    auto *groups = dialog->findChild<QListWidget *>(u"groups"_s);
    const auto rename = [&](const QString &name) {
        groups->editItem(groups->item(0));
        auto *editor = groups->findChildren<QLineEdit *>(u"groupName"_s).constLast();
        editor->setText(name);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();
    };
    rename(u"Mine"_s);
    rename(u" "_s);
    EXPECT_EQ(shownError(), u"A group needs a name."_s);
    groups->setCurrentRow(1);
    dialog->findChild<QPushButton *>(u"removeGroup"_s)->click(); // frees its fields
    groups->setCurrentRow(0);
    dialog->findChild<QLineEdit *>(u"search"_s)->setText(u"compos"_s);
    auto *choice = dialog->findChild<QTreeWidget *>(u"choice"_s);
    ASSERT_EQ(choice->topLevelItemCount(), 1);
    choice->setCurrentItem(choice->topLevelItem(0)->child(0));
    dialog->findChild<QPushButton *>(u"addField"_s)->click();
    dialog->accept();
    waitUntil([&] { return field(u"composer"_s)->isVisible(); });
    const auto titles = window->sidebar().findChildren<QToolButton *>(u"title"_s);
    EXPECT_EQ(window->sidebar().artworkPane().nextInFocusChain(), titles.front());
    QWidget *last = titles.front(); // with a Tab for every control from top to bottom
    for (QWidget *next = last->nextInFocusChain(); next != window; next = next->nextInFocusChain())
        if (window->sidebar().isAncestorOf(next) && next->focusPolicy() & Qt::TabFocus
            && next->isVisible()) {
            const auto top = [](QWidget *widget) { return widget->mapToGlobal(QPoint()).y(); };
            EXPECT_GE(top(next) + 8, top(std::exchange(last, next)));
        }
    titles.at(1)->click();
    const HRFViewConfigManager::Groups chosen = HRFViewConfigManager::sharedManager().groups();
    window->commands().action(u"sidebar"_s)->trigger();
    close();
    open();
    EXPECT_EQ(HRFViewConfigManager::sharedManager().groups(), chosen);
    EXPECT_EQ(chosen[0].title, u"Mine"_s);
    EXPECT_EQ(chosen[0].attributeNames.back(), u"composer"_s);
    EXPECT_FALSE(chosen[1].isCollapsed);
    EXPECT_FALSE(window->sidebar().isVisible());
    EXPECT_FALSE(window->commands().action(u"sidebar"_s)->isChecked());
}

} // namespace
