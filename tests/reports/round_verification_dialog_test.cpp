#include "reports/round_verification_dialog.h"

#include <gtest/gtest.h>

#include "reports/round_reports.h"
#include "session/open_contest.h"
#include "tests/support/contest_builder.h"
#include "tests/ui/memory_dialog.h"

namespace scorvane {

namespace {

using Lines = std::vector<std::string>;
constexpr auto kRounds = RoundVerificationDialog::kRounds;
constexpr auto kGroups = RoundVerificationDialog::kGroups;
constexpr auto kClasses = RoundVerificationDialog::kClasses;

// Four groups judge three classes, so that group D judges none.
TEST(RoundVerification, ReportsTheRoundChosenOrFoundForAGroupAndAClass) {
  ContestBuilder builder;
  builder.contest.settings.numGroups = 4;
  builder.contest.groupLetters = {'A', 'B', 'C', 'D'};
  for (const char* name : {"Heifers", "Wethers", "Gilts"}) builder.addClass({name});
  currentContest() = builder.team("Oak", "", {"Ann"}).placings(101, "BCD").contest;
  reportText() = "before\n";
  RoundVerificationDialog behaviour;
  MemoryDialog closed(RoundVerificationDialog::kResourceId, behaviour);
  closed.pressCloseBox();
  EXPECT_EQ(closed.result(), 0);

  MemoryDialog dialog(RoundVerificationDialog::kResourceId, behaviour);
  EXPECT_EQ(dialog.lines(kRounds), (Lines{"         1", "         2", "         3"}));
  EXPECT_EQ(dialog.lines(kGroups), (Lines{"       A", "       B", "       C", "       D"}));
  EXPECT_EQ(dialog.lines(kClasses), (Lines{" 1.  Heifers", " 2.  Wethers", " 3.  Gilts"}));
  dialog.choose(kRounds, 0);
  dialog.choose(kGroups, 1);
  EXPECT_EQ(dialog.selection(kRounds), std::nullopt);
  dialog.click(kOkId);
  EXPECT_EQ(dialog.desktop.messages.at(0).caption, "Information");
  EXPECT_EQ(dialog.desktop.takeMessage(),
            "You must select either a round number or a group and class to report on.");
  EXPECT_EQ(dialog.result(), std::nullopt);
  EXPECT_EQ(reportText(), "before\n");
  dialog.choose(kClasses, 0);
  EXPECT_EQ(dialog.selection(kRounds), 2);
  dialog.choose(kGroups, 3);
  EXPECT_EQ(dialog.selection(kRounds), std::nullopt);
  dialog.choose(kRounds, 1);
  EXPECT_EQ(dialog.selection(kGroups), std::nullopt);
  EXPECT_EQ(dialog.selection(kClasses), std::nullopt);
  dialog.pressEnter();
  EXPECT_EQ(dialog.result(), kOkId);
  EXPECT_EQ(reportText(), roundVerificationReport(currentContest(), 1));
  currentContest() = Contest{};
}

}  // namespace

}  // namespace scorvane
