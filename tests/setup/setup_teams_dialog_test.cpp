#include "setup/setup_teams_dialog.h"

#include "model/numbering.h"
#include "setup/setup_teams_controls.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
#include "tests/setup/reasons_contest.h"
#include "tests/setup/setup_dialog.h"

using namespace setup_teams;

namespace {

struct TeamSetup : SetupDialog<SetupTeamsDialog, kDialog> {
  using SetupDialog::SetupDialog;

  void addMembers(const std::vector<const char*>& names) {
    for (const char* name : names) {
      fill(kContestantName, name);
      pressEnter();
    }
  }
  [[nodiscard]] std::string fields() const {
    return texts({kTeamName, kCoach, kNumber, kContestantName, kGroup});
  }
  // Adding mode: nothing selected or listed, the next number and group shown.
  [[nodiscard]] bool isReset(const std::string& number, const std::string& group) const {
    return fields() == "||" + number + "||" + group && !selection(kTeamList) &&
           lineCount(kMemberList) == 0 && defaultButton() == kAddMember;
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
      .team("Elm", "Mr. Oak", {"Ann", "Ben - B", "Cy", "Dee", "Eve"})
      .team("ash", "", {"Fay", "Gus", "", "", ""})
      .contest;
}

TEST(SetupTeams, TeamsAreTypedInAndGetNumbersForAllTheirSlots) {
  Contest contest = emptyContest().contest;
  contest.scores[105][0].letter = 'B';  // of a contestant removed long ago
  TeamSetup setup(contest);
  EXPECT_TRUE(setup.isReset("101", "A"));
  EXPECT_EQ(setup.focused(), kTeamName);
  setup.keys("Elm");
  setup.paste(kCoach, "Mr.\tOak");
  setup.addMembers({"Ann", "Ben - B", "Cy", "Dee", "Eve", "Fay"});
  EXPECT_EQ(setup.takeMessage(),
            "This team is full or you need to select a member position from the member list to "
            "update.|Warning");
  EXPECT_EQ(setup.lines(kMemberList), (Lines{"101 - Ann   A", "102 - Ben - B   B", "103 - Cy   C",
                                             "104 - Dee   D", "105 - Eve   A (alternate)"}));
  EXPECT_EQ(setup.fields(), "Elm|Mr.\tOak|106||B");
  setup.click(kAddTeam);
  EXPECT_TRUE(setup.isReset("106", "B"));
  setup.fill(kTeamName, "ash");
  setup.addMembers({"Fay", "Gus"});
  setup.click(kAddTeam);
  EXPECT_EQ(setup.lines(kTeamList), (Lines{"ash", "Elm"}));
  setup.click(kNewTeam);  // discards nothing of the team just written
  Contest expected = twoTeams();
  for (ContestantNumber n = 101; n <= 107; ++n) expected.scores[n][0] = {};
  for (ContestantNumber n = 108; n <= 110; ++n) expected.contestantGroup.erase(n);
  expected.reasonsOrder.reset(10, 1);
  EXPECT_EQ(currentContest(), expected);
}

TEST(SetupTeams, MembersOfAnUnwrittenTeamLeaveAgain) {
  for (const auto& leave : {+[](MemoryDialog& dialog) { dialog.click(kNewTeam); },
                            +[](MemoryDialog& dialog) { dialog.choose(kTeamList, 0); },
                            +[](MemoryDialog& dialog) { dialog.click(kDone); },
                            +[](MemoryDialog& dialog) { dialog.pressCloseBox(); }}) {
    Contest contest = twoTeams();
    contest.scores[101][0] = {'B', 11, 0, 0};
    TeamSetup setup(contest);
    for (const ControlId button : {kUpdateTeam, kNewTeam}) {
      setup.choose(kTeamList, 1);
      setup.click(button);
      setup.addMembers({"Hal", "Ida"});
      EXPECT_TRUE(currentContest().contestantNames.contains(112));
    }
    leave(setup);
    EXPECT_EQ(currentContest().contestantNames, contest.contestantNames);
    EXPECT_EQ(currentContest().contestantGroup, contest.contestantGroup);
    EXPECT_EQ(scoreRecord(currentContest(), 101, 0).placingScore, setup.isDone() ? 46 : 11);
  }
}

TEST(SetupTeams, AShownTeamIsChangedSlotBySlot) {
  Contest contest = twoTeams();
  contest.settings.numReasonsGroups = 2;
  contest.reasonsOrder.reset(10, 2);
  placeGroup(contest, 1, {101, 107, 103});
  TeamSetup setup(contest);
  setup.choose(kTeamList, 0);
  EXPECT_EQ(setup.fields(), "ash||||");
  EXPECT_EQ(setup.focusAndDefault(), FocusAndDefault(kContestantName, kAddMember));
  setup.choose(kMemberList, 1);
  setup.fill(kNumber, "999");
  setup.fill(kGroup, "Z");
  EXPECT_EQ(setup.fields(), "ash||107|Gus|C");
  setup.choose(kMemberList, 0);
  EXPECT_EQ(setup.focusAndDefault(), FocusAndDefault(kContestantName, kUpdateMember));
  setup.keys("Hal");
  setup.pressEnter();
  setup.choose(kMemberList, 1);
  setup.click(kDeleteMember);
  EXPECT_EQ(setup.focusAndDefault(), FocusAndDefault(kContestantName, kAddMember));
  EXPECT_EQ(setup.fields(), "ash||||");
  EXPECT_EQ(setup.lines(kMemberList), (Lines{"106 - Hal   B", "107 -    C", "108 -    D",
                                             "109 -    A", "110 -    B (alternate)"}));
  EXPECT_FALSE(setup.selection(kMemberList));
  // What was changed in a written team stays without Update Team.
  setup.choose(kTeamList, 1);
  EXPECT_EQ(setup.fields(), "Elm|Mr. Oak|||");
  setup.click(kNewTeam);
  EXPECT_TRUE(setup.isReset("111", "C"));
  EXPECT_EQ(setup.focused(), kTeamName);
  contest.contestantNames[106] = "Hal";
  contest.contestantNames[107] = "";
  contest.reasonsPlace[107] = {};
  placeGroup(contest, 1, {101, 103, kNobody});
  EXPECT_EQ(currentContest(), contest);
}

TEST(SetupTeams, UpdateTeamRenamesAndKeepsTheCoachOfAnEmptyField) {
  TeamSetup setup(twoTeams());
  const auto rename = [&](int line, const char* name, const char* coach) {
    setup.choose(kTeamList, line);
    setup.fill(kTeamName, name);
    setup.fill(kCoach, coach);
    setup.click(kUpdateTeam);
    EXPECT_TRUE(setup.isReset("111", "C"));
    return setup.lines(kTeamList);
  };
  EXPECT_EQ(rename(1, "Yew", ""), (Lines{"ash", "Yew"}));
  EXPECT_EQ(currentContest().teams.at("Yew"), twoTeams().teams.at("Elm"));
  EXPECT_EQ(rename(0, "ash", "Ms. Ivy"), (Lines{"ash", "Yew"}));
  // Another team's name is not refused; that team gives way.
  EXPECT_EQ(rename(0, "Yew", ""), Lines{"Yew"});
  Contest expected = twoTeams();
  expected.teams = {{"Yew", {"Ms. Ivy", {106, 107, 108, 109, 110}}}};
  EXPECT_EQ(currentContest(), expected);
}

TEST(SetupTeams, ButtonsRefuseWhatDoesNotFit) {
  TeamSetup setup(twoTeams());
  EXPECT_EQ(setup.press(kUpdateMember),
            "A member cannot be updated unless they are selected from the list box.|Error.");
  EXPECT_EQ(setup.press(kDeleteMember),
            "A member cannot be deleted unless they are selected from the list box.|Error.");
  EXPECT_EQ(setup.press(kUpdateTeam),
            "A team cannot be updated unless it is selected from the list box.|Error.");
  EXPECT_EQ(setup.press(kRemoveTeam), "No Team selected to remove.|Warning");
  EXPECT_EQ(setup.press(kAddMember), "You didn't enter a contestant name!|Warning");
  setup.fill(kTeamName, "Elm");
  EXPECT_EQ(setup.press(kAddTeam), "That team name has already been used!|Warning");
  setup.addMembers({"Hal"});
  setup.choose(kMemberList, 0);
  setup.setDefaultButton(kAddMember);
  EXPECT_EQ(setup.press(kAddMember), "Once a member is selected you can only update it.|Warning");
  EXPECT_EQ(setup.focusAndDefault(), FocusAndDefault(kContestantName, kUpdateMember));
  setup.setText(kGroup, "AB");
  EXPECT_EQ(setup.press(kUpdateMember), "Invalid, group must be a single letter!|Error");
  setup.setText(kGroup, "@");
  EXPECT_EQ(setup.press(kUpdateMember), "Invalid group letter, must be between A and Z!|Error");
  EXPECT_EQ(setup.line(kMemberList, 0), "111 - Hal   C");
  setup.fill(kTeamName, "");
  setup.fill(kCoach, "Mr. Fir");
  EXPECT_EQ(setup.press(kAddTeam), "You didn't enter a team name!|Warning");
  // The number shown is a new member's now, so no old line may take it.
  EXPECT_EQ(setup.fields(), "||112||D");
  EXPECT_FALSE(setup.selection(kMemberList));
  EXPECT_EQ(setup.focusAndDefault(), FocusAndDefault(kTeamName, kAddMember));
  setup.choose(kTeamList, 0);
  EXPECT_EQ(setup.press(kAddTeam), "Once a team is selected you can only update it.|Error");
  EXPECT_EQ(currentContest().teams, twoTeams().teams);
}

TEST(SetupTeams, RemovedTeamsLeaveTheirGroupsAndScores) {
  Contest contest = reasonsContest(1, 1, 4);
  placeGroup(contest, 0, {102, kNobody, 101, 103});
  contest.scores[102][0].letter = 'B';
  TeamSetup setup(contest);
  const auto remove = [&](int line, ContestantNumber number) {
    setup.choose(kTeamList, line);
    setup.click(kRemoveTeam);
    EXPECT_TRUE(setup.isReset("104", "D"));
    contest.teams.erase("Team " + std::to_string(number));
    contest.contestantNames.erase(number);
    updateNextContestant(contest);
  };
  // A team without a place in the reasons order leaves it alone, gap included.
  remove(3, 104);
  EXPECT_EQ(currentContest(), contest);
  remove(1, 102);
  EXPECT_EQ(setup.lines(kTeamList), (Lines{"Team 101", "Team 103"}));
  contest.reasonsPlace[102] = {};
  placeGroup(contest, 0, {101, 103, kNobody, kNobody});
  EXPECT_EQ(currentContest(), contest);
  EXPECT_EQ(setup.press(kClearAllTeams, Answer::cancel),
            "This will delete all teams!  Continue?|Warning");
  EXPECT_EQ(currentContest(), contest);
  setup.press(kClearAllTeams, Answer::ok);
  EXPECT_TRUE(setup.isReset("101", "A"));
  EXPECT_EQ(setup.lineCount(kTeamList), 0);
  contest.teams.clear();
  contest.contestantNames.clear();
  updateNextContestant(contest);
  EXPECT_EQ(currentContest(), contest);
}

}  // namespace
