#include "setup/reasons_order_edit_dialog.h"

#include "model/reasons_check.h"
#include "tests/setup/reasons_contest.h"
#include "tests/setup/setup_dialog.h"

namespace {

using Edit = ReasonsOrderEditDialog;
using Numbers = std::vector<ContestantNumber>;

// Two groups of 101, 102, 103 and of 104; 105 and 106 wait, 107 is a reserved slot.
Contest twoGroups() {
  Contest contest = reasonsContest(2, 1, 7);
  contest.contestantNames[107] = "";
  placeGroup(contest, 0, {kNobody, 101, kNobody, 102, 103});  // gaps close on opening
  placeGroup(contest, 1, {104});
  return contest;
}

struct OrderEditing : SetupDialog<Edit, Edit::kResourceId> {
  using SetupDialog::SetupDialog;

  // Holds the group shown, and those waiting, against the contest and the lists.
  void expect(const Numbers& speakers, const Numbers& waiting) const {
    const auto linesOf = [](const Numbers& numbers) {
      Lines lines;
      for (const ContestantNumber number : numbers) {
        const std::string digits = std::to_string(number);
        lines.push_back("     " + digits + " - Taker " + digits);
      }
      return lines;
    };
    EXPECT_EQ(dialog.lines(Edit::kOrder), linesOf(speakers));
    EXPECT_EQ(dialog.lines(Edit::kUnassigned), linesOf(waiting));
    Contest expected = currentContest();
    placeGroup(expected, *dialog.selection(Edit::kGroups), speakers);
    EXPECT_EQ(currentContest(), expected);
    EXPECT_EQ(reasonsOrderFault(expected), "");
  }
};

TEST(ReasonsOrderEdit, MovesASpeakerUpAndDownToTheEnds) {
  OrderEditing editing(twoGroups());
  MemoryDialog& dialog = editing.dialog;
  EXPECT_EQ(dialog.lines(Edit::kGroups), (Lines{"     1", "     2"}));
  EXPECT_EQ(currentContest().reasonsPlace[103], (ReasonsPlace{0, 2}));
  dialog.choose(Edit::kGroups, 1);
  editing.expect({104}, {105, 106});
  dialog.choose(Edit::kGroups, 0);
  dialog.choose(Edit::kOrder, 2);
  dialog.click(Edit::kMoveUp);
  editing.expect({101, 103, 102}, {105, 106});
  dialog.click(Edit::kMoveUp);
  EXPECT_EQ(editing.press(Edit::kMoveUp), "The top Contestant cannot be moved up.|Error");
  editing.expect({103, 101, 102}, {105, 106});
  dialog.click(Edit::kMoveDown);
  dialog.click(Edit::kMoveDown);
  EXPECT_EQ(editing.press(Edit::kMoveDown), "The bottom Contestant cannot be moved down.|Error");
  editing.expect({101, 102, 103}, {105, 106});
  dialog.pressEscape();
  EXPECT_FALSE(editing.isDone());
  dialog.focus(Edit::kOrder);
  dialog.pressEnter();
  EXPECT_TRUE(editing.isDone());
}

TEST(ReasonsOrderEdit, RemovesAndAssignsSpeakers) {
  OrderEditing editing(twoGroups());
  MemoryDialog& dialog = editing.dialog;
  dialog.choose(Edit::kUnassigned, 0);
  EXPECT_EQ(editing.takeMessage(),
            "A Reasons Group must be selected to move an unassigned contestant.|Warning");
  EXPECT_FALSE(dialog.selection(Edit::kUnassigned));
  dialog.choose(Edit::kGroups, 0);
  dialog.choose(Edit::kOrder, 1);
  dialog.click(Edit::kRemove);
  editing.expect({101, 103}, {102, 105, 106});
  for (const ControlId button : {Edit::kMoveUp, Edit::kMoveDown, Edit::kRemove}) {
    EXPECT_EQ(editing.press(button), "A Reasons Group and Contestant must be selected.|Warning");
  }
  dialog.choose(Edit::kUnassigned, 2);
  editing.expect({101, 103, 106}, {102, 105});
  dialog.pressCloseBox();
  EXPECT_TRUE(editing.isDone());
}

TEST(ReasonsOrderEdit, TakesNobodyIntoAFullGroup) {
  Contest contest = reasonsContest(2, 1, 4);
  contest.reasonsOrder.reset(3, 2);
  placeGroup(contest, 0, {101, 102, 103});
  OrderEditing editing(contest);
  editing.dialog.choose(Edit::kGroups, 0);
  editing.dialog.choose(Edit::kUnassigned, 0);
  EXPECT_EQ(editing.takeMessage(),
            "That reasons group is full, select another group to add this contestant to.|Warning");
  EXPECT_FALSE(editing.dialog.selection(Edit::kUnassigned));
  EXPECT_FALSE(editing.dialog.selection(Edit::kGroups));
  EXPECT_EQ(currentContest(), contest);
}

// 101 and 103 were deleted, which left the cells but not the places; 103 was named anew.
TEST(ReasonsOrderEdit, NobodySpeaksOrWaitsTwice) {
  Contest contest = twoGroups();
  placeGroup(contest, 0, {103, 101, 102, kNobody, kNobody});
  contest.contestantNames[101] = "";
  contest.reasonsPlace[101] = contest.reasonsPlace[103] = {};
  OrderEditing editing(contest);
  MemoryDialog& dialog = editing.dialog;
  dialog.choose(Edit::kGroups, 0);
  for (int removed = 0; removed < 2; ++removed) {
    dialog.choose(Edit::kOrder, 0);
    dialog.click(Edit::kRemove);
  }
  EXPECT_EQ(dialog.lines(Edit::kUnassigned),
            (Lines{"     101 - ", "     103 - Taker 103", "     105 - Taker 105",
                   "     106 - Taker 106"}));
  dialog.pressCloseBox();

  OrderEditing again(contest);
  again.dialog.choose(Edit::kGroups, 0);
  again.dialog.choose(Edit::kUnassigned, 0);
  EXPECT_EQ(again.dialog.lines(Edit::kOrder),
            (Lines{"     101 - ", "     102 - Taker 102", "     103 - Taker 103"}));
}

}  // namespace
