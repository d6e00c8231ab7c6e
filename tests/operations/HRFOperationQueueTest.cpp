#include "operations/HRFOperationQueue.h"

#include "operations/HRFStripTagsOperation.h"
#include "operations/HRFTestAudioFiles.h"
#include "operations/HRFTestOperations.h"
#include "support/HRFScriptedInteraction.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using Values = QHash<QString, QVariant>;

template <class Operation = HRFTagWriteOperation>
std::shared_ptr<Operation> operationOn(const HRFFileReference &file, const Values &values = {})
{
    auto operation = std::make_shared<Operation>();
    operation->setFileURL(file);
    operation->setChangedValues(values);
    return operation;
}

/// A write that is held like a gate; as a subclass it is not merged.
class HeldWrite : public HRFTagWriteOperation
{
public:
    void waitUntilStarted() { m_hasStarted.acquire(); }
    void open() { m_isOpen.release(); }

protected:
    HRFResult<void> updateEngine(HRFTagEngine &engine) override
    {
        m_hasStarted.release();
        m_isOpen.acquire();
        return HRFTagWriteOperation::updateEngine(engine);
    }

private:
    std::binary_semaphore m_hasStarted{0};
    std::binary_semaphore m_isOpen{0};
};

class HRFOperationQueueTest : public HRFAudioFilesTest
{
protected:
    void hold()
    {
        queue.addOperation(gate);
        gate->waitUntilStarted();
    }
    void letGo()
    {
        gate->open();
        queue.waitUntilAllOperationsAreFinished();
    }

    HRFScriptedInteraction user;
    std::shared_ptr<HRFGate> gate = std::make_shared<HRFGate>();
    HRFOperationQueue queue;
};

TEST_F(HRFOperationQueueTest, AWaitingWriteIsMergedIntoTheNext)
{
    const HRFFileReference one = makeFile(u"a.mp3"_s);
    ASSERT_EQ(value(one, HRFTagKey::trackNumber), 3);
    ASSERT_EQ(::link(one.nativePath().constData(), file(u"b.mp3"_s).nativePath().constData()), 0);
    const auto progress = std::make_shared<HRFProgress>(1);
    const auto first = operationOn(
        one, {{u"title"_s, u"old"_s}, {u"artist"_s, u"kept"_s}, {u"trackNumber"_s, QVariant()}});
    first->setProgress(progress);
    const auto second = operationOn(one, {{u"comment"_s, u"also"_s}});
    const auto third = operationOn(file(u"b.mp3"_s), {{u"title"_s, u"new"_s}});
    const auto other = operationOn(makeFile(u"c.mp3"_s), {{u"title"_s, u"other"_s}});
    hold();
    queue.addOperations({first, other, second}, false);
    EXPECT_TRUE(first->isFinished());
    EXPECT_TRUE(first->isCancelled());
    EXPECT_TRUE(first->succeeded());
    EXPECT_EQ(progress->completedUnitCount(), 1);
    queue.addOperation(third);
    EXPECT_EQ(third->changedValues().value(u"trackNumber"_s), QVariant::fromValue(nullptr));
    EXPECT_EQ(queue.operationCount(), 3U);
    letGo();
    EXPECT_TRUE(third->succeeded());
    EXPECT_EQ(text(one, HRFTagKey::title), u"new"_s);
    EXPECT_EQ(text(one, HRFTagKey::artist), u"kept"_s);
    EXPECT_EQ(text(one, HRFTagKey::comment), u"also"_s);
    EXPECT_EQ(value(one, HRFTagKey::trackNumber).toInt(), 0);
    EXPECT_EQ(text(file(u"c.mp3"_s), HRFTagKey::title), u"other"_s);
}

TEST_F(HRFOperationQueueTest, AStripDropsTheWaitingWriteOfItsFileAlone)
{
    const auto write = operationOn(makeFile(u"a.mp3"_s), {{u"title"_s, u"new"_s}});
    const auto other = operationOn(makeFile(u"b.mp3"_s), {{u"title"_s, u"new"_s}});
    const auto strip = operationOn<HRFStripTagsOperation>(file(u"a.mp3"_s));
    const auto writeAfterwards = operationOn(file(u"a.mp3"_s), {{u"artist"_s, u"after"_s}});
    hold();
    queue.addOperations({write, other, strip, writeAfterwards}, false);
    EXPECT_TRUE(write->isCancelled());
    EXPECT_FALSE(write->succeeded());
    EXPECT_FALSE(strip->isCancelled()); // a write does not replace a strip
    letGo();
    EXPECT_TRUE(strip->succeeded());
    EXPECT_TRUE(other->succeeded());
    EXPECT_EQ(text(file(u"a.mp3"_s), HRFTagKey::title), QString());
    EXPECT_EQ(text(file(u"a.mp3"_s), HRFTagKey::artist), u"after"_s);
}

