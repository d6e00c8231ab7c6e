#include "operations/HRFTagWriteOperation.h"

#include "kit/HRFAssert.h"
#include "kit/HRFFileReferenceTable.h"
#include "operations/HRFMetaFile+Operations.h"
#include "operations/HRFOperationQueue.h"
#include "operations/HRFStripTagsOperation.h"
#include "operations/HRFTestAudioFiles.h"
#include "store/HRFMainContext.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"
#include "store/HRFObjectStore.h"
#include "store/HRFSystemFile.h"
#include "support/HRFScriptedInteraction.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using testing::SizeIs;

namespace {

/// A write that is not permitted as long as the file's mode says so, whoever runs the test.
class GuardedWrite : public HRFTagWriteOperation
{
protected:
    HRFResult<void> updateEngine(HRFTagEngine &engine) override
    {
        struct stat status{};
        EXPECT_EQ(::stat(fileURL().nativePath().constData(), &status), 0);
        return status.st_mode & S_IWUSR ? HRFTagWriteOperation::updateEngine(engine)
                                        : std::unexpected(HRFError::fromErrno(EACCES));
    }
};

/// Fails with an error of the test's choice.
class FailingWrite : public HRFTagWriteOperation
{
public:
    int code = ENOSPC;
    bool throws = false;

protected:
    HRFResult<void> updateEngine(HRFTagEngine & /*engine*/) override
    {
        HRFRequire(!throws, "a fault");
        return std::unexpected(HRFError::fromErrno(code));
    }
};

/// A write that is not permitted, of a file that is gone when its permissions are to be fixed.
class UnfixableWrite : public HRFTagWriteOperation
{
protected:
    HRFResult<void> updateEngine(HRFTagEngine & /*engine*/) override
    {
        EXPECT_EQ(::unlink(fileURL().nativePath().constData()), 0);
        return std::unexpected(HRFError::fromErrno(EACCES));
    }
};

class HRFTagWriteOperationTest : public HRFAudioFilesTest
{
protected:
    /// One operation per file, all of one batch.
    template <class Operation> std::vector<std::shared_ptr<Operation>> batch(int count)
    {
        std::vector<std::shared_ptr<Operation>> operations;
        const auto answers = std::make_shared<HRFAppliedAnswers>();
        for (int i = 0; i < count; ++i) {
            auto operation = std::make_shared<Operation>();
            operation->setFileURL(makeFile(u"%1.mp3"_s.arg(i)));
            operation->setChangedValues({{u"title"_s, u"new"_s}});
            operation->setProgress(progress);
            operation->setAppliedAnswers(answers);
            operation->setLast(i == count - 1);
            operations.push_back(operation);
        }
        return operations;
    }
    template <class Operation> void run(const std::vector<std::shared_ptr<Operation>> &operations)
    {
        queue.addOperations({operations.begin(), operations.end()}, true);
    }
    template <class Operation>
    static qsizetype successes(const std::vector<std::shared_ptr<Operation>> &operations)
    {
        return std::ranges::count_if(operations, [](const auto &one) { return one->succeeded(); });
    }
    static void protect(const HRFFileReference &file)
    {
        ASSERT_EQ(::chmod(file.nativePath().constData(), 0444), 0);
    }

