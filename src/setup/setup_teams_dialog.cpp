#include "setup/setup_teams_dialog.h"

#include <utility>

#include "model/numbering.h"
#include "model/roster.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "setup/member_form.h"
#include "setup/setup_teams_controls.h"
#include "ui/field_text.h"

namespace scorvane {

using namespace setup_teams;

namespace {

void resetTeamForm(Dialog& dialog) {
  dialog.setText(kTeamName, "");
  dialog.setText(kCoach, "");
  showNextMember(dialog);
  dialog.focus(kTeamName);
}

// Team first, then member: the focus ends in the contestant's name.
void resetForms(Dialog& dialog) {
  resetTeamForm(dialog);
  resetMemberForm(dialog);
}

// Nothing of the old team must stay in the member list: what is listed there without a team being
// selected counts as not yet written, and would be taken out of the contest.
void showNoTeam(Dialog& dialog) {
  dialog.select(kTeamList, std::nullopt);
  dialog.clearLines(kMemberList);
  resetForms(dialog);
}

// The name typed for a team; nothing, after saying so, when there is none.
std::optional<std::string> readTeamName(Dialog& dialog) {
  std::string name = fieldText(dialog, kTeamName);
  if (!name.empty()) return name;
  resetTeamForm(dialog);
  dialog.show("You didn't enter a team name!", "Warning");
  return std::nullopt;
}

}  // namespace

void SetupTeamsDialog::onOpen(Dialog& dialog) {
  teamWritten_ = false;
  std::vector<ListLine> lines;
  for (const auto& [name, team] : currentContest().teams) lines.push_back({name, name});
  dialog.setLines(kTeamList, lines);
  showNoTeam(dialog);
  dialog.focus(kTeamName);
}

void SetupTeamsDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  onMemberEvent(dialog, id, event);
  if (id == kTeamList && event == ControlEvent::selectionChanged) showTeam(dialog);
  if (event == ControlEvent::clicked) onClicked(dialog, id);
}

void SetupTeamsDialog::onClose(Dialog& dialog) {
  finish(dialog);
}

void SetupTeamsDialog::onClicked(Dialog& dialog, ControlId id) {
  if (id == kNewTeam) startNewTeam(dialog);
  if (id == kAddTeam) addNewTeam(dialog);
  if (id == kUpdateTeam) updateTeam(dialog);
  if (id == kRemoveTeam) removeSelectedTeam(dialog);
  if (id == kClearAllTeams) clearAllTeams(dialog);
  if (id == kDone) finish(dialog);
}

void SetupTeamsDialog::startNewTeam(Dialog& dialog) {
  if (!dialog.selection(kTeamList)) discardContestants(currentContest(), membersShown(dialog));
  showNoTeam(dialog);
  dialog.focus(kTeamName);
  teamWritten_ = false;
}

void SetupTeamsDialog::showTeam(Dialog& dialog) {
  Contest& contest = currentContest();
  if (!teamWritten_) discardContestants(contest, membersShown(dialog));
  dialog.clearLines(kMemberList);
  resetForms(dialog);
  teamWritten_ = true;
  const auto name = dialog.selectedText(kTeamList);
  const auto team = name ? contest.teams.find(*name) : contest.teams.end();
  if (team == contest.teams.end()) return;
  dialog.setText(kTeamName, team->first);
  dialog.setText(kCoach, team->second.coach);
  showMembers(dialog, team->second.members);
}

void SetupTeamsDialog::addNewTeam(Dialog& dialog) {
  Contest& contest = currentContest();
  if (dialog.selection(kTeamList)) {
    dialog.show("Once a team is selected you can only update it.", "Error");
    return;
  }
  const auto name = readTeamName(dialog);
  if (!name) return;
  if (contest.teams.count(*name) != 0) {
    dialog.show("That team name has already been used!", "Warning");
    return;
  }
  Team team;
  team.coach = fieldText(dialog, kCoach);
  team.members = fillTeamSlots(contest, membersShown(dialog));
  addTeam(contest, *name, std::move(team));
  dialog.addLine(kTeamList, {*name, *name});
  showNoTeam(dialog);
  teamWritten_ = false;
}

void SetupTeamsDialog::updateTeam(Dialog& dialog) {
  Contest& contest = currentContest();
  const auto oldName = dialog.selectedText(kTeamList);
  if (!oldName) {
    // Deliberate: this caption ends with a full stop, as two of the member's do.
    dialog.show("A team cannot be updated unless it is selected from the list box.", "Error.");
    return;
  }
  const auto name = readTeamName(dialog);
  if (!name) return;
  Team team = contest.teams[*oldName];
  const std::string coach = fieldText(dialog, kCoach);
  if (!coach.empty()) team.coach = coach;  // an empty field keeps the coach
  team.members = fillTeamSlots(contest, membersShown(dialog));
  // Deliberate: a name that another team has is not refused here; that team is replaced.
  const bool isListed = contest.teams.count(*name) != 0;
  replaceTeam(contest, *oldName, *name, std::move(team));
  if (*name != *oldName) {
    dialog.removeLine(kTeamList, *dialog.selection(kTeamList));
    if (!isListed) dialog.addLine(kTeamList, {*name, *name});
  }
  showNoTeam(dialog);
  teamWritten_ = false;
}

void SetupTeamsDialog::removeSelectedTeam(Dialog& dialog) {
  const auto name = dialog.selectedText(kTeamList);
  if (!name) {
    dialog.show("No Team selected to remove.", "Warning");
    return;
  }
  removeTeam(currentContest(), *name);
  dialog.removeLine(kTeamList, *dialog.selection(kTeamList));
  showNoTeam(dialog);
  teamWritten_ = false;
}

void SetupTeamsDialog::clearAllTeams(Dialog& dialog) {
  if (!dialog.confirm("This will delete all teams!  Continue?")) return;
  // Group letters, scores and the reasons order stay as they are. Deliberate.
  Contest& contest = currentContest();
  contest.teams.clear();
  contest.contestantNames.clear();
  contest.settings.nextContestantNum = contest.settings.startNum;
  dialog.clearLines(kTeamList);
  showNoTeam(dialog);
  teamWritten_ = false;
}

void SetupTeamsDialog::finish(Dialog& dialog) const {
  if (!teamWritten_) discardContestants(currentContest(), membersShown(dialog));
  recomputeAllPlacingScores(currentContest());
  saveCurrent(dialog);
  dialog.end(kOkId);
}

}  // namespace scorvane
