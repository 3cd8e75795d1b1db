#include "setup/edit_contestants_dialog.h"

#include "setup/edit_contestants_controls.h"
#include "tests/setup/reasons_contest.h"
#include "tests/setup/setup_dialog.h"

using namespace edit_contestants;

namespace {

using Lines = std::vector<std::string>;

struct ContestantEditing : SetupDialog<EditContestantsDialog> {
  explicit ContestantEditing(Contest contest) : SetupDialog(kDialog, std::move(contest)) {}
  [[nodiscard]] std::string fields() const {
    return dialog.text(kNumber) + "," + dialog.text(kContestantName) + "," + dialog.text(kGroup);
  }
};

Contest numberedFrom99() {
  ContestBuilder builder;
  builder.contest.settings.startNum = 99;
  builder.contest.settings.nextContestantNum = 99;
  return builder.team("Elm", "", {"Ann - Lee", "Ben", ""}).contest;
}

TEST(EditContestants, ListsNamedContestantsSortedAsText) {
  ContestantEditing editing(numberedFrom99());
  EXPECT_EQ(editing.dialog.lines(kList), (Lines{"100 - Ben - B", "99 - Ann - Lee - A"}));
  editing.dialog.choose(kList, 1);
  EXPECT_EQ(editing.fields(), "99,Ann - Lee,A");
  EXPECT_EQ(editing.dialog.focused(), kContestantName);
}

TEST(EditContestants, UpdateReplacesTheNameOnly) {
  Contest contest = numberedFrom99();
  contest.contestantGroup[100] = 'Q';
  ContestantEditing editing(contest);
  EXPECT_EQ(editing.press(kUpdate), "No Contestant Selected to Update.|Warning");
  editing.dialog.choose(kList, 0);
  editing.dialog.paste(kContestantName, "Bo\tBell");
  editing.dialog.pressEnter();
  EXPECT_EQ(editing.fields(), ",,");
  EXPECT_EQ(editing.dialog.lines(kList), (Lines{"100 - Bo Bell - Q", "99 - Ann - Lee - A"}));
  contest.contestantNames[100] = "Bo Bell";
  EXPECT_EQ(currentContest(), contest);

  editing.dialog.choose(kList, 1);
  editing.dialog.fill(kContestantName, "");
  editing.dialog.pressEnter();
  EXPECT_EQ(editing.takeMessage(), "The name cannot be empty.|Error");
  EXPECT_EQ(editing.fields(), ",,");
  EXPECT_EQ(editing.dialog.selection(kList), std::nullopt);
  EXPECT_EQ(currentContest(), contest);
  EXPECT_FALSE(editing.saved());
  editing.dialog.click(kDone);
  EXPECT_TRUE(editing.saved());
}

TEST(EditContestants, EscapeDeletesTheSelectedContestant) {
  Contest contest = reasonsContest(2, 1, 4);
  placeGroup(contest, 0, {101});
  placeGroup(contest, 1, {102, 103, 104});
  contest.scores[103][0].letter = 'B';
  ContestantEditing editing(contest);
  editing.dialog.pressEscape();
  EXPECT_EQ(editing.takeMessage(), "No Contestant Selected to Delete.|Warning");
  for (int i = 0; i < 3; ++i) {
    editing.dialog.choose(kList, 0);
    editing.dialog.pressEscape();
  }
  EXPECT_EQ(editing.fields(), ",,");
  EXPECT_EQ(editing.dialog.lines(kList), Lines{"104 - Taker 104 - D"});
  const Contest& after = currentContest();
  EXPECT_FALSE(after.contestantNames.contains(103) || after.contestantGroup.contains(103));
  EXPECT_EQ(*after.reasonsPlace.find(103), ReasonsPlace{});
  // The first group's and the first row's cells stay; 103's is closed up.
  EXPECT_EQ(after.reasonsOrder.cell(0, 0), 101);
  EXPECT_EQ(after.reasonsOrder.cell(0, 1), 102);
  EXPECT_EQ(after.reasonsOrder.cell(1, 1), 104);
  EXPECT_EQ(*after.reasonsPlace.find(104), (ReasonsPlace{1, 1}));
  EXPECT_EQ(after.teams, contest.teams);
  EXPECT_EQ(after.scores, contest.scores);
  EXPECT_FALSE(editing.dialog.result());
  editing.dialog.pressCloseBox();
  EXPECT_TRUE(editing.dialog.result() && editing.saved());
}

}  // namespace
