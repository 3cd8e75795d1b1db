#include "entry/reasons_dialog.h"

#include "tests/entry/entry_fixture.h"

namespace {

constexpr ControlId kNumber = 1054;
constexpr ControlId kReasons = 1028;
constexpr ControlId kClasses = 1016;
constexpr ControlId kGroups = 1053;

// Speakers of three groups: 105, 101, a hole, 102; a hole, 106; two holes, 102.
class ReasonsEntry : public EntryTest {
 protected:
  ReasonsEntry() {
    ReasonsOrder& order = contest().reasonsOrder;
    order.setCell(0, 0, 105);
    order.setCell(1, 0, 101);
    order.setCell(3, 0, 102);
    order.setCell(1, 1, 106);
    order.setCell(2, 2, 102);
    dialog_.emplace(kReasonsDialog, behaviour_);
  }

  ReasonsDialog behaviour_;
  std::optional<MemoryDialog> dialog_;

  void choose(int classLine, int groupLine) {
    dialog_->choose(kClasses, classLine);
    dialog_->choose(kGroups, groupLine);
  }
  std::string enter(const char* typed) {
    dialog_->keys(typed);
    dialog_->pressEnter();
    return dialog_->text(1031) + "|" + dialog_->text(1035);
  }
  void expectNothingChosen() {
    EXPECT_EQ(dialog_->selection(kClasses), std::nullopt);
    EXPECT_EQ(dialog_->selection(kGroups), std::nullopt);
    EXPECT_EQ(dialog_->text(kNumber), "");
    EXPECT_EQ(dialog_->focused(), kReasons);
  }
};

TEST_F(ReasonsEntry, ListsTheClassesWithReasonsAndTheReasonsGroups) {
  EXPECT_EQ(dialog_->lines(kClasses), (std::vector<std::string>{" 2.  Ewes", " 3.  Gilts"}));
  EXPECT_EQ(dialog_->lines(kGroups), (std::vector<std::string>{"   1   ", "   2   ", "   3   "}));
  expectNothingChosen();
}

TEST_F(ReasonsEntry, GoesDownAColumnToItsFirstHole) {
  contest().scores[101][1] = {'A', 20, 33, 7};
  dialog_->desktop.answers = {Answer::yes};
  choose(0, 0);
  EXPECT_EQ(lastMessage(*dialog_),
            "Information: This group has 1 (out of 3) reasons scores that have already been "
            "entered.\n\n\nWould you like to re-enter scores for this group?");
  EXPECT_EQ(dialog_->text(kNumber), "105");
  EXPECT_EQ(enter("50"), "105|50");
  EXPECT_EQ(record(105, 1), (ScoreRecord{' ', 0, 50, 0}));
  EXPECT_EQ(dialog_->text(kNumber), "101");
  EXPECT_EQ(enter(""), "101|33");
  EXPECT_EQ(record(101, 1), (ScoreRecord{'A', 20, 33, 7}));
  expectNothingChosen();
}

TEST_F(ReasonsEntry, PassesOverOneEmptyCellAtTheTopButNotTwo) {
  choose(1, 1);
  EXPECT_EQ(dialog_->text(kNumber), "106");
  dialog_->choose(kGroups, 2);
  EXPECT_EQ(dialog_->text(kNumber), "");
  enter("12");
  EXPECT_EQ(lastMessage(*dialog_), "Warning: Error:  no member number entered.");
  EXPECT_EQ(dialog_->text(kReasons), "");
  EXPECT_TRUE(contest().scores.empty());
}

TEST_F(ReasonsEntry, EndsWithTheLastRow) {
  contest().reasonsOrder.reset(1, 1);
  contest().reasonsOrder.setCell(0, 0, 101);
  choose(0, 0);
  EXPECT_EQ(enter("0"), "101|0");
  EXPECT_TRUE(contest().scores.contains(101));
  expectNothingChosen();
}

TEST_F(ReasonsEntry, CountsOnlyNamedContestantsAndForgetsTheChoiceOnNo) {
  contest().scores[105][2].reasonsScore = 1;
  contest().scores[102][2].reasonsScore = 2;
  contest().scores[101][2].reasonsScore = 3;
  contest().contestantNames[101] = "";
  dialog_->desktop.answers = {Answer::no};
  choose(1, 0);
  EXPECT_NE(lastMessage(*dialog_).find("has 2 (out of 2) reasons"), std::string::npos);
  expectNothingChosen();
  enter("9");
  EXPECT_EQ(lastMessage(*dialog_), "Error: You must select a class before entering a score.");
}

}  // namespace
