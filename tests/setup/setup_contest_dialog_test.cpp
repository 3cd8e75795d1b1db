#include "setup/setup_contest_dialog.h"

#include "setup/setup_contest_controls.h"
#include "tests/setup/reasons_contest.h"
#include "tests/support/approved.h"
#include "tests/ui/recorded_dialog.h"

using namespace setup_contest;

namespace {

using ContestSetup = Session<made<SetupContestDialog>, kDialog>;

TEST(SetupContest, ChecksTheFieldsInOrder) {
  using Correction = std::pair<ControlId, const char*>;
  const Correction corrections[] = {{kContestName, "County Fair"},
                                    {kDivisionName, "Senior"},
                                    {kContestDate, "today"},
                                    {kGroups, "x27"},
                                    {kGroups, "26"},
                                    {kReasonsTakers, "x2"},
                                    {kNumberToScore, "x5"},
                                    {kPerTeam, "x4"},
                                    {kTotalPerTeam, "x5"},
                                    {kPerTeam, "6"},
                                    {kTotalPerTeam, "7"}};
  ContestSetup setup(ContestBuilder().contest);
  for (const auto& [field, correction] : corrections) setup.setText(field, "");
  setup.fill(kStartNumber, "x301");
  setup.fill(kNumberToReport, "x15");
  for (const auto& [field, correction] : corrections) {
    setup.click(kDone);
    setup.fill(field, correction);
  }
  setup.pressCloseBox();
  expectApproved(setup.session(), "setup/contest_fields.txt");
}

TEST(SetupContest, CancelPutsBackWhatARefusedDoneStoredButNotTheReasonsOrder) {
  Contest contest = reasonsContest(2, 1, 3);
  placeGroup(contest, 0, {101, 102});
  contest.settings.reportPercent = true;
  ContestSetup setup(contest);
  setup.fill(kContestName, "Other");
  setup.click(kReportPercent);
  setup.fill(kReasonsTakers, "3");
  setup.fill(kNumberToScore, "0");
  setup.fill(kCategoryText, "Swine");
  setup.pressEnter();
  setup.click(kDone);
  setup.fill(kReasonsTakers, "0");
  setup.click(kDone);
  setup.pressEscape();
  expectApproved(setup.session(), "setup/contest_cancelled.txt");
}

TEST(SetupContest, DoneRegroupsEverybodyAndKeepsTheOrderOfAsManyTakers) {
  Contest contest = reasonsContest(2, 1, 4);
  placeGroup(contest, 1, {103});
  contest.contestantGroup[102] = 'Q';
  ContestSetup setup(contest);
  setup.fill(kReasonsTakers, "2");
  setup.fill(kGroups, "3");
  setup.click(kDone);
  expectApproved(setup.session(), "setup/contest_regrouped.txt");
}

// A lone "none" gives way to the first category, and nobody looks for duplicates. The first
// category's stored name is never updated, though its line is.
TEST(SetupContest, CategoriesAreAddedUpdatedAndDeleted) {
  ContestSetup setup(ContestBuilder().contest);
  for (const char* name : {"Swine", "none", "Swine", "Hay\tand\r\nGrain"}) {
    setup.paste(kCategoryText, name);
    setup.pressEnter();
  }
  setup.focus(kGroups);
  for (const ControlId button : {kAddCategory, kUpdateCategory, kDeleteCategory}) {
    setup.click(button);
  }
  for (const int line : {0, 2}) {
    setup.choose(kCategoryList, line);
    setup.click(kAddCategory);
    setup.fill(kCategoryText, "");
    setup.click(kUpdateCategory);
    setup.fill(kCategoryText, "Hogs");
    setup.pressEnter();
  }
  currentContest().classes.className = {"Steers"};
  setup.click(kDeleteCategory);
  currentContest().classes.clear();
  for (int left = 4; left > 0; --left) {
    setup.choose(kCategoryList, 0);
    setup.click(kDeleteCategory);
  }
  setup.click(kDone);
  expectApproved(setup.session(), "setup/contest_categories.txt");
}

}  // namespace
