#include "setup/edit_contestants_dialog.h"

#include "setup/edit_contestants_controls.h"
#include "tests/setup/reasons_contest.h"
#include "tests/setup/setup_dialog.h"

using namespace edit_contestants;

namespace {

struct ContestantEditing : SetupDialog<EditContestantsDialog, kDialog> {
  using SetupDialog::SetupDialog;
  [[nodiscard]] std::string fields() const { return texts({kNumber, kContestantName, kGroup}); }
};

TEST(EditContestants, UpdateReplacesTheNameOnly) {
  ContestBuilder builder;
  builder.contest.settings.startNum = builder.contest.settings.nextContestantNum = 99;
  Contest contest = builder.team("Elm", "", {"Ann - Lee", "Ben", ""}).contest;
  contest.contestantGroup[100] = 'Q';
  ContestantEditing editing(contest);
  EXPECT_EQ(editing.lines(kList), (Lines{"100 - Ben - Q", "99 - Ann - Lee - A"}));
  EXPECT_EQ(editing.press(kUpdate), "No Contestant Selected to Update.|Warning");
  editing.choose(kList, 0);
  EXPECT_EQ(editing.focused(), kContestantName);
  editing.fill(kNumber, "99");
  editing.fill(kGroup, "A");
  EXPECT_EQ(editing.fields(), "100|Ben|Q");
  editing.paste(kContestantName, "Bo\tBell");
  editing.pressEnter();
  EXPECT_EQ(editing.fields(), "||");
  EXPECT_EQ(editing.lines(kList), (Lines{"100 - Bo Bell - Q", "99 - Ann - Lee - A"}));
  editing.choose(kList, 1);
  EXPECT_EQ(editing.fields(), "99|Ann - Lee|A");
  editing.fill(kContestantName, "");
  editing.pressEnter();
  EXPECT_EQ(editing.takeMessage(), "The name cannot be empty.|Error");
  EXPECT_EQ(editing.fields(), "||");
  EXPECT_FALSE(editing.selection(kList));
  contest.contestantNames[100] = "Bo Bell";
  EXPECT_EQ(currentContest(), contest);
  editing.click(kDone);
  EXPECT_TRUE(editing.isDone());
}

TEST(EditContestants, EscapeDeletesTheSelectedContestant) {
  Contest contest = reasonsContest(2, 1, 4);
  placeGroup(contest, 0, {101});
  placeGroup(contest, 1, {102, 103, 104});
  contest.scores[103][0].letter = 'B';
  ContestantEditing editing(contest);
  editing.pressEscape();
  EXPECT_EQ(editing.takeMessage(), "No Contestant Selected to Delete.|Warning");
  for (const ContestantNumber number : {101, 102, 103}) {
    editing.choose(kList, 0);
    editing.pressEscape();
    EXPECT_EQ(editing.fields(), "||");
    contest.contestantNames.erase(number);
    contest.contestantGroup.erase(number);
  }
  EXPECT_EQ(editing.lines(kList), Lines{"104 - Taker 104 - D"});
  // The first group's and the first row's cells stay; 103's is closed up.
  placeGroup(contest, 1, {102, 104, kNobody});
  contest.reasonsPlace[101] = contest.reasonsPlace[102] = contest.reasonsPlace[103] = {};
  EXPECT_EQ(currentContest(), contest);
  EXPECT_FALSE(editing.isDone());
  editing.pressCloseBox();
  EXPECT_TRUE(editing.isDone());
}

}  // namespace
