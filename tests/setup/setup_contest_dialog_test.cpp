#include "setup/setup_contest_dialog.h"

#include "setup/setup_contest_controls.h"
#include "tests/setup/reasons_contest.h"
#include "tests/setup/setup_dialog.h"
#include "view/report_text.h"

using namespace setup_contest;

namespace {

using Lines = std::vector<std::string>;

struct ContestSetup : SetupDialog<SetupContestDialog> {
  explicit ContestSetup(Contest contest = ContestBuilder().contest)
      : SetupDialog(kDialog, std::move(contest)) {}

  void addCategory(const char* name) {
    dialog.paste(kCategoryText, name);
    dialog.pressEnter();
  }
};

TEST(SetupContest, ChecksTheFieldsInOrder) {
  ContestSetup setup;
  MemoryDialog& dialog = setup.dialog;
  for (const ControlId id : {kContestName, kDivisionName, kContestDate, kReasonsTakers,
                             kNumberToScore, kPerTeam, kTotalPerTeam}) {
    dialog.fill(id, "");
  }
  dialog.fill(kGroups, "27");
  struct Step {
    std::string message;
    ControlId focus;
    ControlId corrected;
    const char* text;
  };
  const Step steps[] = {
      {"The contest name cannot be empty.|Error", kContestName, kContestName, "County Fair"},
      {"The division name cannot be empty.|Error", kDivisionName, kDivisionName, "Senior"},
      {"The contest date cannot be empty.|Error", kContestName, kContestDate, "today"},
      {"The number of groups must be between 1 and 26.|Error", kGroups, kGroups, "0"},
      {"The number of groups must be between 1 and 26.|Error", kGroups, kGroups, "26"},
      {"There must be at least one (1) reasons taker.\nIf you do not have any reasons classes, "
       "this value will be ignored.|Error",
       kReasonsTakers, kReasonsTakers, "2"},
      {"The number to score must be one (1) or greater.|Information", kNumberToScore,
       kNumberToScore, "3"},
      {"The number of contestants per team must be one (1) or greater.|Information", kPerTeam,
       kPerTeam, "2"},
      {"The total number per team must be one (1) or greater.|Information", kTotalPerTeam,
       kTotalPerTeam, "3"},
      {"The number of contestants per team must be greater (or equal to) than the number of "
       "contestants to score.|Error",
       kPerTeam, kPerTeam, "4"},
      {"The total number of contestants per team must be greater than (or equal to) the number of "
       "contestants per team.|Error",
       kTotalPerTeam, kTotalPerTeam, "4"},
  };
  for (const Step& step : steps) {
    EXPECT_EQ(setup.press(kDone), step.message);
    EXPECT_EQ(dialog.focused(), step.focus) << step.message;
    EXPECT_FALSE(dialog.result() || setup.saved());
    dialog.fill(step.corrected, step.text);
  }
  dialog.pressCloseBox();
  EXPECT_EQ(setup.takeMessage(), "");
  EXPECT_EQ(dialog.result(), 1);
  EXPECT_TRUE(setup.saved());
  EXPECT_EQ(currentContest().settings.contestName, "County Fair");
  EXPECT_EQ(currentContest().settings.numToScore, 3);
}

TEST(SetupContest, CancelPutsBackWhatARefusedDoneStored) {
  Contest before = reasonsContest(2, 1, 3);
  placeGroup(before, 0, {101, 102});
  ContestSetup setup(before);
  MemoryDialog& dialog = setup.dialog;
  reportText() = "old report";
  dialog.fill(kContestName, "Other");
  dialog.click(kReportPercent);
  dialog.fill(kReasonsTakers, "3");
  dialog.fill(kNumberToScore, "0");
  setup.addCategory("Swine");
  dialog.click(kDone);
  EXPECT_EQ(currentContest().settings.contestName, "Other");
  dialog.pressEscape();
  EXPECT_EQ(dialog.result(), 2);
  EXPECT_FALSE(setup.saved());
  EXPECT_EQ(reportText(), kWelcomeText);
  // The reasons order is gone nevertheless.
  EXPECT_TRUE(currentContest().reasonsOrder.cells().empty());
  EXPECT_EQ(*currentContest().reasonsPlace.find(102), ReasonsPlace{});
  before.settings.nextContestantNum = before.settings.startNum;
  EXPECT_EQ(currentContest().settings, before.settings);
  EXPECT_EQ(currentContest().categories, before.categories);
}

TEST(SetupContest, TheReasonsOrderStaysWithTheNumberOfTakers) {
  Contest before = reasonsContest(2, 1, 3);
  placeGroup(before, 1, {103});
  ContestSetup kept(before);
  kept.dialog.fill(kReasonsTakers, "2");
  kept.dialog.click(kDone);
  EXPECT_EQ(currentContest().reasonsOrder, before.reasonsOrder);

  ContestSetup changed(before);
  changed.dialog.fill(kReasonsTakers, "1");
  changed.dialog.click(kDone);
  EXPECT_EQ(currentContest().reasonsOrder.cell(0, 1), kNobody);
  EXPECT_EQ(currentContest().reasonsOrder.rowCount(), 3);
  EXPECT_EQ(currentContest().reasonsOrder.columnCount(), 1);
}

TEST(SetupContest, DoneGivesEveryContestantTheGroupOfTheNumber) {
  ContestBuilder builder;
  builder.team("Elm", "", {"Ann", "Ben", "Cy", "Dee"});
  builder.contest.contestantGroup[102] = 'Q';
  ContestSetup setup(builder.contest);
  EXPECT_FALSE(setup.dialog.isEnabled(kStartNumber));
  EXPECT_FALSE(setup.dialog.isEnabled(kTotalPerTeam));
  setup.dialog.fill(kGroups, "3");
  setup.dialog.click(kDone);
  EXPECT_EQ(currentContest().groupLetters, (std::vector<char>{'A', 'B', 'C'}));
  EXPECT_EQ(*currentContest().contestantGroup.find(102), 'B');
  EXPECT_EQ(*currentContest().contestantGroup.find(104), 'A');
}

TEST(SetupContest, ALoneNoneGivesWayToTheFirstCategory) {
  ContestSetup setup;
  EXPECT_EQ(setup.dialog.focused(), kContestName);
  setup.addCategory("Swine");
  setup.addCategory("Swine");
  setup.addCategory("Hay\tand\r\nGrain");
  EXPECT_EQ(setup.takeMessage(), "");
  EXPECT_EQ(currentContest().categories, (Lines{"Swine", "Swine", "Hay and  Grain"}));
  EXPECT_EQ(setup.dialog.lines(kCategoryList), currentContest().categories);
  EXPECT_EQ(setup.dialog.focused(), kCategoryText);

  ContestSetup kept(ContestBuilder().categories({"none", "Beef"}).contest);
  kept.addCategory("Swine");
  EXPECT_EQ(currentContest().categories, (Lines{"none", "Beef", "Swine"}));
}

TEST(SetupContest, UpdateLeavesTheFirstStoredCategoryAlone) {
  ContestSetup setup(ContestBuilder().categories({"Beef", "Sheep"}).contest);
  MemoryDialog& dialog = setup.dialog;
  for (const int line : {0, 1}) {
    dialog.choose(kCategoryList, line);
    EXPECT_EQ(dialog.focused(), kCategoryText);
    dialog.fill(kCategoryText, dialog.text(kCategoryText) + "s");
    dialog.pressEnter();
    EXPECT_EQ(dialog.selection(kCategoryList), std::nullopt);
    EXPECT_EQ(dialog.defaultButton(), kAddCategory);
  }
  EXPECT_EQ(dialog.lines(kCategoryList), (Lines{"Beefs", "Sheeps"}));
  EXPECT_EQ(currentContest().categories, (Lines{"Beef", "Sheeps"}));
  dialog.choose(kCategoryList, 0);
  dialog.fill(kCategoryText, "");
  EXPECT_EQ(setup.press(kUpdateCategory), "Category cannot be empty.|Information");
  EXPECT_EQ(dialog.text(kCategoryText), "Beef");
}

TEST(SetupContest, CategoryButtonsRefuseWhatDoesNotFit) {
  ContestSetup setup(ContestBuilder().categories({"Beef", "Sheep"}).contest);
  MemoryDialog& dialog = setup.dialog;
  dialog.focus(kCategoryText);
  EXPECT_EQ(dialog.defaultButton(), kAddCategory);
  dialog.focus(kGroups);
  EXPECT_EQ(dialog.defaultButton(), kDone);
  EXPECT_EQ(setup.press(kAddCategory), "Category cannot be empty.|Information");
  for (const ControlId button : {kUpdateCategory, kDeleteCategory}) {
    EXPECT_EQ(setup.press(button), "No category selected.|Information");
  }
  dialog.choose(kCategoryList, 0);
  dialog.focus(kGroups);
  EXPECT_EQ(dialog.defaultButton(), kUpdateCategory);
  EXPECT_EQ(setup.press(kAddCategory),
            "When a category is selected Update and Delete are the only valid buttons.|"
            "Information");
  dialog.click(kDeleteCategory);
  EXPECT_EQ(currentContest().categories, Lines{"Sheep"});
  EXPECT_EQ(dialog.text(kCategoryText), "");
  dialog.choose(kCategoryList, 0);
  dialog.click(kDeleteCategory);
  EXPECT_TRUE(currentContest().categories.empty());
  dialog.click(kDone);
  EXPECT_EQ(currentContest().categories, Lines{"none"});

  ContestSetup judged(ContestBuilder().addClass({}).contest);
  EXPECT_EQ(judged.press(kDeleteCategory),
            "Once classes have been entered, categories can no longer be deleted.  They can only "
            "be added and/or updated.|Information");
}

}  // namespace
