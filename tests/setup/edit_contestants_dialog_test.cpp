#include "setup/edit_contestants_dialog.h"

#include "setup/edit_contestants_controls.h"
#include "tests/setup/reasons_contest.h"
#include "tests/support/approved.h"
#include "tests/ui/recorded_dialog.h"

using namespace edit_contestants;

namespace {

using ContestantEditing = Session<made<EditContestantsDialog>, kDialog>;

TEST(EditContestants, UpdateReplacesTheNameOnly) {
  ContestBuilder builder;
  builder.contest.settings.startNum = builder.contest.settings.nextContestantNum = 99;
  builder.team("Elm", "", {"Ann - Lee", "Ben", ""}).contest.contestantGroup[100] = 'Q';
  ContestantEditing editing(builder.contest);
  editing.click(kUpdate);
  editing.choose(kList, 0);
  editing.fill(kNumber, "99");
  editing.fill(kGroup, "A");
  editing.paste(kContestantName, "Bo\tBell");
  editing.pressEnter();
  editing.choose(kList, 1);
  editing.fill(kContestantName, "");
  editing.pressEnter();
  editing.click(kDone);
  expectApproved(editing.session(), "setup/edit_contestants.txt");
}

// The first group's and the first row's cells stay; 103's is closed up.
TEST(EditContestants, EscapeDeletesTheSelectedContestant) {
  Contest contest = reasonsContest(2, 1, 4);
  placeGroup(contest, 0, {101});
  placeGroup(contest, 1, {102, 103, 104});
  contest.scores[103][0].letter = 'B';
  ContestantEditing editing(contest);
  editing.pressEscape();
  for (int deleted = 0; deleted < 3; ++deleted) {
    editing.choose(kList, 0);
    editing.pressEscape();
  }
  editing.pressCloseBox();
  expectApproved(editing.session(), "setup/deleted_contestants.txt");
}

}  // namespace
