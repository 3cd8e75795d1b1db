// What the sessions beside this file speak of: the setup dialogs, contests and what befalls them.
#include "reasons/reasons_order_edit_dialog.h"
#include "session/open_contest.h"
#include "setup/edit_contestants_dialog.h"
#include "setup/setup_classes_dialog.h"
#include "setup/setup_contest_dialog.h"
#include "setup/setup_ids.h"
#include "setup/setup_teams_dialog.h"
#include "storage/contest_writer.h"
#include "tests/reasons/reasons_contest.h"
#include "tests/ui/memory_dialog.h"
#include "tests/ui/session.h"

namespace scorvane {

namespace {

Contest number99() {
  ContestBuilder builder;
  builder.contest.settings.startNum = builder.contest.settings.nextContestantNum = 99;
  return builder.team("Elm", "", {"Ann - Lee", "Ben", ""}).contest;
}

Contest twoClasses() {
  return ContestBuilder()
      .categories({"Beef", "Sheep"})
      .addClass({.name = "Steers", .reasons = true, .official = 'B', .cuts = {1, 2, 3}})
      .addClass({.name = "Ewes", .questions = true, .official = 'C', .category = 1})
      .contest;
}

// Teams have room for four regular members and an alternate; four groups.
ContestBuilder roomForFive() {
  ContestBuilder builder;
  builder.members(4, 5, 3).addClass({}).contest.settings.numGroups = 4;
  return builder;
}

Contest twoTeams() {
  return roomForFive()
      .team("Elm", "Mr. Oak", {"Ann", "Ben - B", "Cy", "Dee", "Eve"})
      .team("ash", "", {"Fay", "Gus", "", "", ""})
      .contest;
}

const SessionWorld kSetup = {
    {{"Edit Contestants", [] { return std::make_unique<EditContestantsDialog>(); }},
     {"Reasons Order Edit", [] { return std::make_unique<ReasonsOrderEditDialog>(); }},
     {"Setup Classes", [] { return std::make_unique<SetupClassesDialog>(); }},
     {"Setup Contest", [] { return std::make_unique<SetupContestDialog>(); }},
     {"Setup Teams", [] { return std::make_unique<SetupTeamsDialog>(); }}},
    {{"a new contest", [] { return ContestBuilder().contest; }},
     {"number 99", number99},
     {"four takers", [] { return reasonsContest(2, 1, 4); }},
     {"seven takers", [] { return reasonsContest(2, 1, 7); }},
     {"two classes", twoClasses},
     {"room for five", [] { return roomForFive().contest; }},
     {"two teams", twoTeams}},
    {{"100 in group Q", [](Contest& c) { c.contestantGroup[100] = 'Q'; }},
     {"102 in group Q", [](Contest& c) { c.contestantGroup[102] = 'Q'; }},
     {"one and three in order",
      [](Contest& c) {
        placeGroup(c, 0, {101});
        placeGroup(c, 1, {102, 103, 104});
      }},
     {"gaps in the order",
      [](Contest& c) {
        placeGroup(c, 0, {kNobody, 101, kNobody, 102, 103});
        placeGroup(c, 1, {104});
      }},
     {"107 a reserved slot", [](Contest& c) { c.contestantNames[107] = ""; }},
     {"101 and 103 without their places",
      [](Contest& c) {
        placeGroup(c, 0, {103, 101, 102});
        c.contestantNames[101] = "";
        c.reasonsPlace[101] = c.reasonsPlace[103] = {};
      }},
     {"a full group",
      [](Contest& c) {
        c.reasonsOrder.reset(3, 2);
        placeGroup(c, 0, {101, 102, 103});
      }},
     {"103 in order", [](Contest& c) { placeGroup(c, 1, {103}); }},
     {"102 above 101 and 103",
      [](Contest& c) {
        placeGroup(c, 0, {102, kNobody, 101, 103});
      }},
     {"a second group with 107",
      [](Contest& c) {
        c.settings.numReasonsGroups = 2;
        c.reasonsOrder.reset(10, 2);
        placeGroup(c, 1, {101, 107, 103});
      }},
     {"report in percent", [](Contest& c) { c.settings.reportPercent = true; }},
     {"two categories",
      [](Contest& c) {
        c.categories = {"Beef", "Sheep"};
      }},
     {"room for three", [](Contest& c) { c.settings.totalNumPerTeam = 3; }},
     {"no categories", [](Contest& c) { c.categories.clear(); }},
     {"two classes again", [](Contest& c) { c.classes = twoClasses().classes; }},
     {"no classes", [](Contest& c) { c.classes.clear(); }},
     {"a class", [](Contest& c) { c.classes.className = {"Steers"}; }},
     {"a class without category", [](Contest& c) { c.classes.categoryIndex[0] = -1; }},
     {"questions with reasons", [](Contest& c) { c.classes.questionsFlag[0] = true; }},
     {"no scores", [](Contest& c) { c.scores.clear(); }},
     {"a score of 101", [](Contest& c) { c.scores[101][1].questionsScore = 1; }},
     {"a stale score of 101",
      [](Contest& c) {
        c.scores[101][0] = {'B', 11, 0, 0};
      }},
     {"a card of 102", [](Contest& c) { c.scores[102][0].letter = 'B'; }},
     {"a card of 103", [](Contest& c) { c.scores[103][0].letter = 'B'; }},
     {"a card of 105", [](Contest& c) { c.scores[105][0].letter = 'B'; }},
     {"a card of 109", [](Contest& c) { c.scores[109][0].letter = 'B'; }}}};

TEST(SetupContest, RefusesCategoriesThatCannotBeSaved) {
  std::vector<std::string>& categories = currentContest().categories = {kNoCategory};
  SetupContestDialog behaviour;
  MemoryDialog dialog(IDD_SETUP_CONTEST, behaviour);
  const auto type = [&](ControlId button, std::size_t length, bool isTaken) {
    const std::vector<std::string> before = categories;
    dialog.paste(IDC_CATEGORY_NAME, std::string(length, 'x'));
    dialog.click(button);
    for (const Message& told : dialog.desktop.messages) EXPECT_EQ(told.caption, "Information");
    EXPECT_EQ(dialog.desktop.takeMessage().starts_with("The names of the categories"), !isTaken);
    EXPECT_EQ(categories == before, !isTaken) << length;
    EXPECT_EQ(dialog.text(IDC_CATEGORY_NAME).size(), isTaken ? 0 : length);
    EXPECT_EQ(dialog.focused(), IDC_CATEGORY_NAME);
    EXPECT_EQ(dialog.lines(IDC_CATEGORY_LIST).size(), categories.size());
  };
  type(IDC_ADD_CATEGORY, 486, false);  // "none" stays
  type(IDC_ADD_CATEGORY, 300, true);
  type(IDC_ADD_CATEGORY, 185, false);
  type(IDC_ADD_CATEGORY, 184, true);
  dialog.choose(IDC_CATEGORY_LIST, 1);
  type(IDC_UPDATE_CATEGORY, 185, false);
  categories[0].append(50, 'x');  // too long already, from elsewhere
  type(IDC_UPDATE_CATEGORY, 183, true);
  EXPECT_EQ(cutTexts(currentContest()).size(), 1);
}

const bool kPlaysSetup = playSessions("setup", kSetup);

}  // namespace

}  // namespace scorvane
