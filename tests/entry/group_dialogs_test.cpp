// The dialogs that enter scores group by group.
#include "entry/placings_dialog.h"
#include "entry/questions_dialog.h"
#include "entry/reasons_dialog.h"
#include "tests/entry/entry_fixture.h"

namespace {

constexpr ControlId kNumber = 1054, kClasses = 1016, kGroups = 1053, kScore = 1004;

// An operator at one of the dialogs, who types into its score field.
template <auto make, int resource, ControlId field>
struct Desk {
  decltype(make()) behaviour = make();
  MemoryDialog dialog{resource, behaviour};

  // Chooses a class and a group; gives the question that was answered and the contestant shown.
  std::string choose(int classLine, int groupLine, std::optional<Answer> answer = {}) {
    dialog.desktop.messages.clear();
    if (answer) dialog.desktop.answers = {*answer};
    dialog.choose(kClasses, classLine);
    dialog.choose(kGroups, groupLine);
    EXPECT_EQ(dialog.focused(), field);
    return lastMessage(dialog) + contestant();
  }
  // The contestant shown, or "end" when the lists are free again.
  std::string contestant() {
    const std::string number = dialog.text(kNumber);
    const bool chosen = dialog.selection(kClasses) || dialog.selection(kGroups);
    return chosen || !number.empty() ? number : "end";
  }
  // Types a score and presses Enter, or Score by mouse; gives the message with what is left of the
  // typing, or the last score and the next contestant.
  std::string enter(const char* typed, bool byMouse = false) {
    dialog.desktop.messages.clear();
    dialog.fill(field, typed);
    byMouse ? dialog.click(kScore) : dialog.pressEnter();
    EXPECT_EQ(dialog.focused(), field);
    const std::string left = dialog.text(field);
    if (!dialog.desktop.messages.empty()) return lastMessage(dialog) + " [" + left + "]";
    EXPECT_EQ(left, "");
    return lastScore() + contestant();
  }
  // The lines of both lists and the focus.
  std::string opened() {
    std::string all;
    for (const ControlId list : {kClasses, kGroups}) {
      for (const std::string& line : dialog.lines(list)) all += line + '|';
    }
    return all + std::to_string(dialog.focused());
  }
  std::string lastScore() {
    if (resource == 147) return textsOf(dialog, {1031, 1032, 1033, 1034, 1030});
    return textsOf(dialog, {1031, resource == 148 ? 1035 : 1036});
  }
};
using Placings = Desk<placingsDialog, kPlacingsDialog, 1027>;
using Reasons = Desk<[] { return ReasonsDialog(); }, kReasonsDialog, 1028>;
using Questions = Desk<questionsDialog, kQuestionsDialog, 1056>;
using GroupEntryTest = EntryTest;

TEST_F(GroupEntryTest, OpensOnTheScoreFieldWithTheClassesThatCarryTheScore) {
  EXPECT_EQ(Placings().opened(), " 1.  Steers| 2.  Ewes| 3.  Gilts|   A   |   B   |   C   |1027");
  EXPECT_EQ(Reasons().opened(), " 2.  Ewes| 3.  Gilts|   1   |   2   |   3   |1028");
  EXPECT_EQ(Questions().opened(), " 1.  Steers| 3.  Gilts|   A   |   B   |   C   |1056");
  EXPECT_EQ(Placings().lastScore(), "|||(-,-,-)||");
}

TEST_F(GroupEntryTest, StoresLettersWithTheirPlacingScore) {
  Placings desk;
  EXPECT_EQ(desk.choose(0, 1), "102");
  EXPECT_EQ(desk.enter("g"), "102|G|A|(2,3,4)|48|106") << "nobody stands behind 104";
  EXPECT_EQ(desk.enter("Z", true), "106|Z|A|(2,3,4)|0|end");
  EXPECT_FALSE(contest().scores.contains(104));
  desk.choose(2, 0);
  EXPECT_EQ(desk.enter("A"), "101|A| |(2,3,4)|0|105") << "no official placing yet";
}

TEST_F(GroupEntryTest, ShowsAndPassesOnWithoutAScore) {
  contest().scores[101][1] = {'C', 44, 31, 0};
  contest().scores[105][2] = {'D', 0, 0, 20};
  const Contest before = contest();
  Placings placings;
  placings.choose(1, 0, Answer::yes);
  EXPECT_EQ(placings.enter(""), "101|C|X|(5,5,5)|44|105");
  EXPECT_EQ(placings.enter(""), "105| |X|(5,5,5)|0|end");
  Reasons reasons;
  reasons.choose(0, 0, Answer::yes);
  EXPECT_EQ(reasons.enter(""), "105|0|101");
  EXPECT_EQ(reasons.enter("4294967296"), "101|31|end") << "too large to be a number";
  Questions questions;
  questions.choose(1, 0, Answer::yes);
  EXPECT_EQ(questions.enter(""), "101|0|105");
  EXPECT_EQ(questions.enter(""), "105|20|end");
  EXPECT_EQ(contest(), before);
}

TEST_F(GroupEntryTest, ChecksClassGroupScoreAndContestantInThisOrder) {
  const auto refuses = [](auto&& desk, const char* wrong, const std::string& group,
                          const std::string& reason, const std::string& noContestant) {
    const std::string left = " before entering a score. [" + std::string(wrong) + "]";
    EXPECT_EQ(desk.enter(wrong, true), "Error: You must select a class" + left);
    desk.dialog.choose(kClasses, 0);
    EXPECT_EQ(desk.enter(wrong), "Error: You must select a " + group + left);
    desk.dialog.choose(kGroups, 2);
    EXPECT_EQ(desk.dialog.text(kNumber), "") << "nobody to start with";
    EXPECT_EQ(desk.enter(wrong), reason + " []");
    EXPECT_EQ(desk.enter("", true), "Warning: Error:  no member number " + noContestant + ". []");
    EXPECT_TRUE(contest().scores.empty());
  };
  refuses(Placings(), "AB", "group", "Warning: Error:  too many letters entered for score.",
          "available");
  refuses(Reasons(), "51", "reasons group", "Error: Reasons Score must be between 0 and 50.",
          "entered");
  refuses(Questions(), "51", "group", "Error: Questions Score must be between 0 and 50.",
          "available");
}

TEST_F(GroupEntryTest, RefusesWhatIsNoPlacing) {
  Placings desk;
  desk.choose(0, 0);
  for (const std::string typed : {"Y", "[", "@", "7", "\xC4", " "}) {
    EXPECT_EQ(desk.enter(typed.c_str()),
              "Warning: Error:  score must be between A and X <" + typed + "> (Z=zero). []");
  }
  EXPECT_EQ(desk.enter("x"), "101|X|A|(2,3,4)|20|105");
}

TEST_F(GroupEntryTest, AsksBeforeAGroupIsEnteredAgain) {
  const auto question = [](const char* counts) {
    return "Information: This group has " + std::string(counts) +
           " scores that have already been entered.\n\n\n"
           "Would you like to re-enter scores for this group?";
  };
  contest().scores[101][2] = {'X', -2, 30, 0};
  contest().scores[105][2] = {'Z', 0, 1, 40};
  contest().scores[102][2] = {'A', 50, 0, 20};
  contest().scores[103][2] = {'A', 50, 20, 20};
  contest().reasonsOrder.setCell(2, 0, 103);
  Placings placings;
  EXPECT_EQ(placings.choose(2, 0, Answer::yes), question("1 (out of 2) placings") + "101");
  EXPECT_EQ(placings.dialog.desktop.messages[0].buttons, Buttons::yesNo);
  EXPECT_EQ(placings.dialog.desktop.messages[0].defaultAnswer, Answer::yes);
  Reasons reasons;
  EXPECT_EQ(reasons.choose(1, 0, Answer::no), question("2 (out of 3) reasons") + "end");
  EXPECT_EQ(reasons.enter("9"), "Error: You must select a class before entering a score. [9]");
  EXPECT_EQ(Questions().choose(1, 0, Answer::no), question("1 (out of 2) questions") + "end");
}

TEST_F(GroupEntryTest, StartsAnewWithAnotherChoiceButNotWithAnEmptyGroup) {
  contest().scores[105][0].letter = 'Z';  // a score of 0 raises no question
  Placings desk;
  desk.choose(0, 0);
  desk.enter("");
  desk.dialog.choose(kClasses, 1);
  EXPECT_EQ(desk.dialog.text(kNumber), "101");
  desk.dialog.choose(kGroups, 2);
  EXPECT_EQ(desk.dialog.text(kNumber), "101");
  EXPECT_EQ(desk.enter("X"), "101|X|X|(5,5,5)|50|end");
}

TEST_F(GroupEntryTest, FindsTheLetterOfAGroupWhereverItsLineIsSorted) {
  contest().groupLetters = {'A', 'B', '!'};
  contest().contestantGroup[105] = '!';
  EXPECT_EQ(Placings().choose(0, 0), "105");
}

TEST_F(GroupEntryTest, GoesDownAReasonsColumnToItsFirstHoleBelowTheTop) {
  Reasons desk;
  EXPECT_EQ(desk.choose(0, 0), "105");
  desk.dialog.paste(1028, " 50 ");
  desk.dialog.pressEnter();
  EXPECT_EQ(desk.lastScore() + desk.contestant(), "105|50|101") << "blanks came with the number";
  EXPECT_EQ(desk.enter("0", true), "101|0|end");
  EXPECT_EQ(record(105, 1), (ScoreRecord{' ', 0, 50, 0}));
  EXPECT_TRUE(contest().scores.contains(101));
  EXPECT_EQ(desk.choose(1, 1), "106") << "one empty cell at the top is passed over";
  desk.dialog.choose(kGroups, 2);
  EXPECT_EQ(desk.dialog.text(kNumber), "") << "two are not";
  contest().reasonsOrder.reset(1, 1);
  contest().reasonsOrder.setCell(0, 0, 102);
  Reasons shortColumn;
  EXPECT_EQ(shortColumn.choose(0, 0), "102");
  EXPECT_EQ(shortColumn.enter("7"), "102|7|end");
}

}  // namespace