    HRFScriptedInteraction user;
    HRFOperationQueue queue;
    std::shared_ptr<HRFProgress> progress = std::make_shared<HRFProgress>(20);
};

TEST_F(HRFTagWriteOperationTest, AnAnswerForAllHoldsForTheBatch)
{
    for (const bool fixes : {true, false}) {
        auto operations = batch<GuardedWrite>(20);
        for (const auto &operation : operations)
            protect(operation->fileURL());
        user.answers = {{fixes ? HRFAnswerRole::Fix : HRFAnswerRole::Cancel, true}};
        run(operations);
        EXPECT_THAT(user.alerts, SizeIs(1));
        EXPECT_EQ(user.alerts.front().suppressionTitle, u"Apply to All"_s);
        EXPECT_EQ(successes(operations), fixes ? 20 : 0);
        EXPECT_EQ(progress->completedUnitCount(), fixes ? 20 : 0);
        for (const auto &operation : operations) {
            EXPECT_EQ(operation->error().has_value(), !fixes);
            EXPECT_EQ(text(operation->fileURL(), HRFTagKey::title) == u"new"_s, fixes);
            EXPECT_EQ(::unlink(operation->fileURL().nativePath().constData()), 0);
        }
        user.alerts.clear();
        progress->setCompletedUnitCount(0);
    }
}

TEST_F(HRFTagWriteOperationTest, TheLastFileIsAskedAboutAlone)
{
    auto operations = batch<GuardedWrite>(2);
    protect(operations[1]->fileURL());
    user.answers = {{u"Cancel"_s}};
    run(operations);
    ASSERT_THAT(user.alerts, SizeIs(1));
    EXPECT_EQ(user.alerts.front().suppressionTitle, QString());
    EXPECT_EQ(successes(operations), 1);
}

/// Each failure is told, unless the user has enough of them.
TEST_F(HRFTagWriteOperationTest, PermissionsThatCannotBeFixedEndTheFile)
{
    const HRFScriptedInteraction::Answer fixAll{u"Fix Permissions"_s, true};
    const struct
    {
        std::deque<HRFScriptedInteraction::Answer> answers;
        std::size_t presented; ///< of the last file
        bool isCancelled;
    } cases[] = {{{fixAll, {u"Continue"_s}, {u"Continue"_s, true}}, 1, false},
                 {{fixAll, {u"Cancel"_s}}, 0, true}};
    for (const auto &test : cases) {
        user.alerts.clear();
        user.presentedErrors.clear();
        user.answers = test.answers;
        auto operations = batch<UnfixableWrite>(5);
        run(operations);
        EXPECT_THAT(user.alerts, SizeIs(test.answers.size()));
        EXPECT_TRUE(user.alerts.back().message.contains(u"could not be changed"_s));
        EXPECT_THAT(user.presentedErrors, SizeIs(test.presented));
        EXPECT_EQ(successes(operations), 0);
        EXPECT_EQ(progress->isCancelled(), test.isCancelled);
    }
}

/// A file that stays protected all the same is not fixed for ever, least of all without a question.
TEST_F(HRFTagWriteOperationTest, PermissionsAreFixedOnce)
{
    auto operations = batch<FailingWrite>(3);
    for (const auto &operation : operations)
        operation->code = EACCES;
    user.answers = {{u"Fix Permissions"_s, true}, {u"Continue"_s}, {u"Continue"_s}};
    run(operations);
    EXPECT_THAT(user.alerts, SizeIs(3));
    EXPECT_THAT(user.presentedErrors, SizeIs(1)); // the last file's
    EXPECT_EQ(successes(operations), 0);
}

TEST_F(HRFTagWriteOperationTest, OtherFailuresAskWhetherToContinue)
{
    auto operations = batch<FailingWrite>(4);
    operations[1]->throws = true;
    user.answers = {{HRFAnswerRole::Continue}, {HRFAnswerRole::Cancel}};
    progress->setLocalizedDescription(u"Set Artwork"_s);
    run(operations);
    ASSERT_THAT(user.alerts, SizeIs(2));
    EXPECT_EQ(user.alerts[0].title, u"Set Artwork"_s);
    EXPECT_EQ(user.alerts[0].suppressionTitle, QString());
    EXPECT_TRUE(progress->isCancelled());
    EXPECT_EQ(successes(operations), 0);
    EXPECT_EQ(operations[0]->error()->code, ENOSPC);
    EXPECT_TRUE(operations[1]->error()->fullText().contains(u"“1.mp3”: Invalid parameter"_s));
    EXPECT_FALSE(operations[3]->error()); // it was not touched
}

class HRFRecordOperationTest : public HRFTagWriteOperationTest
{
protected:
    HRFRecordOperationTest()
        : context(HRFObjectModel::named(u"Lirra"_s),
                  *HRFObjectStore::open(
                      file(u"list.sqlite"_s).displayPath(), HRFObjectModel::named(u"Lirra"_s),
                      HRFObjectStore::Migrates::Yes, HRFObjectStore::Durability::Session))
        , record(*context.newObject<HRFMetaFile>())
    {
        const HRFFileReference one = makeFile(u"a.mp3"_s);
        record.setFileURL(*HRFFileReferenceTable::referenceURLForFile(one));
        record.importValuesFromEngine(HRFTagEngine::initWithURL(one, true)->get());
    }
    template <class Operation> std::shared_ptr<Operation> operation()
    {
        auto made = HRFFileOperation::operationWithFile<Operation>(record);
        made->setLast(true);
        return made;
    }

