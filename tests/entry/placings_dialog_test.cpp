#include "entry/placings_dialog.h"

#include "tests/entry/entry_fixture.h"

namespace {

constexpr ControlId kNumber = 1054;
constexpr ControlId kLetter = 1027;
constexpr ControlId kClasses = 1016;
constexpr ControlId kGroups = 1053;
constexpr ControlId kScore = 1004;

class PlacingsEntry : public EntryTest {
 protected:
  PlacingsDialog behaviour_;
  MemoryDialog dialog_{kPlacingsDialog, behaviour_};

  void choose(int classLine, int groupLine) {
    dialog_.choose(kClasses, classLine);
    dialog_.choose(kGroups, groupLine);
  }
  void expectNothingChosen() {
    EXPECT_EQ(dialog_.selection(kClasses), std::nullopt);
    EXPECT_EQ(dialog_.selection(kGroups), std::nullopt);
    EXPECT_EQ(dialog_.text(kNumber), "");
    EXPECT_EQ(dialog_.focused(), kLetter);
  }
  std::string lastScore() {
    std::string shown;
    for (const ControlId id : {1031, 1032, 1033, 1034, 1030}) shown += dialog_.text(id) + '|';
    return shown;
  }
};

TEST_F(PlacingsEntry, OpensOnTheScoreFieldWithNothingChosen) {
  EXPECT_EQ(dialog_.lines(kClasses),
            (std::vector<std::string>{" 1.  Steers", " 2.  Ewes", " 3.  Gilts"}));
  EXPECT_EQ(dialog_.lines(kGroups), (std::vector<std::string>{"   A   ", "   B   ", "   C   "}));
  EXPECT_EQ(lastScore(), "|||(-,-,-)||");
  EXPECT_EQ(dialog_.defaultButton(), kScore);
  expectNothingChosen();
}

TEST_F(PlacingsEntry, TakesAGroupByKeysAlone) {
  // A "Z" is stored with a score of 0, so it raises no question about entering again.
  contest().scores[106][0].letter = 'Z';
  choose(0, 1);
  EXPECT_EQ(dialog_.text(kNumber), "102");
  dialog_.keys("g");
  dialog_.pressEnter();
  EXPECT_EQ(record(102, 0), (ScoreRecord{'G', 48, 0, 0}));
  EXPECT_EQ(lastScore(), "102|G|A|(2,3,4)|48|");
  EXPECT_EQ(dialog_.text(kNumber), "106") << "nobody stands behind 104";
  dialog_.keys("Z");
  dialog_.click(kScore);
  EXPECT_EQ(record(106, 0), (ScoreRecord{'Z', 0, 0, 0}));
  EXPECT_EQ(lastScore(), "106|Z|A|(2,3,4)|0|");
  expectNothingChosen();
  EXPECT_TRUE(dialog_.desktop.messages.empty());
  EXPECT_FALSE(contest().scores.contains(104));
}

TEST_F(PlacingsEntry, ShowsAndPassesOnWithoutALetter) {
  contest().scores[101][1] = {'C', 44, 31, 0};
  contest().scores[105][2] = {'D', 0, 0, 0};
  const Contest before = contest();
  dialog_.choose(kGroups, 0);
  dialog_.desktop.answers = {Answer::yes};
  dialog_.choose(kClasses, 1);
  dialog_.pressEnter();
  EXPECT_EQ(lastScore(), "101|C|X|(5,5,5)|44|");
  dialog_.pressEnter();
  EXPECT_EQ(lastScore(), "105| |X|(5,5,5)|0|");
  expectNothingChosen();
  EXPECT_EQ(contest(), before);
}

TEST_F(PlacingsEntry, ChecksClassGroupLetterAndContestantInThisOrder) {
  const std::string tooMany = "Warning: Error:  too many letters entered for score.";
  const auto press = [this](const char* typed) {
    dialog_.fill(kLetter, typed);
    dialog_.pressEnter();
    EXPECT_EQ(dialog_.focused(), kLetter);
    return lastMessage(dialog_) + " [" + dialog_.text(kLetter) + "]";
  };
  const std::string choose = "Error: You must select a ";
  EXPECT_EQ(press("AB"), choose + "class before entering a score. [AB]");
  dialog_.choose(kClasses, 0);
  EXPECT_EQ(press("AB"), choose + "group before entering a score. [AB]");
  dialog_.choose(kGroups, 2);
  EXPECT_EQ(dialog_.text(kNumber), "") << "nobody is in group C";
  EXPECT_EQ(press("AB"), tooMany + " []");
  for (const std::string typed : {"Y", "y", "[", "@", "7", "\xC4", " "}) {
    const std::string shown = typed == "y" ? "Y" : typed;
    EXPECT_EQ(press(typed.c_str()),
              "Warning: Error:  score must be between A and X <" + shown + "> (Z=zero). []");
  }
  for (const char* typed : {"A", "X", "Z", ""}) {
    EXPECT_EQ(press(typed), "Warning: Error:  no member number available. []");
  }
  EXPECT_TRUE(contest().scores.empty());
}

TEST_F(PlacingsEntry, StoresLettersOfAClassWithoutOfficialPlacing) {
  choose(2, 0);
  dialog_.keys("A");
  dialog_.pressEnter();
  EXPECT_EQ(record(101, 2), (ScoreRecord{'A', 0, 0, 0}));
}

TEST_F(PlacingsEntry, AsksBeforeAGroupIsEnteredAgain) {
  contest().scores[101][0] = {'X', -2, 0, 0};
  contest().scores[105][0] = {'Z', 0, 40, 40};
  contest().scores[103][0] = {'A', 50, 0, 0};
  dialog_.choose(kClasses, 0);
  dialog_.keys("A");
  dialog_.desktop.answers = {Answer::no};
  dialog_.choose(kGroups, 0);
  ASSERT_EQ(dialog_.desktop.messages.size(), 1U);
  const Message& asked = dialog_.desktop.messages[0];
  EXPECT_EQ(asked.text,
            "This group has 1 (out of 2) placings scores that have already been entered.\n\n\n"
            "Would you like to re-enter scores for this group?");
  EXPECT_EQ(asked.caption, "Information");
  EXPECT_EQ(asked.buttons, Buttons::yesNo);
  EXPECT_EQ(asked.defaultAnswer, Answer::yes);
  expectNothingChosen();
  dialog_.desktop.answers = {Answer::yes};
  choose(0, 0);
  EXPECT_EQ(dialog_.text(kNumber), "101");
  EXPECT_EQ(dialog_.focused(), kLetter);
}

TEST_F(PlacingsEntry, StartsAnewWithAnotherChoiceButNotWithAnEmptyGroup) {
  choose(0, 0);
  dialog_.keys("A");
  dialog_.pressEnter();
  EXPECT_EQ(dialog_.text(kNumber), "105");
  dialog_.choose(kClasses, 1);
  EXPECT_EQ(dialog_.text(kNumber), "101");
  dialog_.choose(kGroups, 2);
  EXPECT_EQ(dialog_.text(kNumber), "101") << "the choice of an empty group changes nothing";
  dialog_.fill(kLetter, "X");
  dialog_.pressEnter();
  EXPECT_EQ(record(101, 1).placingScore, 50);
  expectNothingChosen();
}

TEST_F(PlacingsEntry, FindsTheLetterOfAGroupWhereverItsLineIsSorted) {
  PlacingsDialog behaviour;
  contest().groupLetters = {'A', 'B', '!'};
  contest().contestantGroup[105] = '!';
  MemoryDialog dialog(kPlacingsDialog, behaviour);
  dialog.choose(kClasses, 0);
  dialog.choose(kGroups, 0);
  EXPECT_EQ(dialog.text(kNumber), "105");
}

}  // namespace
