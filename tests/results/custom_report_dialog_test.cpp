#include "results/custom_report_dialog.h"

#include <gtest/gtest.h>

#include "session/open_contest.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"
#include "tests/ui/memory_dialog.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

using Custom = CustomReportDialog;
using Lines = std::vector<std::string>;

class CustomReportDialogTest : public testing::Test {
 protected:
  CustomReportDialogTest() {
    ContestBuilder builder;
    builder.categories({"Beef", "Sheep"});
    builder.addClass({.name = "Steers", .category = 0}).addClass({.name = "Ewes", .category = 1});
    builder.addClass({.name = "Heifers", .reasons = true, .category = 0});
    builder.team("Adams", "Coach Hill", {"Ann", "Bob"});
    builder.scores(101, {{50}, {10, 0, 5}, {30, 45}}).scores(102, {{10}, {45}, {20, 44}});
    builder.contest.settings.numToReport = 1;
    builder.contest.settings.reportPercent = true;
    currentContest() = builder.contest;
    reportText() = "before";
  }
  ~CustomReportDialogTest() override {
    currentContest() = Contest{};
    reportText() = kWelcomeText;
  }

  Custom behaviour;
};

TEST_F(CustomReportDialogTest, ReportsWhatIsChosenByHandOverTheProposal) {
  for (void (MemoryDialog::*leave)() : {&MemoryDialog::pressEscape, &MemoryDialog::pressCloseBox}) {
    MemoryDialog dialog(Custom::kResourceId, behaviour);
    (dialog.*leave)();
    EXPECT_EQ(dialog.result(), kCancelId);
  }
  EXPECT_EQ(reportText(), "before");
  MemoryDialog dialog(Custom::kResourceId, behaviour);
  EXPECT_EQ(dialog.lines(Custom::kCategory), (Lines{"Beef", "Sheep"}));
  EXPECT_EQ(dialog.lines(Custom::kClasses), (Lines{"Steers", "Ewes", "Heifers"}));
  EXPECT_EQ(dialog.text(Custom::kNumber), "1");
  dialog.choose(Custom::kClasses, 1);
  dialog.choose(Custom::kCategory, 0);
  EXPECT_EQ(dialog.selections(Custom::kClasses), (std::vector<int>{0, 2}));
  dialog.choose(Custom::kClasses, 1);  // added by hand
  dialog.choose(Custom::kClasses, 0);  // taken out by hand
  dialog.fill(Custom::kNumber, "7");
  dialog.click(Custom::kPercent);
  dialog.click(Custom::kPlacings);
  dialog.click(kOkId);
  EXPECT_EQ(dialog.result(), kOkId);
  const std::string byHand = reportText();
  MemoryDialog teams(Custom::kResourceId, behaviour);
  teams.click(Custom::kTeam);
  teams.click(Custom::kQuestions);
  teams.fill(Custom::kNumber, "");
  teams.pressEnter();
  expectApproved(byHand + reportText(), "results/custom_reports.txt");
  EXPECT_EQ(currentContest().settings.numToReport, 1);
}

// Of 52 classes the last two do not count: Ann has 50 + 15 + 75 and 47 times 1.
TEST_F(CustomReportDialogTest, TakesTheFirstFiftyClassesAndAnyNumber) {
  Contest& contest = currentContest();
  contest.categories.clear();
  contest.settings.reportPercent = false;
  for (std::int32_t k = 3; k < 52; ++k) {
    contest.classes.add("More", false, false, 'A', {}, 0);
    contest.scores[101][k].placingScore = 1;
  }
  MemoryDialog dialog(Custom::kResourceId, behaviour);
  EXPECT_EQ(contest.categories, (Lines{kNoCategory}));
  for (int line = 51; line >= 0; --line) dialog.choose(Custom::kClasses, line);
  dialog.fill(Custom::kTitle, std::string(500, 'x'));
  dialog.fill(Custom::kNumber, "4000000000");
  dialog.click(kOkId);
  EXPECT_NE(reportText().find("     187\n    2  Bob"), std::string::npos) << reportText();
  EXPECT_EQ(reportText().find('\n'), std::string("High Individual Overall ").size() + 499);
}

}  // namespace

}  // namespace scorvane
