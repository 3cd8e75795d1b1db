// Table and places of the reasons order tell the same story after everything that changes either.
#include <gtest/gtest.h>

#include "model/reasons_check.h"
#include "setup/reasons_order_generation.h"
#include "setup/regrouping.h"
#include "setup/team_members.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
#include "tests/setup/reasons_contest.h"

namespace {

TEST(ReasonsOrder, StaysConsistentWithThePlaces) {
  Contest contest = reasonsContest(3, 3, 12);
  const auto placed = [&] {
    EXPECT_EQ(reasonsOrderFault(contest), "");
    return contest.reasonsOrder.cells().size();
  };
  ASSERT_EQ(generateReasonsOrder(contest, 5), std::nullopt);
  EXPECT_EQ(placed(), 12U);
  leaveReasonsOrder(contest, contest.reasonsOrder.cell(1, 1));
  EXPECT_EQ(placed(), 11U);
  removeTeam(contest, "Team 104");
  EXPECT_EQ(placed(), 10U);
  addTeam(contest, "Team 113", {"", {113}});
  EXPECT_EQ(placed(), 10U);

  contest.contestantNames[113] = "Taker 113";
  const auto loaded = readContest(writeContest(contest));
  ASSERT_TRUE(std::holds_alternative<Contest>(loaded));
  const Contest before = contest;
  contest = std::get<Contest>(loaded);
  EXPECT_EQ(placed(), 10U);
  EXPECT_EQ(contest.reasonsOrder, before.reasonsOrder);
  clearReasonsOrder(contest);
  EXPECT_EQ(placed(), 0U);
}

}  // namespace
