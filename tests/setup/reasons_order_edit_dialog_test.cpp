#include "setup/reasons_order_edit_dialog.h"

#include "model/reasons_check.h"
#include "tests/setup/reasons_contest.h"
#include "tests/support/approved.h"
#include "tests/ui/recorded_dialog.h"

namespace {

using Edit = ReasonsOrderEditDialog;
using OrderEditing = Session<made<Edit>, Edit::kResourceId>;

// Two groups of 101, 102, 103 and of 104; 105 and 106 wait, 107 is a reserved slot.
Contest twoGroups() {
  Contest contest = reasonsContest(2, 1, 7);
  contest.contestantNames[107] = "";
  placeGroup(contest, 0, {kNobody, 101, kNobody, 102, 103});  // gaps close on opening
  placeGroup(contest, 1, {104});
  return contest;
}

TEST(ReasonsOrderEdit, MovesRemovesAndAssignsSpeakersOfTheGroupShown) {
  OrderEditing editing(twoGroups());
  editing.choose(Edit::kUnassigned, 0);
  editing.choose(Edit::kGroups, 1);
  editing.choose(Edit::kGroups, 0);
  for (const ControlId button : {Edit::kMoveUp, Edit::kMoveDown, Edit::kRemove}) {
    editing.click(button);
  }
  editing.choose(Edit::kOrder, 2);
  for (int step = 0; step < 3; ++step) editing.click(Edit::kMoveUp);
  for (int step = 0; step < 3; ++step) editing.click(Edit::kMoveDown);
  editing.choose(Edit::kOrder, 1);
  editing.click(Edit::kRemove);
  editing.choose(Edit::kUnassigned, 2);
  EXPECT_EQ(reasonsOrderFault(currentContest()), "");
  editing.pressEscape();
  editing.focus(Edit::kOrder);
  editing.pressEnter();
  expectApproved(editing.session(), "setup/reasons_order_edit.txt");
}

TEST(ReasonsOrderEdit, TakesNobodyIntoAFullGroup) {
  Contest contest = reasonsContest(2, 1, 4);
  contest.reasonsOrder.reset(3, 2);
  placeGroup(contest, 0, {101, 102, 103});
  OrderEditing editing(contest);
  editing.choose(Edit::kGroups, 0);
  editing.choose(Edit::kUnassigned, 0);
  expectApproved(editing.session(), "setup/reasons_order_full.txt");
}

// 101 and 103 were deleted, which left the cells but not the places; 103 was named anew.
TEST(ReasonsOrderEdit, NobodySpeaksOrWaitsTwice) {
  Contest contest = twoGroups();
  placeGroup(contest, 0, {103, 101, 102, kNobody, kNobody});
  contest.contestantNames[101] = "";
  contest.reasonsPlace[101] = contest.reasonsPlace[103] = {};
  OrderEditing editing(contest);
  editing.choose(Edit::kGroups, 0);
  for (int removed = 0; removed < 2; ++removed) {
    editing.choose(Edit::kOrder, 0);
    editing.click(Edit::kRemove);
  }
  editing.pressCloseBox();
  OrderEditing again(contest);
  again.choose(Edit::kGroups, 0);
  again.choose(Edit::kUnassigned, 0);
  expectApproved(editing.session() + again.session(), "setup/reasons_order_twice.txt");
}

}  // namespace
