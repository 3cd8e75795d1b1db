#include "entry/questions_dialog.h"

#include "tests/entry/entry_fixture.h"

namespace {

constexpr ControlId kNumber = 1054;
constexpr ControlId kQuestions = 1056;
constexpr ControlId kClasses = 1016;
constexpr ControlId kGroups = 1053;

class QuestionsEntry : public EntryTest {
 protected:
  QuestionsDialog behaviour_;
  MemoryDialog dialog_{kQuestionsDialog, behaviour_};
};

TEST_F(QuestionsEntry, TakesAGroupByKeysAlone) {
  EXPECT_EQ(dialog_.lines(kClasses), (std::vector<std::string>{" 1.  Steers", " 3.  Gilts"}));
  EXPECT_EQ(dialog_.focused(), kQuestions);
  contest().scores[105][2] = {'C', 12, 30, 20};
  dialog_.choose(kClasses, 1);
  dialog_.desktop.answers = {Answer::yes};
  dialog_.choose(kGroups, 0);
  EXPECT_NE(lastMessage(dialog_).find("1 (out of 2) questions scores"), std::string::npos);
  dialog_.keys("5x0");
  dialog_.pressEnter();
  EXPECT_EQ(record(101, 2), (ScoreRecord{' ', 0, 0, 50}));
  EXPECT_EQ(dialog_.text(1031) + "|" + dialog_.text(1036), "101|50");
  EXPECT_EQ(dialog_.text(kNumber), "105");
  EXPECT_EQ(dialog_.text(kQuestions), "");
  dialog_.click(1004);
  EXPECT_EQ(dialog_.text(1031) + "|" + dialog_.text(1036), "105|20");
  EXPECT_EQ(record(105, 2), (ScoreRecord{'C', 12, 30, 20}));
  EXPECT_EQ(dialog_.text(kNumber), "");
  EXPECT_EQ(dialog_.selection(kClasses), std::nullopt);
  EXPECT_EQ(dialog_.selection(kGroups), std::nullopt);
  EXPECT_EQ(dialog_.focused(), kQuestions);
}

TEST_F(QuestionsEntry, StoresNothingOfANumberTooLarge) {
  dialog_.choose(kClasses, 0);
  dialog_.choose(kGroups, 0);
  dialog_.keys("4294967296");
  dialog_.pressEnter();
  EXPECT_TRUE(contest().scores.empty());
  EXPECT_EQ(dialog_.text(kNumber), "105");
}

}  // namespace
