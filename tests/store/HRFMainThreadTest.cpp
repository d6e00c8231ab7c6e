#include "kit/HRFMainThread.h"

#include "support/HRFTestApplication.h"

#include <QEventLoop>
#include <QTimer>

namespace {

using HRFMainThreadTest = HRFApplicationTest;

/// A worker may post a block that asks the user, and wait for another one meanwhile.
TEST_F(HRFMainThreadTest, ServesWaitingBlocksWhileABlockRunsAnEventLoop)
{
    using HRFMainThread::Wait;
    QEventLoop question;
    bool isAnswered = false;
    bool isServedBefore = false;
    HRFMainThread::run(
        [&] {
            constexpr int patience = 5000;
            QTimer::singleShot(patience, &question, &QEventLoop::quit);
            question.exec();
            isAnswered = true;
        },
        Wait::No);
    HRFMainThread::run(
        [&] {
            isServedBefore = !isAnswered;
            question.quit();
        },
        Wait::No);
    waitUntil([&] { return isAnswered; });
    EXPECT_TRUE(isServedBefore);
}

} // namespace
