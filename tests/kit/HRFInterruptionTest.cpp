#include "kit/HRFInterruption.h"

#include <gtest/gtest.h>

#include <csignal>
#include <poll.h>

namespace {

void raiseTwice(HRFInterruption::Again again)
{
    HRFInterruption::handleSignals(again);
    pollfd wait{HRFInterruption::descriptor(), POLLIN, 0};
    EXPECT_EQ(::poll(&wait, 1, 0), 0);
    EXPECT_FALSE(HRFInterruption::isRequested());
    EXPECT_EQ(std::raise(SIGTERM), 0);
    EXPECT_EQ(::poll(&wait, 1, 0), 1);
    EXPECT_TRUE(HRFInterruption::isRequested());
    std::raise(SIGINT);
    std::exit(testing::Test::HasFailure() ? EXIT_FAILURE : EXIT_SUCCESS);
}

TEST(HRFInterruptionDeathTest, TheSecondSignalMayEndTheProgram)
{
    using HRFInterruption::Again;
    EXPECT_EXIT(raiseTwice(Again::AsksOnly), testing::ExitedWithCode(EXIT_SUCCESS), "");
    EXPECT_EXIT(raiseTwice(Again::EndsAtOnce), testing::KilledBySignal(SIGINT), "");
}

} // namespace