    HRFMainContext context;
    HRFMetaFile &record;
};

TEST_F(HRFRecordOperationTest, TheRecordIsRefreshed)
{
    const auto write = operation<HRFTagWriteOperation>();
    write->setChangedValues({{u"lyrics"_s, QString(5000, u'l')}, {u"artwork"_s, HRFSampleGIF}});
    EXPECT_EQ(write->objectID(), record.objectID());
    const auto strip = operation<HRFStripTagsOperation>();
    const QVariant oldSize = record.fileInfo().valueForKey(u"fileSize"_s);
    const auto oldTagSize = record.tagSize();

    run<HRFTagWriteOperation>({write});
    ASSERT_TRUE(write->succeeded());
    HRFUpdateWithOperation(record, *write);
    EXPECT_GT(record.tagSize(), oldTagSize);
    EXPECT_EQ(record.tagSize(), value(file(u"a.mp3"_s), HRFTagKey::tagSize).toLongLong());
    EXPECT_EQ(record.artworkMD5().size(), 32);
    EXPECT_NE(record.fileInfo().valueForKey(u"fileSize"_s), oldSize);

    ASSERT_TRUE(record.tags().valueForKey(u"title"_s).isValid());
    run<HRFTagWriteOperation>({strip});
    ASSERT_TRUE(strip->succeeded());
    HRFUpdateWithOperation(record, *strip);
    EXPECT_FALSE(record.tags().valueForKey(u"title"_s).isValid());
    EXPECT_EQ(record.artworkMD5(), QString());
}

TEST_F(HRFRecordOperationTest, TheFileIsFollowedWhereItMoves)
{
    const auto write = operation<HRFTagWriteOperation>();
    write->setChangedValues({{u"title"_s, u"new"_s}});
    ASSERT_EQ(::rename(file(u"a.mp3"_s).nativePath().constData(),
                       file(u"b.mp3"_s).nativePath().constData()),
              0);
    makeFile(u"a.mp3"_s); // another one in its place
    run<HRFTagWriteOperation>({write});
    EXPECT_TRUE(write->succeeded());
    EXPECT_EQ(write->fileURL(), file(u"b.mp3"_s));
    EXPECT_EQ(text(file(u"b.mp3"_s), HRFTagKey::title), u"new"_s);
    EXPECT_NE(text(file(u"a.mp3"_s), HRFTagKey::title), u"new"_s);
}

TEST_F(HRFRecordOperationTest, AFileThatIsGoneIsNamed)
{
    const auto before = operation<HRFTagWriteOperation>();
    ASSERT_EQ(::unlink(file(u"a.mp3"_s).nativePath().constData()), 0);
    const auto after = operation<HRFStripTagsOperation>();
    run<HRFTagWriteOperation>({before, after});
    ASSERT_THAT(user.presentedErrors, SizeIs(1));
    EXPECT_EQ(user.presentedErrors.front().code, HRFFileErrorCode::noSuchFile);
    EXPECT_TRUE(user.presentedErrors.front().description.contains(u"“a.mp3”"_s));
    EXPECT_EQ(user.presentedErrors.front().path, file(u"a.mp3"_s).displayPath());
}

} // namespace
