#include "setup/setup_classes_dialog.h"

#include "setup/setup_classes_controls.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"
#include "tests/ui/recorded_dialog.h"

using namespace setup_classes;

namespace {

struct ClassSetup : Session<made<SetupClassesDialog>, kDialog> {
  using Session::Session;

  // Chooses a class or none, fills the form in and presses Update or Add.
  void store(std::optional<int> line, const char* official, const char* middleCut) {
    line ? choose(kNameList, *line) : click(kNewClass);
    setText(kClassName, "Hogs");
    setText(kOfficial, official);
    setText(kCut1, "3");
    setText(kCut2, middleCut);
    click(line ? kUpdate : kAdd);
  }
};

Contest twoClasses() {
  return ContestBuilder()
      .categories({"Beef", "Sheep"})
      .addClass({.name = "Steers", .reasons = true, .official = 'B', .cuts = {1, 2, 3}})
      .addClass({.name = "Ewes", .questions = true, .official = 'C', .category = 1})
      .contest;
}

TEST(SetupClasses, AClassIsTypedWithoutLeavingTheKeyboard) {
  ClassSetup setup(ContestBuilder().contest);
  setup.keys("Steers");
  setup.fill(kOfficial, "dx24x3");
  setup.pressEnter();
  setup.fill(kOfficial, "");
  expectApproved(setup.session(), "setup/class_typed.txt");
}

TEST(SetupClasses, AnyColumnSelectsTheWholeRow) {
  Contest contest = twoClasses();
  contest.classes.categoryIndex[0] = -1;
  contest.classes.questionsFlag[0] = true;
  ClassSetup setup(contest);
  EXPECT_EQ(setup.linkedLists(), std::vector(kTable.begin(), kTable.end()));
  int line = 1;
  for (const ControlId list : kTable) setup.choose(list, line = 1 - line);
  setup.pressEnter();
  expectApproved(setup.session(), "setup/class_selected.txt");
}

// The undo of a refusal works on the first and the last class, whatever was being stored. Without
// other classes it is clean. What the undo of an update took away is there again once the corrected
// update is stored, and a line left without its class goes with the next class added.
TEST(SetupClasses, RefusedClassesAreUndone) {
  ClassSetup setup(twoClasses());
  struct Case {
    std::optional<int> line;
    const char* official;
    const char* middleCut;
  };
  for (const auto& [line, official, middleCut] :
       {Case{{}, "", "12"}, Case{{}, "AB", "12"}, Case{{}, "y", "12"}, Case{{}, "D", "12"},
        Case{0, "", "0"}, Case{1, "AA", "0"}, Case{0, "y", "0"}, Case{0, "D", "12"}}) {
    currentContest().classes = twoClasses().classes;
    setup.store(line, official, middleCut);
  }
  currentContest().classes.clear();
  setup.store({}, "D", "16");
  currentContest().classes = twoClasses().classes;
  setup.store(1, "D", "16");
  setup.store(1, "D", "1");
  setup.store(0, "", "0");
  setup.store({}, "E", "1");
  expectApproved(setup.session(), "setup/classes_refused.txt");
}

TEST(SetupClasses, ClassesAreRemovedWithoutScoresAndClearedWithThem) {
  Contest contest = twoClasses();
  contest.scores[101][1].questionsScore = 1;
  ClassSetup setup(contest);
  for (const ControlId button : {kAdd, kUpdate, kRemove}) setup.click(button);
  setup.choose(kNameList, 0);
  setup.setDefaultButton(kAdd);
  for (const ControlId button : {kAdd, kRemove}) setup.click(button);
  currentContest().scores.clear();
  setup.click(kRemove);
  setup.choose(kCutsList, 0);
  setup.click(kRemove);
  currentContest().scores = contest.scores;
  setup.choose(kNameList, 0);
  setup.desktop.answers = {Answer::cancel, Answer::ok};
  setup.click(kClearAll);
  setup.click(kClearAll);
  expectApproved(setup.session(), "setup/classes_removed.txt");
}

TEST(SetupClasses, ClosingRecomputesThePlacingScoresAndSaves) {
  ContestBuilder builder;
  builder.addClass({.official = 'B', .cuts = {2, 3, 4}}).contestant("Ann").placings(101, "B");
  builder.contest.categories.clear();
  ClassSetup setup(builder.contest);
  currentContest().classes.officialLetter[0] = 'A';
  setup.pressEscape();
  setup.pressCloseBox();
  expectApproved(setup.session(), "setup/classes_closed.txt");
}

}  // namespace
