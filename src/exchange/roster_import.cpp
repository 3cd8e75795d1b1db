#include <algorithm>

#include "exchange/roster_plan.h"
#include "model/numbering.h"
#include "model/roster.h"
#include "text/format.h"

namespace scorvane {

namespace {

// Members are added to a new team one by one; whoever is behind an empty slot, such as an alternate
// of a small team, is put into the slot when the team is there.
void importNewTeam(Contest& contest, const PlannedTeam& planned) {
  std::vector<const PlannedMember*> bySlot(planned.numbers.size());
  for (const PlannedMember& member : planned.members) bySlot[member.slot] = &member;
  const auto gap = std::find(bySlot.begin(), bySlot.end(), nullptr);
  std::vector<ContestantNumber> named;
  for (auto member = bySlot.begin(); member != gap; ++member) {
    addContestant(contest, (*member)->number, (*member)->name);
    named.push_back((*member)->number);
  }
  addTeam(contest, planned.name, {planned.coach, fillTeamSlots(contest, named)});
  for (auto member = gap; member != bySlot.end(); ++member) {
    if (*member != nullptr) setContestant(contest, (*member)->number, (*member)->name);
  }
}

void completeTeam(Contest& contest, const PlannedTeam& planned) {
  Team team = contest.teams.at(planned.name);
  const bool getsMembers = std::any_of(planned.members.begin(), planned.members.end(),
                                       [](const PlannedMember& member) { return member.isNew; });
  if (!getsMembers && !planned.isCoachNew) return;
  if (planned.isCoachNew) team.coach = planned.coach;
  const std::vector<ContestantNumber> before = team.members;
  for (std::size_t slot = 0; slot < planned.numbers.size() && getsMembers; ++slot) {
    const ContestantNumber number = planned.numbers[slot];
    if (slot < before.size() && before[slot] == number) continue;
    // A slot that the team did not have, as the teams were made larger since.
    team.members.resize(std::max(team.members.size(), slot + 1));
    team.members[slot] = number;
    contest.contestantNames[number] = "";
    contest.reasonsPlace[number] = {};
  }
  replaceTeam(contest, planned.name, planned.name, std::move(team));
  for (const PlannedMember& member : planned.members) {
    if (member.isNew) setContestant(contest, member.number, member.name);
  }
}

void appendMembers(std::string& line, const Contest& contest, const PlannedTeam& team, bool isNew) {
  const char* before = isNew ? "  " : "  already there: ";
  for (const PlannedMember& member : team.members) {
    if (member.isNew != isNew) continue;
    const bool isAlternate = static_cast<std::int64_t>(member.slot) >= contest.settings.numPerTeam;
    appendFormat(line, "%s%d%c %s%s", before, member.number,
                 groupOfNumber(contest.settings, member.number), member.name.c_str(),
                 isAlternate ? " (alternate)" : "");
    before = ", ";
  }
}

std::string teamLine(const PlannedTeam& team, const Contest& contest) {
  std::string line = team.name;
  if (!team.isNew) line += " (already there)";
  if (!team.coach.empty()) {
    appendFormat(line, ", %s %s", team.isCoachNew ? "new coach" : "coach", team.coach.c_str());
  }
  line += ':';
  appendMembers(line, contest, team, true);
  appendMembers(line, contest, team, false);
  if (team.members.empty()) line += "  no members";
  return line;
}

void appendCount(std::string& text, std::size_t count, const char* what) {
  appendFormat(text, "%s%zu %s%s", text.empty() ? "" : ", ", count, what, count == 1 ? "" : "s");
}

}  // namespace

void importRoster(Contest& contest, const RosterPlan& plan) {
  if (plan.changesNothing) return;
  std::size_t all = contest.contestantNames.size();
  for (const PlannedTeam& team : plan.teams) all += team.isNew ? team.numbers.size() : 0;
  contest.contestantNames.reserve(all);
  contest.contestantGroup.reserve(all);
  contest.reasonsPlace.reserve(all);
  contest.scores.reserve(all);
  for (const PlannedTeam& team : plan.teams) {
    if (team.isNew) {
      importNewTeam(contest, team);
    } else {
      completeTeam(contest, team);
    }
  }
  updateNextContestant(contest);
  recomputeAllPlacingScores(contest);
}

std::vector<std::string> planLines(const RosterPlan& plan, const Contest& contest) {
  std::vector<std::string> lines;
  lines.reserve(plan.problems.size() + plan.teams.size() + plan.remarks.size());
  for (const SheetNote& note : plan.problems) {
    lines.push_back(formatText("Problem in line %d: ", note.line) + note.text);
  }
  for (const PlannedTeam& team : plan.teams) lines.push_back(teamLine(team, contest));
  for (const SheetNote& note : plan.remarks) {
    lines.push_back(formatText("Remark on line %d: ", note.line) + note.text);
  }
  return lines;
}

std::string planSummary(const RosterPlan& plan) {
  std::string text;
  appendCount(text, plan.teams.size(), "team");
  appendCount(text, plan.contestants, "contestant");
  appendCount(text, plan.alternates, "alternate");
  if (!plan.problems.empty()) {
    std::string problems;
    appendCount(problems, plan.problems.size(), "problem");
    text += "; " + problems;
  } else if (plan.changesNothing && !plan.teams.empty()) {
    text += "; all there already";
  }
  return text;
}

}  // namespace scorvane
