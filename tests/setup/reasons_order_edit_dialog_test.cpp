#include "setup/reasons_order_edit_dialog.h"

#include <gtest/gtest.h>

#include "model/reasons_check.h"
#include "storage/contest_commands.h"
#include "tests/setup/reasons_contest.h"
#include "tests/ui/memory_dialog.h"
#include "text/format.h"

namespace {

using Edit = ReasonsOrderEditDialog;
using Lines = std::vector<std::string>;

// Two groups of 101, 102, 103 and of 104; 105 and 106 wait, 107 is a reserved slot.
class ReasonsOrderEdit : public testing::Test {
 protected:
  void SetUp() override {
    currentFileName().clear();
    Contest& contest = currentContest();
    contest = reasonsContest(2, 1, 7);
    contest.contestantNames[107] = "";
    placeGroup(contest, 0, {kNobody, 101, kNobody, 102, 103});  // gaps close on opening
    placeGroup(contest, 1, {104});
  }
  void TearDown() override { EXPECT_EQ(reasonsOrderFault(currentContest()), ""); }

  static std::vector<ContestantNumber> speakers(std::int32_t group) {
    std::vector<ContestantNumber> numbers;
    const ReasonsOrder& order = currentContest().reasonsOrder;
    for (std::int32_t row = 0; row < order.rowCount(); ++row) {
      if (order.cell(row, group) != kNobody) numbers.push_back(order.cell(row, group));
    }
    return numbers;
  }
  static Lines lines(const std::vector<ContestantNumber>& numbers) {
    Lines lines;
    for (const ContestantNumber number : numbers) {
      lines.push_back(formatText("     %d - Taker %d", number, number));
    }
    return lines;
  }