TEST_F(HRFOperationQueueTest, ValuesOfACancelledBatchAreNotMerged)
{
    const auto progress = std::make_shared<HRFProgress>(1);
    const auto first = operationOn(makeFile(u"a.mp3"_s), {{u"title"_s, u"unwanted"_s}});
    first->setProgress(progress);
    const auto second = operationOn(file(u"a.mp3"_s), {{u"artist"_s, u"new"_s}});
    hold();
    queue.addOperation(first);
    progress->cancel();
    queue.addOperation(second);
    letGo();
    EXPECT_FALSE(first->succeeded());
    EXPECT_TRUE(second->succeeded());
    EXPECT_NE(text(file(u"a.mp3"_s), HRFTagKey::title), u"unwanted"_s);
}

/// The first write has started when it asks what to do about a failure.
TEST_F(HRFOperationQueueTest, ARunningWriteIsNotMerged)
{
    QFile broken(file(u"a.mp3"_s).displayPath());
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("no audio") > 0);
    broken.close();
    const auto first = operationOn(file(u"a.mp3"_s), {{u"title"_s, u"first"_s}});
    const auto second = operationOn(file(u"a.mp3"_s), {{u"artist"_s, u"second"_s}});
    second->setLast(true);
    user.onQuestion = [&](const QString &) { queue.addOperation(second); };
    user.answers = {{HRFAnswerRole::Continue}};
    queue.addOperations({first}, true);
    second->waitUntilFinished();
    EXPECT_FALSE(first->isCancelled());
    EXPECT_FALSE(first->succeeded());
    EXPECT_EQ(second->changedValues(), (Values{{u"artist"_s, u"second"_s}}));
}

/// Even when the queue is wide, and the operation between two others is cancelled.
TEST_F(HRFOperationQueueTest, OperationsOnOneFileKeepTheirOrder)
{
    queue.setMaxConcurrentOperationCount(3);
    const HRFFileReference one = makeFile(u"a.mp3"_s);
    const auto first = operationOn<HeldWrite>(one, {{u"title"_s, u"first"_s}});
    const auto cancelled = operationOn(one, {{u"title"_s, u"cancelled"_s}});
    const auto last = operationOn(one, {{u"title"_s, u"last"_s}});
    last->setQueuePriority(HRFOperation::Priority::High);
    const auto other = operationOn(makeFile(u"b.mp3"_s), {{u"title"_s, u"other"_s}});
    queue.addOperations({first, cancelled}, false);
    first->waitUntilStarted();
    cancelled->cancel();
    queue.addOperations({last, other}, false);
    other->waitUntilFinished();
    EXPECT_FALSE(last->isExecuting() || last->isFinished());
    first->open();
    queue.waitUntilAllOperationsAreFinished();
    EXPECT_EQ(text(one, HRFTagKey::title), u"last"_s);
}

/// Whenever an earlier write happens to start, no value gets lost.
TEST_F(HRFOperationQueueTest, EditsThatComeWhileWritesRunAreAllWritten)
{
    constexpr int count = 200;
    const QString keys[] = {u"title"_s, u"artist"_s, u"album"_s, u"comment"_s};
    const HRFFileReference one = makeFile(u"a.mp3"_s);
    std::vector<std::shared_ptr<HRFTagWriteOperation>> writes;
    for (int i = 0; i < count; ++i) {
        writes.push_back(operationOn(one, {{keys[i % 4], QString::number(i)}}));
        queue.addOperation(writes.back());
        if (i % 7 == 0)
            writes.back()->waitUntilFinished();
    }
    queue.waitUntilAllOperationsAreFinished();
    for (const auto &write : writes)
        EXPECT_TRUE(write->succeeded());
    for (int i = count - 4; i < count; ++i)
        EXPECT_EQ(text(one, *HRFTagKeyForName(keys[i % 4].toStdString())), QString::number(i));
}

} // namespace
