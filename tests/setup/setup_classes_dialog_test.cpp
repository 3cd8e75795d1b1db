#include "setup/setup_classes_dialog.h"

#include "setup/setup_classes_controls.h"
#include "tests/setup/setup_dialog.h"
#include "view/report_text.h"

using namespace setup_classes;

namespace {

struct ClassSetup : SetupDialog<SetupClassesDialog, kDialog> {
  using SetupDialog::SetupDialog;

  void type(const char* name, const char* official, const char* middleCut) {
    paste(kClassName, name);
    paste(kOfficial, official);
    paste(kCut1, "3");
    paste(kCut2, middleCut);
  }
  [[nodiscard]] std::string form() const {
    return texts({kClassName, kOfficial, kOfficialOrder, kCut1, kCut2, kCut3}) +
           (isChecked(kReasons) ? "|R" : "|-") + (isChecked(kQuestions) ? "Q" : "-") + "|" +
           line(kCategory, selection(kCategory).value_or(-1));
  }
  [[nodiscard]] Lines row(int index) const {
    Lines texts;
    for (const ControlId list : kTable) texts.push_back(line(list, index));
    return texts;
  }
  void expectReset() const {
    EXPECT_EQ(form(), "|A|( 1 , 2 , 3 , 4 )|0|0|0|--|" + currentContest().categories[0]);
    for (const ControlId list : kTable) EXPECT_FALSE(selection(list)) << list;
    EXPECT_EQ(focusAndDefault(), FocusAndDefault(kClassName, kAdd));
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
  ClassSetup setup;
  setup.expectReset();
  setup.keys("Steers");
  setup.focus(kOfficial);
  setup.selectText(kOfficial);
  setup.keys("d");
  EXPECT_EQ(setup.text(kOfficialOrder), "( 1 , 3 , 4 , 2 )");
  setup.keys("x24x3");
  EXPECT_EQ(setup.focused(), kCategory);
  EXPECT_EQ(setup.form(), "Steers|D|( 1 , 3 , 4 , 2 )|2|4|3|--|none");
  setup.pressEnter();
  EXPECT_EQ(setup.row(0), (Lines{" 1.  Steers", "   ---", "   D (1,3,4,2)", "  (2,4,3)", "none"}));
  setup.expectReset();
  EXPECT_EQ(currentContest().classes.cuts(0), (Cuts{2, 4, 3}));
  setup.fill(kOfficial, "");
  EXPECT_EQ(setup.text(kOfficialOrder), "( 1 , 2 , 3 , 4 )");
}

TEST(SetupClasses, AnyColumnSelectsTheWholeRow) {
  Contest contest = twoClasses();
  contest.classes.categoryIndex[0] = -1;
  contest.classes.questionsFlag[0] = true;
  ClassSetup setup(contest);
  EXPECT_EQ(setup.row(0), (Lines{" 1.  Steers", "   R-Q", "   B (1,2,4,3)", "  (1,2,3)", "Beef"}));
  EXPECT_EQ(setup.line(kFlagsList, 1), "   --Q");
  for (const ControlId list : kTable) {
    setup.click(kNewClass);
    setup.expectReset();
    setup.choose(list, 1);
    for (const ControlId other : kTable) EXPECT_EQ(setup.selection(other), 1);
    EXPECT_EQ(setup.focusAndDefault(), FocusAndDefault(list, kUpdate));
    EXPECT_EQ(setup.form(), "Ewes|C|( 1 , 3 , 2 , 4 )|2|3|4|-Q|Sheep");
  }
  EXPECT_EQ(setup.linkedLists(), std::vector(kTable.begin(), kTable.end()));
  setup.choose(kCutsList, 0);
  EXPECT_EQ(setup.form(), "Steers|B|( 1 , 2 , 4 , 3 )|1|2|3|RQ|");
  setup.pressEnter();
  EXPECT_EQ(currentContest(), contest);
}

// The undo of a refusal works on the first and the last class, whatever was being stored.
TEST(SetupClasses, RefusalsAndTheirUndo) {
  struct Case {
    const char* official;
    const char* middleCut;
    std::string message;
    std::optional<int> updated;
    Lines names;
    std::string letters;
  };
  const std::string noLetter = "Error:  no score entered.|Warning";
  const std::string twoLetters = "Error:  too many letters entered for score.|Warning";
  const std::string notALetter = "Error:  score must be between A and X <Y>.|Warning";
  const std::string illegalCuts =
      "Illegal value for cuts.\nThe total of the three cuts cannot be greater than 15.\n"
      "If the cuts add to 15, the middle cut cannot be greater than 5.\n"
      "If the cuts add to 14, the middle cut cannot be greater than 8.\n|Warning";
  const Case cases[] = {
      {"", "12", noLetter, {}, {"Steers", "Ewes"}, "BC"},
      {"AB", "12", twoLetters, {}, {"Steers", "Ewes"}, "BC"},
      {"y", "12", notALetter, {}, {"", "Ewes"}, "BC"},
      {"D", "12", illegalCuts, {}, {"", "Ewes"}, "BC"},
      {"", "0", noLetter, 0, {"Hogs"}, "BC"},
      {"AA", "0", twoLetters, 1, {"Steers"}, "BC"},
      {"y", "0", notALetter, 0, {""}, "BC"},
      {"D", "12", illegalCuts, 0, {""}, "D"},
  };
  const JudgingClasses& classes = currentContest().classes;
  for (const Case& refused : cases) {
    ClassSetup setup(twoClasses());
    if (refused.updated) setup.choose(kNameList, *refused.updated);
    setup.type("Hogs", refused.official, refused.middleCut);
    EXPECT_EQ(setup.press(refused.updated ? kUpdate : kAdd), refused.message);
    EXPECT_EQ(classes.className, refused.names) << refused.message;
    const auto& letters = classes.officialLetter;
    EXPECT_EQ(std::string(letters.begin(), letters.end()), refused.letters);
    EXPECT_EQ(classes.reasonsFlag.size(), letters.size());
    EXPECT_EQ(classes.questionsFlag.size(), letters.size());
    EXPECT_EQ(classes.categoryIndex.size(), letters.size());
    EXPECT_EQ(classes.cut2.size(), 2U);
    // Table and form stay as they are.
    EXPECT_EQ(setup.lines(kNameList), (Lines{" 1.  Steers", " 2.  Ewes"}));
    EXPECT_EQ(setup.text(kClassName), "Hogs");
  }
}

// Without other classes the undo is clean. What the undo of an update took away is there again once
// the corrected update is stored, and a line left without its class goes with the next class added.
TEST(SetupClasses, RecoverFromTheUndo) {
  ClassSetup first;
  first.type("Hogs", "D", "16");
  first.click(kAdd);
  EXPECT_EQ(currentContest().classes, JudgingClasses{});
  ClassSetup setup(twoClasses());
  const auto update = [&](int line, const char* name, const char* official, const char* cut) {
    setup.choose(kNameList, line);
    setup.type(name, official, cut);
    setup.click(kUpdate);
  };
  update(1, "Hogs", "D", "16");
  setup.choose(kNameList, 1);
  EXPECT_EQ(setup.form(), "| |( 0 , 0 , 0 , 0 )|2|3|4|--|Beef");
  update(1, "Hogs", "D", "1");
  EXPECT_EQ(setup.row(1), (Lines{" 2.  Hogs", "   ---", "   D (1,3,4,2)", "  (3,1,4)", "Beef"}));
  update(0, "Kids", "", "0");
  setup.click(kNewClass);
  setup.type("Does", "E", "1");
  setup.click(kAdd);
  EXPECT_EQ(setup.lines(kNameList), (Lines{" 1.  Kids", " 2.  Does"}));
}

TEST(SetupClasses, ClassesAreRemovedWithoutScoresAndClearedWithThem) {
  Contest contest = twoClasses();
  contest.scores[101][1].questionsScore = 1;
  ClassSetup setup(contest);
  EXPECT_EQ(setup.press(kAdd), "You didn't enter a class name!|Warning");
  EXPECT_EQ(setup.press(kUpdate), "No class is selected, so an update is not possible.|Warning");
  const std::string tooLate = "You cannot delete a class once scores have been input.|Error";
  EXPECT_EQ(setup.press(kRemove), tooLate);
  setup.choose(kNameList, 0);
  setup.setDefaultButton(kAdd);
  EXPECT_EQ(setup.press(kAdd), "Once a class is selected you can only update it.|Warning");
  EXPECT_EQ(setup.defaultButton(), kUpdate);
  EXPECT_EQ(setup.press(kRemove), tooLate);
  setup.expectReset();
  EXPECT_EQ(currentContest(), contest);
  currentContest().scores.clear();
  EXPECT_EQ(setup.press(kRemove), "No items selected.|Warning");
  setup.choose(kCutsList, 0);
  setup.click(kRemove);
  setup.expectReset();
  EXPECT_EQ(setup.lines(kNameList), Lines{" 1.  Ewes"});
  contest.classes.clear();
  contest.classes.add("Ewes", false, true, 'C', {2, 3, 4}, 1);
  EXPECT_EQ(currentContest().classes, contest.classes);

  currentContest().scores = contest.scores;
  setup.choose(kNameList, 0);
  EXPECT_EQ(setup.press(kClearAll, Answer::cancel),
            "This will delete all classes!  Continue?|Warning");
  EXPECT_EQ(setup.defaultButton(), kAdd);
  EXPECT_EQ(currentContest(), contest);
  setup.press(kClearAll, Answer::ok);
  EXPECT_EQ(setup.focusAndDefault(), FocusAndDefault(kClassName, kAdd));
  for (const ControlId list : kTable) EXPECT_EQ(setup.lineCount(list), 0);
  contest.classes.clear();
  EXPECT_EQ(currentContest(), contest);
}

TEST(SetupClasses, ClosingRecomputesThePlacingScoresAndSaves) {
  ContestBuilder builder;
  builder.addClass({.official = 'B', .cuts = {2, 3, 4}}).contestant("Ann").placings(101, "B");
  builder.contest.categories.clear();
  ClassSetup setup(builder.contest);
  EXPECT_EQ(currentContest().categories, Lines{"none"});
  currentContest().classes.officialLetter[0] = 'A';
  reportText() = "old report";
  setup.pressEscape();
  EXPECT_FALSE(setup.isDone());
  setup.pressCloseBox();
  EXPECT_TRUE(setup.isDone());
  EXPECT_EQ(reportText(), kWelcomeText);
  EXPECT_EQ(scoreRecord(currentContest(), 101, 0).placingScore, 46);
}

}  // namespace
