#include "setup/setup_teams_dialog.h"

#include "setup/setup_teams_controls.h"
#include "tests/setup/reasons_contest.h"
#include "tests/support/approved.h"
#include "tests/ui/recorded_dialog.h"

using namespace setup_teams;

namespace {

struct TeamSetup : Session<made<SetupTeamsDialog>, kDialog> {
  using Session::Session;

  void addMembers(const std::vector<const char*>& names) {
    for (const char* name : names) {
      fill(kContestantName, name);
      pressEnter();
    }
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
  setup.keys("Elm");
  setup.paste(kCoach, "Mr.\tOak");
  setup.addMembers({"Ann", "Ben - B", "Cy", "Dee", "Eve", "Fay"});
  setup.click(kAddTeam);
  setup.fill(kTeamName, "ash");
  setup.addMembers({"Fay", "Gus"});
  setup.click(kAddTeam);
  setup.click(kNewTeam);  // discards nothing of the team just written
  expectApproved(setup.session(), "setup/teams_typed.txt");
}

TEST(SetupTeams, MembersOfAnUnwrittenTeamLeaveAgain) {
  Contest contest = twoTeams();
  contest.scores[101][0] = {'B', 11, 0, 0};
  std::string sessions;
  using Leave = void (*)(TeamSetup&);
  for (const auto& [button, leave] :
       {std::pair<ControlId, Leave>{kNewTeam, [](TeamSetup& setup) { setup.click(kNewTeam); }},
        {kUpdateTeam, [](TeamSetup& setup) { setup.choose(kTeamList, 0); }},
        {kNewTeam, [](TeamSetup& setup) { setup.click(kDone); }},
        {kUpdateTeam, [](TeamSetup& setup) { setup.pressCloseBox(); }}}) {
    TeamSetup setup(contest);
    setup.choose(kTeamList, 1);
    setup.click(button);
    setup.addMembers({"Hal"});
    leave(setup);
    sessions += setup.session();
  }
  expectApproved(sessions, "setup/teams_unwritten.txt");
}

// What was changed in a written team stays without Update Team.
TEST(SetupTeams, AShownTeamIsChangedSlotBySlot) {
  Contest contest = twoTeams();
  contest.settings.numReasonsGroups = 2;
  contest.reasonsOrder.reset(10, 2);
  placeGroup(contest, 1, {101, 107, 103});
  TeamSetup setup(contest);
  setup.choose(kTeamList, 0);
  setup.choose(kMemberList, 1);
  setup.fill(kNumber, "999");
  setup.fill(kGroup, "Z");
  setup.choose(kMemberList, 0);
  setup.keys("Hal");
  setup.pressEnter();
  setup.choose(kMemberList, 1);
  setup.click(kDeleteMember);
  setup.choose(kTeamList, 1);
  setup.click(kNewTeam);
  expectApproved(setup.session(), "setup/team_changed.txt");
}

// An empty coach keeps the old one. Another team's name is not refused; that team gives way.
TEST(SetupTeams, UpdateTeamRenames) {
  TeamSetup setup(twoTeams());
  struct Case {
    int line;
    const char *name, *coach;
  };
  for (const auto& [line, name, coach] :
       {Case{1, "Yew", ""}, Case{0, "ash", "Ms. Ivy"}, Case{0, "Yew", ""}}) {
    setup.choose(kTeamList, line);
    setup.fill(kTeamName, name);
    setup.fill(kCoach, coach);
    setup.click(kUpdateTeam);
  }
  expectApproved(setup.session(), "setup/teams_renamed.txt");
}

TEST(SetupTeams, ButtonsRefuseWhatDoesNotFit) {
  TeamSetup setup(twoTeams());
  for (const ControlId button :
       {kUpdateMember, kDeleteMember, kUpdateTeam, kRemoveTeam, kAddMember}) {
    setup.click(button);
  }
  setup.fill(kTeamName, "Elm");
  setup.click(kAddTeam);
  setup.addMembers({"Hal"});
  setup.choose(kMemberList, 0);
  setup.setDefaultButton(kAddMember);
  setup.click(kAddMember);
  for (const char* group : {"AB", "@"}) {
    setup.setText(kGroup, group);
    setup.click(kUpdateMember);
  }
  setup.fill(kTeamName, "");
  setup.fill(kCoach, "Mr. Fir");
  // The number shown is a new member's then, so no old line may take it.
  setup.click(kAddTeam);
  setup.choose(kTeamList, 0);
  setup.click(kAddTeam);
  expectApproved(setup.session(), "setup/teams_refused.txt");
}

// Groups and scores stay. A team without a place in the reasons order leaves it alone, gap
// included.
TEST(SetupTeams, TeamsAreRemovedOneByOneAndAllAtOnce) {
  Contest contest = reasonsContest(1, 1, 4);
  placeGroup(contest, 0, {102, kNobody, 101, 103});
  contest.scores[102][0].letter = 'B';
  TeamSetup setup(contest);
  for (const int line : {3, 1}) {
    setup.choose(kTeamList, line);
    setup.click(kRemoveTeam);
  }
  setup.desktop.answers = {Answer::cancel, Answer::ok};
  setup.click(kClearAllTeams);
  setup.click(kClearAllTeams);
  expectApproved(setup.session(), "setup/teams_removed.txt");
}

}  // namespace
