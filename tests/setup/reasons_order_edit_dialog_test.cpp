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
    EXPECT_EQ(lines(Edit::kOrder), linesOf(speakers));
    EXPECT_EQ(lines(Edit::kUnassigned), linesOf(waiting));
    Contest expected = currentContest();
    placeGroup(expected, *selection(Edit::kGroups), speakers);
    EXPECT_EQ(currentContest(), expected);
    EXPECT_EQ(reasonsOrderFault(expected), "");
  }
};

TEST(ReasonsOrderEdit, MovesASpeakerUpAndDownToTheEnds) {
  OrderEditing editing(twoGroups());
  EXPECT_EQ(editing.lines(Edit::kGroups), (Lines{"     1", "     2"}));
  EXPECT_EQ(currentContest().reasonsPlace[103], (ReasonsPlace{0, 2}));
  editing.choose(Edit::kGroups, 1);
  editing.expect({104}, {105, 106});
  editing.choose(Edit::kGroups, 0);
  editing.choose(Edit::kOrder, 2);
  editing.click(Edit::kMoveUp);
  editing.expect({101, 103, 102}, {105, 106});
  editing.click(Edit::kMoveUp);
  EXPECT_EQ(editing.press(Edit::kMoveUp), "The top Contestant cannot be moved up.|Error");
  editing.expect({103, 101, 102}, {105, 106});
  editing.click(Edit::kMoveDown);
  editing.click(Edit::kMoveDown);
  EXPECT_EQ(editing.press(Edit::kMoveDown), "The bottom Contestant cannot be moved down.|Error");
  editing.expect({101, 102, 103}, {105, 106});
  editing.pressEscape();
  EXPECT_FALSE(editing.isDone());
  editing.focus(Edit::kOrder);
  editing.pressEnter();
  EXPECT_TRUE(editing.isDone());
}

TEST(ReasonsOrderEdit, RemovesAndAssignsSpeakers) {
  OrderEditing editing(twoGroups());
  editing.choose(Edit::kUnassigned, 0);
  EXPECT_EQ(editing.takeMessage(),
            "A Reasons Group must be selected to move an unassigned contestant.|Warning");
  EXPECT_FALSE(editing.selection(Edit::kUnassigned));
  editing.choose(Edit::kGroups, 0);
  editing.choose(Edit::kOrder, 1);
  editing.click(Edit::kRemove);
  editing.expect({101, 103}, {102, 105, 106});
  for (const ControlId button : {Edit::kMoveUp, Edit::kMoveDown, Edit::kRemove}) {
    EXPECT_EQ(editing.press(button), "A Reasons Group and Contestant must be selected.|Warning");
  }
  editing.choose(Edit::kUnassigned, 2);
  editing.expect({101, 103, 106}, {102, 105});
  editing.pressCloseBox();
  EXPECT_TRUE(editing.isDone());
}

TEST(ReasonsOrderEdit, TakesNobodyIntoAFullGroup) {
  Contest contest = reasonsContest(2, 1, 4);
  contest.reasonsOrder.reset(3, 2);
  placeGroup(contest, 0, {101, 102, 103});
  OrderEditing editing(contest);
  editing.choose(Edit::kGroups, 0);
  editing.choose(Edit::kUnassigned, 0);
  EXPECT_EQ(editing.takeMessage(),
            "That reasons group is full, select another group to add this contestant to.|Warning");
  EXPECT_FALSE(editing.selection(Edit::kUnassigned));
  EXPECT_FALSE(editing.selection(Edit::kGroups));
  EXPECT_EQ(currentContest(), contest);
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
  EXPECT_EQ(editing.lines(Edit::kUnassigned),
            (Lines{"     101 - ", "     103 - Taker 103", "     105 - Taker 105",
                   "     106 - Taker 106"}));
  editing.pressCloseBox();

  OrderEditing again(contest);
  again.choose(Edit::kGroups, 0);
  again.choose(Edit::kUnassigned, 0);
  EXPECT_EQ(again.lines(Edit::kOrder),
            (Lines{"     101 - ", "     102 - Taker 102", "     103 - Taker 103"}));
}

}  // namespace
