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

TEST_F(QuestionsEntry, ListsTheClassesWithQuestionsUnderTheirNumbers) {
  EXPECT_EQ(dialog_.caption(), "Input Questions Scores By Group");
  EXPECT_EQ(dialog_.lines(kClasses), (std::vector<std::string>{" 1.  Steers", " 3.  Gilts"}));
  EXPECT_EQ(dialog_.focused(), kQuestions);
}

TEST_F(QuestionsEntry, TakesAGroupByKeysAlone) {
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

TEST_F(QuestionsEntry, ChecksClassGroupRangeAndContestantInThisOrder) {
  const auto press = [this] {
    dialog_.fill(kQuestions, "51");
    dialog_.click(1004);
    EXPECT_EQ(dialog_.focused(), kQuestions);
    return lastMessage(dialog_) + " [" + dialog_.text(kQuestions) + "]";
  };
  EXPECT_EQ(press(), "Error: You must select a class before entering a score. [51]");
  dialog_.choose(kClasses, 0);
  EXPECT_EQ(press(), "Error: You must select a group before entering a score. [51]");
  dialog_.choose(kGroups, 2);
  EXPECT_EQ(press(), "Error: Questions Score must be between 0 and 50. []");
  dialog_.fill(kQuestions, "0");
  dialog_.pressEnter();
  EXPECT_EQ(lastMessage(dialog_), "Warning: Error:  no member number available.");
  EXPECT_EQ(dialog_.text(kQuestions), "");
  EXPECT_TRUE(contest().scores.empty());
}

TEST_F(QuestionsEntry, StoresNothingOfANumberTooLarge) {
  dialog_.choose(kClasses, 0);
  dialog_.choose(kGroups, 0);
  dialog_.keys("4294967296");
  dialog_.pressEnter();
  EXPECT_TRUE(contest().scores.empty());
  EXPECT_EQ(dialog_.text(kNumber), "105");
}

TEST_F(QuestionsEntry, SavesUnlessCancelled) {
  for (const Close how : {Close::done, Close::ok, Close::escape, Close::closeBox}) {
    QuestionsDialog behaviour;
    MemoryDialog dialog(kQuestionsDialog, behaviour);
    const Closed expected = how == Close::escape ? Closed{2, false} : Closed{1, true};
    EXPECT_EQ(closeDialog(dialog, behaviour, how), expected);
  }
}

}  // namespace
