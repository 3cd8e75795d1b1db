#include "setup/setup_teams_dialog.h"

#include <utility>

#include "model/numbering.h"
#include "model/roster.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "setup/member_form.h"
#include "setup/setup_ids.h"
#include "ui/field_text.h"

namespace scorvane {

namespace {

void resetTeamForm(Dialog& dialog, Contest& contest) {
  dialog.setText(IDC_TEAM_NAME, "");
  dialog.setText(IDC_COACH, "");
  showNextMember(dialog, contest);
  dialog.focus(IDC_TEAM_NAME);
}

// Team first, then member: the focus ends in the contestant's name.
void resetForms(Dialog& dialog, Contest& contest) {
  resetTeamForm(dialog, contest);
  resetMemberForm(dialog, contest);
}

// The member list must be emptied: members listed without a team selected count as not yet written
// and would be taken out of the contest.
void showNoTeam(Dialog& dialog, Contest& contest) {
  dialog.select(IDC_TEAM_LIST, std::nullopt);
  dialog.clearLines(IDC_MEMBER_LIST);
  resetForms(dialog, contest);
}

// The name typed for a team; nothing, after saying so, when there is none.
std::optional<std::string> readTeamName(Dialog& dialog, Contest& contest) {
  std::string name = fieldText(dialog, IDC_TEAM_NAME);
  if (!name.empty()) return name;
  resetTeamForm(dialog, contest);
  dialog.show("You didn't enter a team name!", "Warning");
  return std::nullopt;
}

}  // namespace

void SetupTeamsDialog::onOpen(Dialog& dialog) {
  Contest& contest = currentContest();
  teamWritten_ = false;
  std::vector<ListLine> lines;
  for (const auto& [name, team] : contest.teams) lines.push_back({name, name});
  dialog.setLines(IDC_TEAM_LIST, lines);
  showNoTeam(dialog, contest);
  dialog.focus(IDC_TEAM_NAME);
}

void SetupTeamsDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  onMemberEvent(dialog, currentContest(), id, event);
  if (id == IDC_TEAM_LIST && event == ControlEvent::selectionChanged) showTeam(dialog);
  if (event == ControlEvent::clicked) onClicked(dialog, id);
}

void SetupTeamsDialog::onClose(Dialog& dialog) {
  finish(dialog);
}

void SetupTeamsDialog::onClicked(Dialog& dialog, ControlId id) {
  if (id == IDC_NEW_TEAM) startNewTeam(dialog);
  if (id == IDC_ADD_TEAM) addNewTeam(dialog);
  if (id == IDC_UPDATE_TEAM) updateTeam(dialog);
  if (id == IDC_REMOVE_TEAM) removeSelectedTeam(dialog);
  if (id == IDC_CLEAR_ALL_TEAMS) clearAllTeams(dialog);
  if (id == IDC_TEAMS_DONE) finish(dialog);
}

void SetupTeamsDialog::startNewTeam(Dialog& dialog) {
  Contest& contest = currentContest();
  if (!dialog.selection(IDC_TEAM_LIST)) discardContestants(contest, membersShown(dialog));
  showNoTeam(dialog, contest);
  dialog.focus(IDC_TEAM_NAME);
  teamWritten_ = false;
}

void SetupTeamsDialog::showTeam(Dialog& dialog) {
  Contest& contest = currentContest();
  if (!teamWritten_) discardContestants(contest, membersShown(dialog));
  dialog.clearLines(IDC_MEMBER_LIST);
  resetForms(dialog, contest);
  teamWritten_ = true;
  const auto name = dialog.selectedText(IDC_TEAM_LIST);
  const auto team = name ? contest.teams.find(*name) : contest.teams.end();
  if (team == contest.teams.end()) return;
  dialog.setText(IDC_TEAM_NAME, team->first);
  dialog.setText(IDC_COACH, team->second.coach);
  showMembers(dialog, contest, team->second.members);
}

void SetupTeamsDialog::addNewTeam(Dialog& dialog) {
  Contest& contest = currentContest();
  if (dialog.selection(IDC_TEAM_LIST)) {
    dialog.show("Once a team is selected you can only update it.", "Error");
    return;
  }
  const auto name = readTeamName(dialog, contest);
  if (!name) return;
  if (contest.teams.count(*name) != 0) {
    dialog.show("That team name has already been used!", "Warning");
    return;
  }
  Team team;
  team.coach = fieldText(dialog, IDC_COACH);
  team.members = fillTeamSlots(contest, membersShown(dialog));
  addTeam(contest, *name, std::move(team));
  dialog.addLine(IDC_TEAM_LIST, {*name, *name});
  showNoTeam(dialog, contest);
  teamWritten_ = false;
}

void SetupTeamsDialog::updateTeam(Dialog& dialog) {
  Contest& contest = currentContest();
  const auto oldName = dialog.selectedText(IDC_TEAM_LIST);
  if (!oldName) {
    // Odd but required, docs/required-behaviour.md: captions-with-a-full-stop
    dialog.show("A team cannot be updated unless it is selected from the list box.", "Error.");
    return;
  }
  const auto name = readTeamName(dialog, contest);
  if (!name) return;
  Team team = contest.teams[*oldName];
  const std::string coach = fieldText(dialog, IDC_COACH);
  if (!coach.empty()) team.coach = coach;  // an empty field keeps the coach
  team.members = fillTeamSlots(contest, membersShown(dialog));
  // Odd but required, docs/required-behaviour.md: update-team-takes-any-name
  const bool isListed = contest.teams.count(*name) != 0;
  replaceTeam(contest, *oldName, *name, std::move(team));
  if (*name != *oldName) {
    dialog.removeLine(IDC_TEAM_LIST, *dialog.selection(IDC_TEAM_LIST));
    if (!isListed) dialog.addLine(IDC_TEAM_LIST, {*name, *name});
  }
  showNoTeam(dialog, contest);
  teamWritten_ = false;
}

void SetupTeamsDialog::removeSelectedTeam(Dialog& dialog) {
  Contest& contest = currentContest();
  const auto name = dialog.selectedText(IDC_TEAM_LIST);
  if (!name) {
    dialog.show("No Team selected to remove.", "Warning");
    return;
  }
  removeTeam(contest, *name);
  dialog.removeLine(IDC_TEAM_LIST, *dialog.selection(IDC_TEAM_LIST));
  showNoTeam(dialog, contest);
  teamWritten_ = false;
}

void SetupTeamsDialog::clearAllTeams(Dialog& dialog) {
  if (!dialog.confirm("This will delete all teams!  Continue?")) return;
  Contest& contest = currentContest();
  removeAllTeams(contest);
  dialog.clearLines(IDC_TEAM_LIST);
  showNoTeam(dialog, contest);
  teamWritten_ = false;
}

void SetupTeamsDialog::finish(Dialog& dialog) const {
  Contest& contest = currentContest();
  if (!teamWritten_) discardContestants(contest, membersShown(dialog));
  recomputeAllPlacingScores(contest);
  saveCurrent(dialog);
  dialog.end(kOkId);
}

}  // namespace scorvane
