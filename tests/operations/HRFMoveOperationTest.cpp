#include "operations/HRFMoveOperation.h"

#include "HRFTestTrees.h"
#include "operations/HRFOperationQueue.h"
#include "support/HRFScriptedInteraction.h"
#include "support/HRFTestApplication.h"

#include <gmock/gmock.h>

#include <filesystem>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

struct Task
{
    HRFFileReference source;
    HRFFileReference destination;
};

class HRFMoveOperationTest : public HRFApplicationTest
{
protected:
    using Operations = std::vector<std::shared_ptr<HRFMoveOperation>>;

    Operations run(const std::vector<Task> &tasks, bool isCopy = false)
    {
        Operations operations;
        progress->setTotalUnitCount(qlonglong(tasks.size()));
        for (const Task &task : tasks) {
            operations.push_back(std::make_shared<HRFMoveOperation>());
            operations.back()->setFileManager(manager);
            operations.back()->setCopyOperation(isCopy);
            operations.back()->setFileURL(task.source);
            operations.back()->setDstURL(task.destination);
            operations.back()->setProgress(progress);
            operations.back()->setLast(operations.size() == tasks.size());
        }
        HRFOperationQueue queue;
        queue.addOperations({operations.begin(), operations.end()}, true);
        return operations;
    }
    /// The same with files that have something in their way.
    Operations runIntoConflicts(const std::vector<QByteArray> &names)
    {
        std::vector<Task> tasks;
        for (const QByteArray &name : names) {
            there.make(name, "old");
            tasks.push_back({here.make(name, "new"), there.file(name)});
        }
        return run(tasks);
    }

    const HRFTestFolder here;
    const HRFTestFolder there{u"/dev/shm/lirra-test-XXXXXX"_s};
    HRFScriptedInteraction user;
    std::shared_ptr<HRFFileManager> manager = std::make_shared<HRFFileManager>();
    std::shared_ptr<HRFProgress> progress = std::make_shared<HRFProgress>();
};

TEST_F(HRFMoveOperationTest, MovesToMissingFoldersAndCopies)
{
    manager->setCreateMissingDirectories(true);
    const auto source = here.make("song.mp3");
    for (const bool isCopy : {true, false}) {
        const auto destination = there.file(isCopy ? "a/copy.mp3" : "b/c/song.mp3");
        const auto operation = run({{source, destination}}, isCopy).front();
        EXPECT_TRUE(operation->succeeded());
        EXPECT_EQ(operation->srcURL(), source);
        EXPECT_EQ(operation->dstURL(), destination);
        EXPECT_EQ(here.contents("song.mp3"), isCopy ? "song.mp3" : "");
    }
    EXPECT_EQ(progress->completedUnitCount(), 2);
    EXPECT_EQ(there.contents("a/copy.mp3"), "song.mp3");
    EXPECT_EQ(there.contents("b/c/song.mp3"), "song.mp3");
}

TEST_F(HRFMoveOperationTest, AnotherLetterCaseIsNoMove)
{
    const Task cases[] = {{here.make("song.mp3"), here.file("Song.mp3")},
                          {here.make("ä.mp3"), here.file("Ä.mp3")},
                          {here.make("b.mp3"), here.file("b.mp3")}};
    for (const Task &task : cases) {
        const auto operation = run({task}).front();
        EXPECT_TRUE(operation->succeeded());
        EXPECT_EQ(operation->dstURL(), task.source);
    }
    EXPECT_THAT(HRFNamesIn(here.path()), ElementsAre("b.mp3", "song.mp3", "ä.mp3"));
    // Both look like "\uFFFD.mp3".
    EXPECT_TRUE(run({{here.make("\xff.mp3"), here.file("\xfe.mp3")}}).front()->succeeded());
    EXPECT_EQ(here.contents("\xfe.mp3"), "\xff.mp3");
}

