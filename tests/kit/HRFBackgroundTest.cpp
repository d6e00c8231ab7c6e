#include "kit/HRFBackground.h"

#include "kit/HRFMainThread.h"

#include <gtest/gtest.h>

namespace {

TEST(HRFBackgroundGroupTest, ServesNothingWhileItsOwnerGoes)
{
    std::atomic<bool> isDone = false;
    bool isServed = false;
    {
        HRFBackgroundGroup group;
        group.run([&] {
            HRFMainThread::run([&] { isServed = true; }, HRFMainThread::Wait::No);
            isDone = true;
        });
    }
    EXPECT_TRUE(isDone);
    EXPECT_FALSE(isServed);
    HRFBackground::waitUntilIdle();
    EXPECT_TRUE(isServed);
}

} // namespace
