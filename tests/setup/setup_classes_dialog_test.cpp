#include "setup/setup_classes_dialog.h"

#include "setup/setup_classes_controls.h"
#include "tests/setup/setup_dialog.h"
#include "view/report_text.h"

using namespace setup_classes;

namespace {

using Lines = std::vector<std::string>;

constexpr const char* kCutsMessage =
    "Illegal value for cuts.\n"
    "The total of the three cuts cannot be greater than 15.\n"
    "If the cuts add to 15, the middle cut cannot be greater than 5.\n"
    "If the cuts add to 14, the middle cut cannot be greater than 8.\n|Warning";

struct ClassSetup : SetupDialog<SetupClassesDialog> {
  explicit ClassSetup(Contest contest = ContestBuilder().contest)
      : SetupDialog(kDialog, std::move(contest)) {}

  // Types a class as an operator does, the letter and cuts without a Tab in between.
  void type(const char* name, const char* letterAndCuts) {
    dialog.fill(kClassName, name);
    dialog.focus(kOfficial);
    dialog.selectText(kOfficial);
    dialog.keys(letterAndCuts);
  }
  void paste(const char* name, const char* official, const char* cut1, const char* cut2,
             const char* cut3) {
    dialog.paste(kClassName, name);
    dialog.paste(kOfficial, official);
    dialog.paste(kCut1, cut1);
    dialog.paste(kCut2, cut2);
    dialog.paste(kCut3, cut3);
  }
  [[nodiscard]] Lines row(int line) const {
    Lines texts;
    for (const ControlId list : kTable) texts.push_back(dialog.line(list, line));
    return texts;
  }
  [[nodiscard]] bool isReset() const {
    return dialog.text(kClassName).empty() && dialog.text(kOfficial) == "A" &&
           dialog.text(kOfficialOrder) == "( 1 , 2 , 3 , 4 )" && dialog.text(kCut2) == "0" &&
           !dialog.isChecked(kReasons) && dialog.selection(kCategory) == 0 &&
           !dialog.selection(kNameList) && dialog.focused() == kClassName &&
           dialog.defaultButton() == kAdd;
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
  EXPECT_TRUE(setup.isReset());
  setup.type("Steers", "d24");
  EXPECT_EQ(setup.dialog.focused(), kCut3);
  EXPECT_EQ(setup.dialog.text(kOfficialOrder), "( 1 , 3 , 4 , 2 )");
  setup.dialog.keys("3");
  EXPECT_EQ(setup.dialog.focused(), kCategory);
  setup.dialog.pressEnter();
  EXPECT_EQ(setup.row(0), (Lines{" 1.  Steers", "   ---", "   D (1,3,4,2)", "  (2,4,3)", "none"}));
  EXPECT_TRUE(setup.isReset());
  EXPECT_EQ(currentContest().classes.cuts(0), (Cuts{2, 4, 3}));
  // An emptied letter leaves the order shown.
  setup.dialog.fill(kOfficial, "");
  EXPECT_EQ(setup.dialog.text(kOfficialOrder), "( 1 , 2 , 3 , 4 )");
}

TEST(SetupClasses, AnyColumnSelectsTheWholeRow) {
  Contest contest = twoClasses();
  contest.classes.categoryIndex[0] = -1;
  contest.classes.questionsFlag[0] = true;
  ClassSetup setup(contest);
  EXPECT_EQ(setup.row(0), (Lines{" 1.  Steers", "   R-Q", "   B (1,2,4,3)", "  (1,2,3)", "Beef"}));
  EXPECT_EQ(setup.dialog.line(kFlagsList, 1), "   --Q");
  for (const ControlId list : kTable) {
    setup.dialog.click(kNewClass);
    setup.dialog.choose(list, 1);
    for (const ControlId other : kTable) EXPECT_EQ(setup.dialog.selection(other), 1);
    EXPECT_EQ(setup.dialog.focused(), list);
    EXPECT_EQ(setup.dialog.defaultButton(), kUpdate);
  }
  EXPECT_EQ(setup.dialog.text(kClassName), "Ewes");
  EXPECT_TRUE(setup.dialog.isChecked(kQuestions));
  EXPECT_EQ(setup.dialog.selection(kCategory), 1);
  setup.dialog.setTopLine(kCutsList, 1);
  EXPECT_EQ(setup.dialog.topLine(kNameList), 1);
  setup.dialog.click(kNewClass);
  EXPECT_TRUE(setup.isReset());
  setup.dialog.choose(kCutsList, 0);
  EXPECT_EQ(setup.dialog.selection(kCategory), std::nullopt);
  setup.dialog.pressEnter();
  EXPECT_EQ(currentContest().classes, contest.classes);
}

TEST(SetupClasses, RefusalsOfAFirstClassLeaveNone) {
  struct Case {
    const char* name;
    const char* official;
    const char* cuts[3];
    std::string message;
  };
  const Case cases[] = {
      {"", "", {"9", "9", "9"}, "You didn't enter a class name!|Warning"},
      {"Steers", "", {"9", "9", "9"}, "Error:  no score entered.|Warning"},
      {"Steers", "AB", {"9", "9", "9"}, "Error:  too many letters entered for score.|Warning"},
      {"Steers", "y", {"9", "9", "9"}, "Error:  score must be between A and X <Y>.|Warning"},
      {"Steers", "X", {"5", "5", "6"}, kCutsMessage},
      {"Steers", "X", {"3", "6", "6"}, kCutsMessage},
      {"Steers", "X", {"2", "9", "3"}, kCutsMessage},
  };
  for (const Case& refused : cases) {
    ClassSetup setup;
    setup.paste(refused.name, refused.official, refused.cuts[0], refused.cuts[1], refused.cuts[2]);
    EXPECT_EQ(setup.press(kAdd), refused.message);
    EXPECT_EQ(currentContest().classes, JudgingClasses{}) << refused.message;
    EXPECT_EQ(setup.dialog.lineCount(kNameList), 0);
    EXPECT_EQ(setup.dialog.text(kClassName), refused.name);
  }
}

TEST(SetupClasses, TheUndoOfARefusalWorksOnTheFirstAndLastClass) {
  struct Case {
    const char* official;
    const char* middleCut;
    std::optional<int> updated;
    Lines names;
    std::vector<PlacingLetter> letters;
  };
  const Case cases[] = {
      {"", "0", std::nullopt, {"Steers", "Ewes"}, {'B', 'C'}},
      {"Z", "0", std::nullopt, {"", "Ewes"}, {'B', 'C'}},
      {"D", "16", std::nullopt, {"", "Ewes"}, {'B', 'C'}},
      {"", "0", 0, {"Hogs"}, {'B', 'C'}},
      {"AA", "0", 1, {"Steers"}, {'B', 'C'}},
      {"Z", "0", 0, {""}, {'B', 'C'}},
      {"D", "16", 0, {""}, {'D'}},
  };
  for (const Case& refused : cases) {
    ClassSetup setup(twoClasses());
    if (refused.updated) setup.dialog.choose(kNameList, *refused.updated);
    setup.paste("Hogs", refused.official, "0", refused.middleCut, "0");
    setup.dialog.click(refused.updated ? kUpdate : kAdd);
    const JudgingClasses& classes = currentContest().classes;
    EXPECT_EQ(classes.className, refused.names);
    EXPECT_EQ(classes.officialLetter, refused.letters);
    EXPECT_EQ(classes.reasonsFlag.size(), refused.letters.size());
    EXPECT_EQ(classes.categoryIndex.size(), refused.letters.size());
    EXPECT_EQ(classes.cut2.size(), 2U);
  }
}

// What an undo took away is there again once the corrected update is stored.
TEST(SetupClasses, ACorrectedUpdateOfTheLastClassMendsIt) {
  ClassSetup setup(twoClasses());
  setup.dialog.choose(kNameList, 1);
  setup.paste("Hogs", "D", "0", "16", "0");
  EXPECT_EQ(setup.press(kUpdate), kCutsMessage);
  ASSERT_EQ(currentContest().classes.count(), 1);
  setup.dialog.choose(kNameList, 1);
  EXPECT_EQ(setup.dialog.text(kOfficial), " ");
  setup.paste("Hogs", "D", "1", "1", "1");
  setup.dialog.click(kUpdate);
  EXPECT_EQ(setup.row(1), (Lines{" 2.  Hogs", "   ---", "   D (1,3,4,2)", "  (1,1,1)", "Beef"}));
  EXPECT_EQ(setup.row(0)[0], " 1.  ");
}

TEST(SetupClasses, ARowWithoutItsClassGoesWithTheNextClassAdded) {
  ClassSetup setup(twoClasses());
  setup.dialog.choose(kNameList, 0);
  setup.paste("Hogs", "", "0", "0", "0");
  setup.dialog.click(kUpdate);
  setup.dialog.click(kNewClass);
  setup.type("Does", "E111");
  setup.dialog.click(kAdd);
  EXPECT_EQ(setup.dialog.lines(kNameList), (Lines{" 1.  Hogs", " 2.  Does"}));
}

TEST(SetupClasses, AddNeedsNoSelectionAndUpdateNeedsOne) {
  ClassSetup setup(twoClasses());
  EXPECT_EQ(setup.press(kUpdate), "No class is selected, so an update is not possible.|Warning");
  setup.dialog.choose(kNameList, 0);
  setup.dialog.setDefaultButton(kAdd);
  setup.dialog.pressEnter();
  EXPECT_EQ(setup.takeMessage(), "Once a class is selected you can only update it.|Warning");
  EXPECT_EQ(setup.dialog.defaultButton(), kUpdate);
  EXPECT_EQ(currentContest().classes, twoClasses().classes);
}

TEST(SetupClasses, RemoveTakesAClassOutOfEveryColumn) {
  ClassSetup setup(twoClasses());
  EXPECT_EQ(setup.press(kRemove), "No items selected.|Warning");
  setup.dialog.choose(kCutsList, 0);
  setup.dialog.click(kRemove);
  EXPECT_TRUE(setup.isReset());
  EXPECT_EQ(setup.dialog.lines(kNameList), Lines{" 1.  Ewes"});
  JudgingClasses left;
  left.add("Ewes", false, true, 'C', {2, 3, 4}, 1);
  EXPECT_EQ(currentContest().classes, left);

  Contest scored = twoClasses();
  scored.scores[101][1].questionsScore = 1;
  ClassSetup late(scored);
  EXPECT_EQ(late.press(kRemove), "You cannot delete a class once scores have been input.|Error");
  EXPECT_EQ(currentContest(), scored);
}

TEST(SetupClasses, ClearAllAsksFirst) {
  Contest scored = twoClasses();
  scored.scores[101][0].letter = 'C';
  ClassSetup setup(scored);
  setup.dialog.desktop.answers = {Answer::cancel, Answer::ok};
  setup.dialog.click(kClearAll);
  EXPECT_EQ(setup.dialog.desktop.messages.back().defaultAnswer, Answer::cancel);
  EXPECT_EQ(setup.takeMessage(), "This will delete all classes!  Continue?|Warning");
  EXPECT_EQ(currentContest(), scored);
  setup.dialog.click(kClearAll);
  EXPECT_EQ(currentContest().classes, JudgingClasses{});
  EXPECT_EQ(currentContest().scores, scored.scores);
  for (const ControlId list : kTable) EXPECT_EQ(setup.dialog.lineCount(list), 0);
  EXPECT_EQ(setup.dialog.focused(), kClassName);
}

TEST(SetupClasses, ClosingRecomputesThePlacingScoresAndSaves) {
  ContestBuilder builder;
  builder.addClass({.official = 'A', .cuts = {2, 3, 4}}).contestant("Ann").placings(101, "B");
  builder.contest.categories.clear();
  ClassSetup setup(builder.contest);
  EXPECT_EQ(currentContest().categories, Lines{"none"});
  setup.dialog.choose(kNameList, 0);
  setup.dialog.paste(kCut3, "1");
  setup.dialog.click(kUpdate);
  reportText() = "old report";
  setup.dialog.pressEscape();
  EXPECT_FALSE(setup.dialog.result());
  setup.dialog.pressCloseBox();
  EXPECT_TRUE(setup.dialog.result() && setup.saved());
  EXPECT_EQ(reportText(), kWelcomeText);
  EXPECT_EQ(scoreRecord(currentContest(), 101, 0).placingScore, 49);
}

}  // namespace
