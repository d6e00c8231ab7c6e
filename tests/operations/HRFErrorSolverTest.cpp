#include "operations/HRFErrorSolver.h"

#include "kit/HRFAssert.h"
#include "operations/HRFProgress.h"
#include "support/HRFScriptedInteraction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class HRFErrorSolverTest : public testing::Test
{
protected:
    HRFErrorSolverTest()
    {
        HRFError error = HRFError::fromErrno(ENOENT);
        error.path = u"/a/b.mp3"_s;
        solver = HRFErrorSolver::solverWithError(error);
        const auto edit = [this] {
            ++edits;
            return true;
        };
        solver->addRecoveryOptionWithLocalizedTitle(u"Edit Pattern"_s, edit, HRFAnswerRole::Fix);
        solver->addCancelRecoveryOption();
        solver->setCompletionHandler([this](bool result) { completions.push_back(result); });
    }

    HRFScriptedInteraction user;
    std::shared_ptr<HRFErrorSolver> solver;
    int edits = 0;
    std::vector<bool> completions;
};

TEST_F(HRFErrorSolverTest, ButtonsRunTheirOptions)
{
    user.answers = {{u"Edit Pattern"_s}, {HRFAnswerRole::Cancel}};
    const auto progress = std::make_shared<HRFProgress>();
    progress->setLocalizedDescription(u"Rename"_s);
    EXPECT_TRUE(presentErrorSolver(*solver, progress));
    EXPECT_FALSE(presentErrorSolver(*solver));
    EXPECT_EQ(edits, 1);
    EXPECT_THAT(completions, ElementsAre(true));
    const HRFAlert &alert = user.alerts.front();
    EXPECT_EQ(alert.title, u"Rename"_s);
    EXPECT_EQ(alert.message, HRFError::fromErrno(ENOENT).description);
    EXPECT_EQ(alert.icon.displayPath(), u"/a/b.mp3"_s);
    EXPECT_EQ(alert.suppressionTitle, QString());
    EXPECT_TRUE(alert.isCritical);
}

TEST_F(HRFErrorSolverTest, AnAnswerForAllIsTakenWithoutAsking)
{
    std::optional<int> response;
    user.answers = {{u"Cancel"_s}, {u"Edit Pattern"_s, true}};
    EXPECT_FALSE(presentErrorSolver(*solver, response, true));
    EXPECT_FALSE(response);
    EXPECT_EQ(user.alerts.front().suppressionTitle, u"Apply to All"_s);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(presentErrorSolver(*solver, response, true));
    EXPECT_EQ(edits, 3);
    EXPECT_EQ(user.alerts.size(), 2U);
    response = 5;
    try {
        presentErrorSolver(*solver, response, true);
        FAIL();
    } catch (const HRFAssertionFailure &failure) {
        EXPECT_STREQ(failure.what(), "Recovery option index is out of bounds");
    }
}

TEST_F(HRFErrorSolverTest, TheErrorCarriesTheSolver)
{
    const HRFError error = solver->error();
    EXPECT_EQ(HRFErrorSolver::solverOfError(error), solver);
    EXPECT_EQ(HRFErrorSolver::solverOfError(HRFError::fromErrno(ENOENT)), nullptr);
    solver.reset();
    user.answers = {{u"Edit Pattern"_s}};
    EXPECT_TRUE(user.presentError(error, {}));
    EXPECT_EQ(edits, 1);
    EXPECT_THAT(completions, ElementsAre(true));
    EXPECT_EQ(error.code, ENOENT);
    ASSERT_TRUE(error.underlying);
    EXPECT_TRUE(error.underlying->recoveryOptions.isEmpty());
    EXPECT_THROW(error.recoveryAttempter(error, 2), HRFAssertionFailure);
}

} // namespace
