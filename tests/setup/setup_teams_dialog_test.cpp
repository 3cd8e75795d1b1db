#include "setup/setup_teams_dialog.h"

#include "setup/setup_teams_controls.h"
#include "tests/setup/reasons_contest.h"
#include "tests/setup/setup_dialog.h"

using namespace setup_teams;

namespace {

using Lines = std::vector<std::string>;
using Numbers = std::vector<ContestantNumber>;

struct TeamSetup : SetupDialog<SetupTeamsDialog> {
  explicit TeamSetup(Contest contest) : SetupDialog(kDialog, std::move(contest)) {}

  void addMember(const char* name) {
    dialog.fill(kContestantName, name);
    dialog.click(kAddMember);
  }
  void addTeam(const char* name, const std::vector<const char*>& members) {
    dialog.fill(kTeamName, name);
    for (const char* member : members) addMember(member);
    dialog.click(kAddTeam);
  }
  // Adding mode: nothing selected or listed, the next number shown.
  void expectReset(const char* number, const char* group) const {
    EXPECT_EQ(dialog.selection(kTeamList), std::nullopt);
    EXPECT_EQ(dialog.lineCount(kMemberList), 0);
    EXPECT_EQ(dialog.text(kTeamName) + dialog.text(kCoach) + dialog.text(kContestantName), "");
    EXPECT_EQ(dialog.text(kNumber), number);
    EXPECT_EQ(dialog.text(kGroup), group);
    EXPECT_EQ(dialog.defaultButton(), kAddMember);
  }
};

// Room for four regular members and an alternate; four groups.
ContestBuilder emptyContest() {
  ContestBuilder builder;
  builder.members(4, 5, 3).addClass({});
  builder.contest.settings.numGroups = 4;
  return builder;
}

Contest twoTeams() {
  return emptyContest()
      .team("Elm", "Mr. Oak", {"Ann", "Ben", "Cy", "Dee", "Eve"})
      .team("Ash", "", {"Fay", "Gus", "", "", ""})
      .contest;
}

TEST(SetupTeams, MembersGetTheNextNumbersUntilTheTeamIsFull) {
  TeamSetup setup(emptyContest().contest);
  setup.expectReset("101", "A");
  EXPECT_EQ(setup.dialog.focused(), kTeamName);
  setup.dialog.focus(kContestantName);
  for (const char* name : {"Ann", "Ben - B", "Cy", "Dee", "Eve"}) {
    setup.dialog.keys(name);
    setup.dialog.pressEnter();
  }
  EXPECT_EQ(setup.dialog.lines(kMemberList),
            (Lines{"101 - Ann   A", "102 - Ben - B   B", "103 - Cy   C", "104 - Dee   D",
                   "105 - Eve   A (alternate)"}));
  setup.dialog.keys("Fay");
  setup.dialog.pressEnter();
  EXPECT_EQ(setup.takeMessage(),
            "This team is full or you need to select a member position from the member list to "
            "update.|Warning");
  EXPECT_EQ(setup.dialog.text(kContestantName), "");
  EXPECT_EQ(setup.dialog.text(kNumber), "106");
  EXPECT_EQ(currentContest().contestantNames.size(), 5U);
  EXPECT_EQ(*currentContest().contestantGroup.find(105), 'A');
  EXPECT_EQ(currentContest().scores.find(105)->at(0).second, ScoreRecord{});
}

TEST(SetupTeams, ATeamReservesNumbersForItsEmptySlots) {
  TeamSetup setup(emptyContest().contest);
  setup.dialog.fill(kCoach, "Ms.\tBirch");
  setup.addTeam("Team A", {"Ann", "Ben"});
  setup.expectReset("106", "B");
  setup.addTeam("Aces", {});
  EXPECT_EQ(setup.dialog.lines(kTeamList), (Lines{"Aces", "Team A"}));
  const Contest& contest = currentContest();
  EXPECT_EQ(contest.teams.at("Team A"), (Team{"Ms. Birch", {101, 102, 103, 104, 105}}));
  EXPECT_EQ(contest.teams.at("Aces"), (Team{"", {106, 107, 108, 109, 110}}));
  EXPECT_TRUE(contest.contestantNames.contains(103));
  EXPECT_EQ(contestantName(contest, 103), "");
  EXPECT_EQ(*contest.reasonsPlace.find(110), ReasonsPlace{});
  EXPECT_EQ(contest.reasonsOrder.rowCount(), 10);
  // New Team after a written one discards nothing.
  setup.dialog.click(kNewTeam);
  EXPECT_EQ(contest.contestantNames.size(), 10U);
}

TEST(SetupTeams, MembersOfAnUnwrittenTeamLeaveAgain) {
  const auto leave = {+[](MemoryDialog& dialog) { dialog.click(kNewTeam); },
                      +[](MemoryDialog& dialog) { dialog.choose(kTeamList, 0); },
                      +[](MemoryDialog& dialog) { dialog.click(kDone); },
                      +[](MemoryDialog& dialog) { dialog.pressCloseBox(); }};
  for (const auto& way : leave) {
    Contest contest = twoTeams();
    contest.scores[101][0] = {'B', 11, 0, 0};
    TeamSetup setup(contest);
    setup.addMember("Hal");
    setup.addMember("Ida");
    EXPECT_EQ(setup.dialog.text(kNumber), "113");
    EXPECT_TRUE(currentContest().contestantNames.contains(112));
    setup.dialog.pressEscape();
    way(setup.dialog);
    EXPECT_EQ(currentContest().contestantNames, twoTeams().contestantNames);
    EXPECT_EQ(currentContest().contestantGroup, twoTeams().contestantGroup);
    EXPECT_EQ(setup.dialog.result().has_value(), setup.saved());
    EXPECT_EQ(scoreRecord(currentContest(), 101, 0).placingScore, setup.saved() ? 46 : 11);
  }
}

TEST(SetupTeams, AShownTeamIsUpdatedSlotBySlot) {
  TeamSetup setup(twoTeams());
  MemoryDialog& dialog = setup.dialog;
  dialog.choose(kTeamList, 0);
  EXPECT_EQ(dialog.text(kTeamName), "Ash");
  EXPECT_EQ(dialog.text(kNumber) + dialog.text(kGroup), "");
  EXPECT_EQ(dialog.focused(), kContestantName);
  EXPECT_EQ(dialog.line(kMemberList, 2), "108 -    D");
  dialog.choose(kMemberList, 2);
  EXPECT_EQ(dialog.text(kNumber) + dialog.text(kGroup), "108D");
  EXPECT_EQ(dialog.defaultButton(), kUpdateMember);
  dialog.keys("Hal");
  dialog.pressEnter();
  EXPECT_EQ(dialog.line(kMemberList, 2), "108 - Hal   D");
  EXPECT_EQ(dialog.selection(kMemberList), std::nullopt);
  EXPECT_EQ(dialog.line(kMemberList, 4), "110 -    B (alternate)");
  // What was changed in a written team stays without Update Team.
  dialog.choose(kTeamList, 1);
  EXPECT_EQ(dialog.text(kCoach), "Mr. Oak");
  EXPECT_EQ(contestantName(currentContest(), 108), "Hal");
  dialog.click(kNewTeam);
  setup.expectReset("111", "C");
  EXPECT_EQ(dialog.focused(), kTeamName);
  EXPECT_EQ(currentContest().teams, twoTeams().teams);
}

TEST(SetupTeams, UpdateTeamRenamesAndKeepsTheCoachOfAnEmptyField) {
  TeamSetup setup(twoTeams());
  MemoryDialog& dialog = setup.dialog;
  const auto rename = [&](int line, const char* name, const char* coach) {
    dialog.choose(kTeamList, line);
    dialog.fill(kTeamName, name);
    dialog.fill(kCoach, coach);
    dialog.click(kUpdateTeam);
    setup.expectReset("111", "C");
  };
  rename(1, "Yew", "");
  EXPECT_EQ(dialog.lines(kTeamList), (Lines{"Ash", "Yew"}));
  EXPECT_EQ(currentContest().teams.at("Yew"), twoTeams().teams.at("Elm"));
  rename(0, "Ash", "Ms. Ivy");
  EXPECT_EQ(currentContest().teams.at("Ash").coach, "Ms. Ivy");
  EXPECT_EQ(currentContest().teams.size(), 2U);
  // Another team's name is not refused; that team gives way.
  rename(0, "Yew", "");
  EXPECT_EQ(dialog.lines(kTeamList), Lines{"Yew"});
  EXPECT_EQ(currentContest().teams,
            (std::map<std::string, Team>{{"Yew", {"Ms. Ivy", {106, 107, 108, 109, 110}}}}));
}

TEST(SetupTeams, MemberButtonsRefuseWhatDoesNotFit) {
  TeamSetup setup(twoTeams());
  MemoryDialog& dialog = setup.dialog;
  EXPECT_EQ(setup.press(kUpdateMember),
            "A member cannot be updated unless they are selected from the list box.|Error.");
  EXPECT_EQ(setup.press(kDeleteMember),
            "A member cannot be deleted unless they are selected from the list box.|Error.");
  EXPECT_EQ(setup.press(kAddMember), "You didn't enter a contestant name!|Warning");
  dialog.choose(kTeamList, 1);
  dialog.choose(kMemberList, 0);
  EXPECT_EQ(setup.press(kAddMember), "Once a member is selected you can only update it.|Warning");
  EXPECT_EQ(dialog.focused(), kContestantName);
  EXPECT_EQ(dialog.defaultButton(), kUpdateMember);
  for (const auto& [group, message] : std::map<std::string, std::string>{
           {"AB", "Invalid, group must be a single letter!|Error"},
           {"@", "Invalid group letter, must be between A and Z!|Error"}}) {
    dialog.setText(kGroup, group);
    EXPECT_EQ(setup.press(kUpdateMember), message);
  }
  EXPECT_EQ(currentContest().contestantNames, twoTeams().contestantNames);
}

TEST(SetupTeams, TeamButtonsRefuseWhatDoesNotFit) {
  TeamSetup setup(twoTeams());
  MemoryDialog& dialog = setup.dialog;
  EXPECT_EQ(setup.press(kUpdateTeam),
            "A team cannot be updated unless it is selected from the list box.|Error.");
  EXPECT_EQ(setup.press(kRemoveTeam), "No Team selected to remove.|Warning");
  dialog.fill(kTeamName, "Elm");
  EXPECT_EQ(setup.press(kAddTeam), "That team name has already been used!|Warning");
  EXPECT_EQ(dialog.text(kTeamName), "Elm");
  setup.addMember("Hal");
  dialog.choose(kMemberList, 0);
  dialog.fill(kTeamName, "");
  EXPECT_EQ(setup.press(kAddTeam), "You didn't enter a team name!|Warning");
  EXPECT_EQ(dialog.focused(), kTeamName);
  EXPECT_EQ(dialog.text(kNumber), "112");
  // The number shown is a new member's now, so no old line may take it.
  EXPECT_EQ(dialog.selection(kMemberList), std::nullopt);
  dialog.choose(kTeamList, 0);
  EXPECT_EQ(setup.press(kAddTeam), "Once a team is selected you can only update it.|Error");
  EXPECT_EQ(currentContest().teams, twoTeams().teams);
}

TEST(SetupTeams, ADeletedMemberKeepsTheNumberAndAFirstCell) {
  Contest contest = reasonsContest(2, 1, 0);
  ContestBuilder builder;
  builder.contest = contest;
  builder.members(5, 5, 3).team("Elm", "", {"Ann", "Ben", "Cy", "Dee", "Eve"});
  builder.contest.reasonsOrder.reset(5, 2);
  placeGroup(builder.contest, 0, {101, 102});
  placeGroup(builder.contest, 1, {103, 104, 105});
  TeamSetup setup(builder.contest);
  setup.dialog.choose(kTeamList, 0);
  for (const int slot : {1, 2, 3}) {
    setup.dialog.choose(kMemberList, slot);
    setup.dialog.click(kDeleteMember);
    EXPECT_EQ(setup.dialog.defaultButton(), kAddMember);
  }
  EXPECT_EQ(setup.dialog.line(kMemberList, 1), "102 -    B");
  const Contest& after = currentContest();
  EXPECT_EQ(after.contestantNames.size(), 5U);
  EXPECT_EQ(contestantName(after, 104), "");
  for (const ContestantNumber number : {102, 103, 104}) {
    EXPECT_EQ(*after.reasonsPlace.find(number), ReasonsPlace{}) << number;
  }
  // 102 speaks to the first group and 103 first to the second; only 104's cell is closed up.
  EXPECT_EQ(after.reasonsOrder.cell(1, 0), 102);
  EXPECT_EQ(after.reasonsOrder.cell(0, 1), 103);
  EXPECT_EQ(after.reasonsOrder.cell(1, 1), 105);
  EXPECT_EQ(*after.reasonsPlace.find(105), (ReasonsPlace{1, 1}));
}

TEST(SetupTeams, ARemovedTeamLeavesItsGroupsAndScores) {
  Contest contest = reasonsContest(1, 1, 3);
  placeGroup(contest, 0, {102, 101, 103});
  contest.scores[102][0].letter = 'B';
  TeamSetup setup(contest);
  setup.dialog.choose(kTeamList, 1);
  setup.dialog.click(kRemoveTeam);
  setup.expectReset("104", "D");
  EXPECT_EQ(setup.dialog.lines(kTeamList), (Lines{"Team 101", "Team 103"}));
  const Contest& after = currentContest();
  EXPECT_EQ(after.teams.count("Team 102"), 0U);
  EXPECT_FALSE(after.contestantNames.contains(102));
  EXPECT_EQ(*after.reasonsPlace.find(102), ReasonsPlace{});
  EXPECT_EQ(after.reasonsOrder.cell(0, 0), 101);
  EXPECT_EQ(*after.reasonsPlace.find(103), (ReasonsPlace{0, 1}));
  EXPECT_EQ(after.contestantGroup, contest.contestantGroup);
  EXPECT_EQ(after.scores, contest.scores);
}

TEST(SetupTeams, ClearAllTeamsAsksFirst) {
  TeamSetup setup(twoTeams());
  setup.dialog.desktop.answers = {Answer::cancel, Answer::ok};
  setup.dialog.choose(kTeamList, 1);
  setup.dialog.click(kClearAllTeams);
  EXPECT_EQ(setup.dialog.desktop.messages.back().defaultAnswer, Answer::cancel);
  EXPECT_EQ(setup.takeMessage(), "This will delete all teams!  Continue?|Warning");
  EXPECT_EQ(setup.dialog.lineCount(kMemberList), 5);
  setup.dialog.click(kClearAllTeams);
  setup.expectReset("101", "A");
  EXPECT_TRUE(currentContest().teams.empty() && currentContest().contestantNames.empty());
  EXPECT_EQ(setup.dialog.lineCount(kTeamList), 0);
  EXPECT_EQ(currentContest().contestantGroup, twoTeams().contestantGroup);
}

}  // namespace
