#include "kit/HRFInterruption.h"

#include <gtest/gtest.h>

#include <csignal>
#include <poll.h>

namespace {

void raiseTwo(HRFInterruption::Again again, int second)
{
    HRFInterruption::handleSignals(again);
    pollfd wait{HRFInterruption::descriptor(), POLLIN, 0};
    EXPECT_EQ(::poll(&wait, 1, 0), 0);
    EXPECT_FALSE(HRFInterruption::isRequested());
    EXPECT_EQ(std::raise(SIGTERM), 0);
    EXPECT_EQ(::poll(&wait, 1, 0), 1);
    EXPECT_TRUE(HRFInterruption::isRequested());
    std::raise(second);
    std::exit(testing::Test::HasFailure() ? EXIT_FAILURE : EXIT_SUCCESS);
}

TEST(HRFInterruptionDeathTest, TheSecondSignalMayEndTheProgram)
{
    using HRFInterruption::Again;
    const auto goesOn = testing::ExitedWithCode(EXIT_SUCCESS);
    EXPECT_EXIT(raiseTwo(Again::AsksOnly, SIGTERM), goesOn, "");
    EXPECT_EXIT(raiseTwo(Again::EndsAtOnce, SIGTERM), testing::KilledBySignal(SIGTERM), "");
    EXPECT_EXIT(raiseTwo(Again::EndsAtOnce, SIGHUP), goesOn, ""); // as the end of a session does
}

} // namespace