TEST_F(HRFMoveOperationTest, TheUserIsAskedAboutWhatIsInTheWay)
{
    struct Case
    {
        HRFScriptedInteraction::Answer answer;
        const char *oldContents = ""; ///< of the destination afterwards
        const char *secondContents = "";
        bool isCancelled = false;
    };
    const Case cases[] = {
        {{u"Keep Both"_s}, "old", "new", false},
        {{u"Replace"_s}, "new", "", false},
        {{.button = u"Skip"_s, .isAlternate = true}, "old", "", false},
        {{u"Stop"_s}, "old", "", true},
    };
    for (const Case &test : cases) {
        there.make("a:b 2.mp3", "second");
        user.answers = {test.answer};
        const auto operation = runIntoConflicts({"a:b.mp3"}).front();
        const bool isMoved = here.contents("a:b.mp3").isEmpty();
        EXPECT_EQ(there.contents("a:b.mp3"), test.oldContents);
        EXPECT_EQ(there.contents("a:b 2.mp3"), "second");
        EXPECT_EQ(there.contents("a:b 3.mp3"), test.secondContents);
        EXPECT_EQ(operation->succeeded(), isMoved);
        EXPECT_EQ(operation->error().has_value(), !isMoved);
        EXPECT_EQ(progress->isCancelled(), test.isCancelled);
        if (isMoved) {
            EXPECT_EQ(there.contents(operation->dstURL().displayName().toUtf8()), "new");
        }
        std::filesystem::remove(there.path("a:b 3.mp3").toStdString());
    }
    EXPECT_TRUE(user.presentedErrors.empty());
    const HRFAlert &alert = user.alerts.front();
    EXPECT_EQ(alert.message, u"An item named “a/b.mp3” already exists in this location."_s);
    EXPECT_EQ(alert.informativeText, u"Do you want to replace it with the one you’re moving?"_s);
    EXPECT_EQ(alert.icon, there.file("a:b.mp3"));
    EXPECT_EQ(alert.suppressionTitle, QString()); // it is the last one
    EXPECT_TRUE(alert.buttons[1].isDestructive);
}

TEST_F(HRFMoveOperationTest, AnAnswerForAllIsNotAskedForAgain)
{
    user.answers = {{.button = u"Replace"_s, .isSuppressed = true}};
    const auto operations = runIntoConflicts({"a.mp3", "b.mp3", "c.mp3"});
    for (const auto &operation : operations)
        EXPECT_EQ(there.contents(operation->fileName().toUtf8()), "new");
    EXPECT_EQ(progress->completedUnitCount(), 3);
}

TEST_F(HRFMoveOperationTest, StopCancelsTheBatchAndIsNotRemembered)
{
    user.answers = {{.button = u"Stop"_s, .isSuppressed = true}, {u"Stop"_s}};
    const auto operations = runIntoConflicts({"a.mp3", "b.mp3"});
    EXPECT_FALSE(operations[1]->succeeded());
    EXPECT_EQ(operations[1]->srcURL(), HRFFileReference()); // it never ran
    progress = std::make_shared<HRFProgress>();
    runIntoConflicts({"c.mp3"});
    EXPECT_EQ(user.alerts.size(), 2U);
    EXPECT_EQ(here.contents("c.mp3"), "new");
}

TEST_F(HRFMoveOperationTest, OtherFailuresAreShownOneByOne)
{
    const auto vanished = here.make("gone.mp3");
    const Task tasks[] = {{vanished, there.file("gone.mp3")},
                          {here.make("a.mp3"), there.file("none/a.mp3")},
                          {here.make("b.mp3"), there.file("b.mp3")}};
    std::filesystem::remove(vanished.nativePath().toStdString());
    const auto operations = run({std::begin(tasks), std::end(tasks)});
    ASSERT_EQ(user.presentedErrors.size(), 2U);
    EXPECT_TRUE(user.presentedErrors[0].fullText().contains(u"“gone.mp3”"_s));
    EXPECT_TRUE(user.presentedErrors[1].fullText().contains(u"“a.mp3”"_s));
    EXPECT_EQ(here.contents("a.mp3"), "a.mp3");
    EXPECT_TRUE(operations[2]->succeeded());
    EXPECT_EQ(progress->completedUnitCount(), 1);
}

} // namespace
