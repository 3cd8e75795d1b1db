#include "app/round_commands.h"

#include <gtest/gtest.h>

#include "tests/support/contest_builder.h"

namespace {

TEST(RoundVerificationCommand, MakesTheReportOnlyOfARoundTheContestHas) {
  const Contest contest = ContestBuilder().addClass({}).addClass({}).contest;
  ReportRequest request;
  EXPECT_EQ(roundVerification(contest, request), std::nullopt);
  for (const std::int32_t round : {-1, 2}) {
    request.round = round;
    EXPECT_EQ(roundVerification(contest, request), std::nullopt) << round;
  }
  request.round = 1;
  EXPECT_EQ(roundVerification(contest, request).value_or("").substr(0, 8), "Round 2 ");
}

}  // namespace
