// The dialogs that enter scores group by group.
#include "entry/placings_dialog.h"
#include "entry/questions_dialog.h"
#include "entry/reasons_dialog.h"
#include "tests/entry/entry_fixture.h"
#include "tests/support/approved.h"
#include "tests/ui/recorded_dialog.h"

namespace {

constexpr ControlId kClasses = 1016, kGroups = 1053, kScore = 1004;

// An operator at one of the dialogs, who types into its score field.
template <auto make, int resource, ControlId field>
struct Desk : Session<make, resource> {
  explicit Desk(const Contest& contest = contestAtEntry()) : Session<make, resource>(contest) {}

  void chooseGroup(int classLine, int groupLine, std::optional<Answer> answer = {}) {
    this->desktop.answers.clear();
    if (answer) this->desktop.answers = {*answer};
    this->choose(kClasses, classLine);
    this->choose(kGroups, groupLine);
  }
  void enter(std::initializer_list<const char*> cards) {
    for (const char* typed : cards) {
      this->fill(field, typed);
      this->pressEnter();
    }
  }
  // Class, group, score and contestant are missed in this order.
  void enterTooEarly(const char* wrong) {
    this->fill(field, wrong);
    this->click(kScore);
    this->choose(kClasses, 0);
    this->pressEnter();
    this->choose(kGroups, 2);
    this->pressEnter();
    this->click(kScore);
  }
};
using Placings = Desk<placingsDialog, kPlacingsDialog, 1027>;
using Reasons = Desk<made<ReasonsDialog>, kReasonsDialog, 1028>;
using Questions = Desk<questionsDialog, kQuestionsDialog, 1056>;

// 101 and 105 have cards of two classes.
Contest contestWithCards() {
  Contest contest = contestAtEntry();
  contest.scores[101][1] = {'C', 44, 31, 0};
  contest.scores[105][2] = {'D', 0, 0, 20};
  return contest;
}

TEST(GroupEntry, TakesPlacingsCardByCard) {
  Placings desk;
  desk.enterTooEarly("AB");
  desk.chooseGroup(0, 1);
  desk.enter({"Y", "[", "@", "7", "\xC4", " ", "g"});
  desk.fill(1027, "Z");
  desk.click(kScore);
  desk.chooseGroup(2, 0);
  desk.enter({"a"});  // no official placing yet
  Placings passing(contestWithCards());
  passing.chooseGroup(1, 0, Answer::yes);
  passing.enter({"", ""});
  expectApproved(desk.session() + passing.session(), "entry/placings.txt");
}

// Down a column of the reasons order to its first hole below the top: one empty cell at the top is
// passed over, two are not. The last of several columns ends where another begins.
TEST(GroupEntry, TakesReasonsScoresDownAColumn) {
  Reasons desk;
  desk.enterTooEarly("51");
  desk.chooseGroup(0, 0);
  desk.paste(1028, " 50 ");  // blanks came with the number
  desk.pressEnter();
  desk.enter({"0"});
  desk.chooseGroup(1, 1);
  desk.chooseGroup(1, 2);
  Reasons passing(contestWithCards());
  passing.chooseGroup(0, 0, Answer::yes);
  passing.enter({"", "4294967296"});  // too large to be a number
  Contest contest = contestAtEntry();
  contest.reasonsOrder.reset(1, 1);
  contest.reasonsOrder.setCell(0, 0, 102);
  Reasons shortColumn(contest);
  shortColumn.chooseGroup(0, 0);
  shortColumn.enter({"7"});
  expectApproved(desk.session() + passing.session() + shortColumn.session(), "entry/reasons.txt");
}

TEST(GroupEntry, TakesQuestionsScores) {
  Questions desk(contestWithCards());
  desk.enterTooEarly("51");
  desk.chooseGroup(1, 0, Answer::yes);
  desk.enter({"", ""});
  desk.chooseGroup(0, 1);
  desk.enter({"50", "0"});
  expectApproved(desk.session(), "entry/questions.txt");
}

TEST(GroupEntry, AsksBeforeAGroupIsEnteredAgain) {
  Contest contest = contestAtEntry();
  contest.scores[101][2] = {'X', -2, 30, 0};
  contest.scores[105][2] = {'Z', 0, 1, 40};
  contest.scores[102][2] = {'A', 50, 0, 20};
  contest.scores[103][2] = {'A', 50, 20, 20};
  contest.reasonsOrder.setCell(2, 0, 103);
  Placings placings(contest);
  placings.chooseGroup(2, 0, Answer::yes);
  Reasons reasons(contest);
  reasons.chooseGroup(1, 0, Answer::no);
  reasons.enter({"9"});
  Questions questions(contest);
  questions.chooseGroup(1, 0, Answer::no);
  expectApproved(placings.session() + reasons.session() + questions.session(), "entry/again.txt");
}

// A score of 0 raises no question, and an empty group does not start. A sorted list need not stand
// in the order of the letters.
TEST(GroupEntry, StartsAnewWithAnotherChoice) {
  Contest contest = contestAtEntry();
  contest.groupLetters = {'A', 'B', '!'};
  contest.contestantGroup[105] = '!';
  contest.scores[105][0].letter = 'Z';
  Placings desk(contest);
  desk.chooseGroup(0, 1);
  desk.choose(kGroups, 0);
  desk.enter({""});
  desk.chooseGroup(1, 1);
  currentContest().contestantNames[105] = "";
  desk.choose(kGroups, 0);
  desk.enter({"X"});
  expectApproved(desk.session(), "entry/other_choice.txt");
}

}  // namespace
