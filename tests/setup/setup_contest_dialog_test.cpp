#include "setup/setup_contest_dialog.h"

#include "setup/setup_contest_controls.h"
#include "tests/setup/reasons_contest.h"
#include "tests/setup/setup_dialog.h"
#include "view/report_text.h"

using namespace setup_contest;

namespace {

using ContestSetup = SetupDialog<SetupContestDialog, kDialog>;

TEST(SetupContest, ChecksTheFieldsInOrder) {
  struct Step {
    ControlId field;
    std::string message;
    const char* correction;
  };
  const std::string groups = "The number of groups must be between 1 and 26.|Error";
  const Step steps[] = {
      {kContestName, "The contest name cannot be empty.|Error", "County Fair"},
      {kDivisionName, "The division name cannot be empty.|Error", "Senior"},
      {kContestDate, "The contest date cannot be empty.|Error", "today"},
      {kGroups, groups, "x27"},
      {kGroups, groups, "26"},
      {kReasonsTakers,
       "There must be at least one (1) reasons taker.\nIf you do not have any reasons classes, "
       "this value will be ignored.|Error",
       "x2"},
      {kNumberToScore, "The number to score must be one (1) or greater.|Information", "x5"},
      {kPerTeam, "The number of contestants per team must be one (1) or greater.|Information",
       "x4"},
      {kTotalPerTeam, "The total number per team must be one (1) or greater.|Information", "x5"},
      {kPerTeam,
       "The number of contestants per team must be greater (or equal to) than the number of "
       "contestants to score.|Error",
       "6"},
      {kTotalPerTeam,
       "The total number of contestants per team must be greater than (or equal to) the number of "
       "contestants per team.|Error",
       "7"},
  };
  ContestSetup setup;
  EXPECT_EQ(setup.focusAndDefault(), FocusAndDefault(kContestName, kDone));
  for (const Step& step : steps) setup.fill(step.field, "");
  setup.fill(kStartNumber, "x301");
  setup.fill(kNumberToReport, "x15");
  for (const auto& [field, message, correction] : steps) {
    EXPECT_EQ(setup.press(kDone), message);
    EXPECT_EQ(setup.focused(), field == kContestDate ? kContestName : field) << message;
    EXPECT_FALSE(setup.isDone());
    setup.fill(field, correction);
  }
  reportText() = "old report";
  setup.pressCloseBox();
  EXPECT_TRUE(setup.isDone());
  EXPECT_EQ(reportText(), kWelcomeText);
  const ContestSettings expected = {"County Fair", "Senior", "today", 301, 6,   7,  5,
                                    false,         15,       26,      2,   301, 'A'};
  EXPECT_EQ(currentContest().settings, expected);
}

TEST(SetupContest, CancelPutsBackWhatARefusedDoneStored) {
  Contest before = reasonsContest(2, 1, 3);
  placeGroup(before, 0, {101, 102});
  before.settings.reportPercent = true;
  ContestSetup setup(before);
  reportText() = "old report";
  setup.fill(kContestName, "Other");
  setup.click(kReportPercent);
  setup.fill(kReasonsTakers, "3");
  setup.fill(kNumberToScore, "0");
  setup.fill(kCategoryText, "Swine");
  setup.pressEnter();
  setup.click(kDone);
  EXPECT_EQ(currentContest().settings.contestName, "Other");
  EXPECT_FALSE(currentContest().settings.reportPercent);
  setup.fill(kReasonsTakers, "0");
  setup.click(kDone);
  EXPECT_EQ(currentContest().settings.numReasonsGroups, 2);
  setup.pressEscape();
  EXPECT_EQ(setup.result(), kCancelId);
  EXPECT_TRUE(setup.desktop.fileQuestions.empty());
  EXPECT_EQ(reportText(), kWelcomeText);
  // The reasons order is gone nevertheless.
  before.reasonsOrder.reset(3, 3);
  before.reasonsPlace[101] = before.reasonsPlace[102] = {};
  before.settings.nextContestantNum = before.settings.startNum;
  EXPECT_EQ(currentContest(), before);
}

TEST(SetupContest, DoneRegroupsEverybodyAndKeepsTheOrderOfAsManyTakers) {
  Contest contest = reasonsContest(2, 1, 4);
  placeGroup(contest, 1, {103});
  contest.contestantGroup[102] = 'Q';
  ContestSetup setup(contest);
  EXPECT_FALSE(setup.isEnabled(kStartNumber) || setup.isEnabled(kTotalPerTeam));
  setup.fill(kReasonsTakers, "2");
  setup.fill(kGroups, "3");
  setup.click(kDone);
  contest.settings.numGroups = 3;
  contest.settings.nextContestantNum = 101;
  contest.groupLetters = {'A', 'B', 'C'};
  contest.contestantGroup[102] = 'B';
  contest.contestantGroup[104] = 'A';
  EXPECT_EQ(currentContest(), contest);
}

TEST(SetupContest, CategoriesAreAddedUpdatedAndDeleted) {
  ContestSetup setup;
  const Lines& stored = currentContest().categories;
  EXPECT_EQ(setup.lines(kCategoryList), Lines{"none"});
  // A lone "none" gives way to the first category; nobody looks for duplicates.
  for (const char* name : {"Swine", "none", "Swine", "Hay\tand\r\nGrain"}) {
    setup.paste(kCategoryText, name);
    setup.pressEnter();
  }
  EXPECT_EQ(stored, (Lines{"Swine", "none", "Swine", "Hay and  Grain"}));
  EXPECT_EQ(setup.lines(kCategoryList), stored);
  setup.focus(kGroups);
  EXPECT_EQ(setup.defaultButton(), kDone);
  EXPECT_EQ(setup.press(kAddCategory), "Category cannot be empty.|Information");
  EXPECT_EQ(setup.press(kUpdateCategory), "No category selected.|Information");
  EXPECT_EQ(setup.press(kDeleteCategory), "No category selected.|Information");
  // The first category's stored name is never updated, though its line is.
  for (const int line : {0, 2}) {
    setup.choose(kCategoryList, line);
    EXPECT_EQ(setup.focusAndDefault(), FocusAndDefault(kCategoryText, kUpdateCategory));
    EXPECT_EQ(setup.text(kCategoryText), "Swine");
    EXPECT_EQ(setup.press(kAddCategory),
              "When a category is selected Update and Delete are the only valid buttons.|"
              "Information");
    setup.fill(kCategoryText, "");
    EXPECT_EQ(setup.press(kUpdateCategory), "Category cannot be empty.|Information");
    EXPECT_EQ(setup.text(kCategoryText), "Swine");
    setup.fill(kCategoryText, "Hogs");
    setup.pressEnter();
    EXPECT_EQ(setup.focusAndDefault(), FocusAndDefault(kCategoryText, kAddCategory));
    EXPECT_EQ(setup.text(kCategoryText), "");
  }
  EXPECT_EQ(setup.lines(kCategoryList), (Lines{"Hogs", "none", "Hogs", "Hay and  Grain"}));
  EXPECT_EQ(stored, (Lines{"Swine", "none", "Hogs", "Hay and  Grain"}));
  currentContest().classes.className = {"Steers"};
  EXPECT_EQ(setup.press(kDeleteCategory),
            "Once classes have been entered, categories can no longer be deleted.  They can only "
            "be added and/or updated.|Information");
  currentContest().classes.clear();
  for (auto left = std::ssize(stored); left > 0; --left) {
    EXPECT_EQ(setup.lineCount(kCategoryList), left);
    setup.choose(kCategoryList, 0);
    setup.click(kDeleteCategory);
    EXPECT_EQ(setup.focusAndDefault(), FocusAndDefault(kCategoryText, kAddCategory));
    EXPECT_EQ(setup.text(kCategoryText), "");
  }
  EXPECT_TRUE(stored.empty());
  setup.click(kDone);
  EXPECT_EQ(stored, Lines{"none"});
}

}  // namespace