  Edit edit;
};

using Numbers = std::vector<ContestantNumber>;

TEST_F(ReasonsOrderEdit, OpensWithGroupsAndUnassignedAndShowsAGroupWhenChosen) {
  MemoryDialog dialog(Edit::kResourceId, edit);
  EXPECT_EQ(dialog.lines(Edit::kGroups), (Lines{"     1", "     2"}));
  EXPECT_EQ(dialog.selection(Edit::kGroups), std::nullopt);
  EXPECT_EQ(dialog.lines(Edit::kUnassigned), lines({105, 106}));
  EXPECT_TRUE(dialog.lines(Edit::kOrder).empty());
  EXPECT_EQ(currentContest().reasonsPlace[103], (ReasonsPlace{0, 2}));
  dialog.choose(Edit::kGroups, 0);
  EXPECT_EQ(dialog.lines(Edit::kOrder), lines({101, 102, 103}));
  dialog.choose(Edit::kGroups, 1);
  EXPECT_EQ(dialog.lines(Edit::kOrder), lines({104}));
}

TEST_F(ReasonsOrderEdit, MovesASpeakerUpAndDownToTheEnds) {
  MemoryDialog dialog(Edit::kResourceId, edit);
  dialog.choose(Edit::kGroups, 0);
  dialog.choose(Edit::kOrder, 2);
  dialog.click(Edit::kMoveUp);
  EXPECT_EQ(speakers(0), (Numbers{101, 103, 102}));
  dialog.click(Edit::kMoveUp);
  EXPECT_EQ(speakers(0), (Numbers{103, 101, 102}));
  EXPECT_EQ(dialog.lines(Edit::kOrder), lines(speakers(0)));
  EXPECT_EQ(dialog.selection(Edit::kOrder), 0);
  dialog.click(Edit::kMoveUp);
  EXPECT_EQ(dialog.desktop.takeMessage(), "The top Contestant cannot be moved up.");

  dialog.click(Edit::kMoveDown);
  dialog.click(Edit::kMoveDown);
  EXPECT_EQ(dialog.selection(Edit::kOrder), 2);
  dialog.click(Edit::kMoveDown);
  EXPECT_EQ(dialog.desktop.takeMessage(), "The bottom Contestant cannot be moved down.");
  EXPECT_EQ(speakers(0), (Numbers{101, 102, 103}));
  EXPECT_EQ(dialog.lines(Edit::kOrder), lines(speakers(0)));
  EXPECT_EQ(speakers(1), Numbers{104});
}

TEST_F(ReasonsOrderEdit, RemovesASpeakerAndClosesTheGap) {
  MemoryDialog dialog(Edit::kResourceId, edit);
  dialog.choose(Edit::kGroups, 0);
  dialog.choose(Edit::kOrder, 1);
  dialog.click(Edit::kRemove);
  EXPECT_EQ(speakers(0), (Numbers{101, 103}));
  EXPECT_EQ(dialog.lines(Edit::kOrder), lines({101, 103}));
  EXPECT_EQ(dialog.lines(Edit::kUnassigned), lines({102, 105, 106}));
  EXPECT_EQ(currentContest().reasonsPlace[102], ReasonsPlace{});
  for (const ControlId button : {Edit::kMoveUp, Edit::kMoveDown, Edit::kRemove}) {
    dialog.click(button);
    EXPECT_EQ(dialog.desktop.takeMessage(), "A Reasons Group and Contestant must be selected.");
  }
}

TEST_F(ReasonsOrderEdit, AssignsAWaitingContestantToTheEndOfTheGroup) {
  MemoryDialog dialog(Edit::kResourceId, edit);
  dialog.choose(Edit::kUnassigned, 0);
  EXPECT_EQ(dialog.desktop.takeMessage(),
            "A Reasons Group must be selected to move an unassigned contestant.");
  EXPECT_EQ(dialog.selection(Edit::kUnassigned), std::nullopt);
  dialog.choose(Edit::kGroups, 1);
  dialog.choose(Edit::kUnassigned, 1);
  EXPECT_EQ(speakers(1), (Numbers{104, 106}));
  EXPECT_EQ(dialog.lines(Edit::kOrder), lines({104, 106}));
  EXPECT_EQ(dialog.lines(Edit::kUnassigned), lines({105}));
}

TEST_F(ReasonsOrderEdit, TakesNobodyIntoAFullGroup) {
  Contest& contest = currentContest();
  contest.reasonsOrder.reset(3, 2);
  placeGroup(contest, 0, {101, 102, 103});
  placeGroup(contest, 1, {104});
  MemoryDialog dialog(Edit::kResourceId, edit);
  dialog.choose(Edit::kGroups, 0);
  dialog.choose(Edit::kUnassigned, 0);
  EXPECT_EQ(dialog.desktop.takeMessage(),
            "That reasons group is full, select another group to add this contestant to.");
  EXPECT_EQ(dialog.selection(Edit::kUnassigned), std::nullopt);
  EXPECT_EQ(dialog.selection(Edit::kGroups), std::nullopt);
  EXPECT_EQ(dialog.lines(Edit::kUnassigned), lines({105, 106}));
}

// 103 was deleted and named anew, which left the cell but not the place.
TEST_F(ReasonsOrderEdit, NobodySpeaksTwice) {
  placeGroup(currentContest(), 0, {103, 101, 102, kNobody, kNobody});
  currentContest().reasonsPlace[103] = {};
  MemoryDialog dialog(Edit::kResourceId, edit);
  EXPECT_EQ(dialog.lines(Edit::kUnassigned), lines({103, 105, 106}));
  dialog.choose(Edit::kGroups, 0);
  dialog.choose(Edit::kUnassigned, 0);
  EXPECT_EQ(speakers(0), (Numbers{101, 102, 103}));
  EXPECT_EQ(dialog.lines(Edit::kOrder), lines({101, 102, 103}));
}

TEST_F(ReasonsOrderEdit, SavesOnDoneAndOnTheCloseBoxOnly) {
  using Act = void (*)(MemoryDialog&);
  const Act escape = [](MemoryDialog& d) { d.pressEscape(); };
  for (const Act act : {Act([](MemoryDialog& d) { d.click(Edit::kDone); }),
                        Act([](MemoryDialog& d) { d.pressEnter(); }),
                        Act([](MemoryDialog& d) { d.pressCloseBox(); }), escape}) {
    MemoryDialog dialog(Edit::kResourceId, edit);
    act(dialog);
    EXPECT_EQ(dialog.result().has_value(), act != escape);
    EXPECT_EQ(dialog.desktop.fileQuestions.size(), act != escape ? 1U : 0U);
  }
}

}  // namespace
