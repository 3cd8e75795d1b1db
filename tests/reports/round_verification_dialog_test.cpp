#include "reports/round_verification_dialog.h"

#include <gtest/gtest.h>

#include "tests/support/contest_builder.h"
#include "tests/ui/memory_dialog.h"
#include "view/report_text.h"

namespace {

using Lines = std::vector<std::string>;
constexpr auto kRounds = RoundVerificationDialog::kRounds;
constexpr auto kGroups = RoundVerificationDialog::kGroups;
constexpr auto kClasses = RoundVerificationDialog::kClasses;

struct RoundVerification : testing::Test {
  static Contest threeClasses() {
    ContestBuilder builder;
    builder.contest.settings.numGroups = 3;
    builder.contest.groupLetters = {'A', 'B', 'C'};
    for (const char* name : {"Heifers", "Wethers", "Gilts"}) builder.addClass({name});
    builder.team("Oak", "", {"Ann"}).placings(101, "BCD");
    return builder.contest;
  }

  Contest& contest = currentContest() = threeClasses();
  RoundVerificationDialog behaviour;
  MemoryDialog dialog{RoundVerificationDialog::kResourceId, behaviour};
};

TEST_F(RoundVerification, ListsRoundsGroupsAndClasses) {
  EXPECT_EQ(dialog.caption(), "Round Verification Report");
  EXPECT_EQ(dialog.lines(kRounds), (Lines{"         1", "         2", "         3"}));
  EXPECT_EQ(dialog.lines(kGroups), (Lines{"       A", "       B", "       C"}));
  EXPECT_EQ(dialog.lines(kClasses), (Lines{" 1.  Heifers", " 2.  Wethers", " 3.  Gilts"}));
}

TEST_F(RoundVerification, ReportsTheRoundChosen) {
  dialog.choose(kRounds, 1);
  dialog.pressEnter();
  EXPECT_EQ(dialog.result(), 1);
  EXPECT_EQ(reportText().substr(0, 28), "Round 2 Verification Report\n");
  EXPECT_NE(reportText().find("   101-C |"), std::string::npos);
}

TEST_F(RoundVerification, FindsTheRoundOfAGroupAndAClass) {
  dialog.choose(kRounds, 0);
  dialog.choose(kGroups, 1);
  EXPECT_EQ(dialog.selection(kRounds), std::nullopt);
  dialog.choose(kClasses, 0);
  EXPECT_EQ(dialog.selection(kRounds), 2);
  dialog.choose(kClasses, 1);
  EXPECT_EQ(dialog.selection(kRounds), 0);
  dialog.choose(kRounds, 1);
  EXPECT_EQ(dialog.selection(kGroups), std::nullopt);
  EXPECT_EQ(dialog.selection(kClasses), std::nullopt);
}

TEST_F(RoundVerification, AsksForAChoice) {
  reportText() = "before\n";
  dialog.choose(kGroups, 0);
  dialog.click(kOkId);
  ASSERT_EQ(dialog.desktop.messages.size(), 1U);
  EXPECT_EQ(dialog.desktop.messages[0].caption, "Information");
  EXPECT_EQ(dialog.desktop.takeMessage(),
            "You must select either a round number or a group and class to report on.");
  EXPECT_EQ(dialog.result(), std::nullopt);
  dialog.pressEscape();
  EXPECT_EQ(dialog.result(), 2);
  EXPECT_EQ(reportText(), "before\n");
}

TEST_F(RoundVerification, EndsWithNothingFromTheCloseBox) {
  dialog.pressCloseBox();
  EXPECT_EQ(dialog.result(), 0);
}

TEST_F(RoundVerification, SelectsNoRoundForAGroupThatJudgesNothing) {
  contest.settings.numGroups = 4;
  contest.groupLetters.push_back('D');
  RoundVerificationDialog fourGroups;
  MemoryDialog crowded(RoundVerificationDialog::kResourceId, fourGroups);
  crowded.choose(kGroups, 3);
  crowded.choose(kClasses, 0);
  EXPECT_EQ(crowded.selection(kRounds), std::nullopt);
}

}  // namespace
