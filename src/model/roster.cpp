#include "model/roster.h"

#include <cstddef>
#include <utility>

#include "model/numbering.h"
#include "model/reasons_places.h"
#include "text/format.h"

namespace scorvane {

namespace {

// Beyond the greatest number the count wraps, as contestant numbers do everywhere.
ContestantNumber after(ContestantNumber number, std::uint32_t step) {
  return static_cast<ContestantNumber>(static_cast<std::uint32_t>(number) + step);
}

// Scores of a contestant who had the number before stay when a team is removed.
void startWithBlankRecords(Contest& contest, ContestantNumber number) {
  std::vector<ClassScores::Entry> records(static_cast<std::size_t>(contest.classes.count()));
  for (std::size_t k = 0; k < records.size(); ++k) records[k].first = static_cast<std::int32_t>(k);
  contest.scores[number] = ClassScores::fromEntries(std::move(records));
}

}  // namespace

void setContestant(Contest& contest, ContestantNumber number, const std::string& name,
                   std::optional<char> group) {
  contest.contestantNames[number] = name;
  contest.contestantGroup[number] = group.value_or(groupOfNumber(contest.settings, number));
}

void addContestant(Contest& contest, ContestantNumber number, const std::string& name,
                   std::optional<char> group) {
  setContestant(contest, number, name, group);
  startWithBlankRecords(contest, number);
}

void vacateNumber(Contest& contest, ContestantNumber number) {
  contest.contestantNames[number] = "";
  leaveReasonsOrder(contest, number);
}

void removeContestant(Contest& contest, ContestantNumber number) {
  leaveReasonsOrder(contest, number);
  discardContestants(contest, {number});
}

void discardContestants(Contest& contest, const std::vector<ContestantNumber>& numbers) {
  for (const ContestantNumber number : numbers) {
    contest.contestantNames.erase(number);
    contest.contestantGroup.erase(number);
  }
}

std::string memberLine(const Contest& contest, ContestantNumber number, std::int32_t slot) {
  std::string line = formatText("%d - %s   %c", number, contestantName(contest, number).c_str(),
                                groupOfContestant(contest, number));
  if (slot >= contest.settings.numPerTeam) line += " (alternate)";
  return line;
}

std::vector<ContestantNumber> fillTeamSlots(Contest& contest,
                                            const std::vector<ContestantNumber>& named) {
  updateNextContestant(contest);
  std::vector<ContestantNumber> members;
  members.reserve(teamSlots(contest.settings));
  ContestantNumber next = contest.settings.nextContestantNum;
  for (std::size_t slot = 0; slot < teamSlots(contest.settings); ++slot) {
    const bool isNamed = slot < named.size();
    const ContestantNumber number = isNamed ? named[slot] : next;
    if (!isNamed) {
      contest.contestantNames[number] = "";
      startWithBlankRecords(contest, number);
    }
    members.push_back(number);
    next = after(number, 1);
  }
  return members;
}

void addTeam(Contest& contest, const std::string& name, Team team) {
  for (const ContestantNumber number : team.members) contest.reasonsPlace[number] = {};
  contest.teams[name] = std::move(team);
  contest.reasonsOrder.growTo(reasonsRows(contest), contest.settings.numReasonsGroups);
}

void replaceTeam(Contest& contest, const std::string& oldName, const std::string& newName,
                 Team team) {
  if (newName != oldName) contest.teams.erase(oldName);
  contest.teams[newName] = std::move(team);
}

void removeTeam(Contest& contest, const std::string& name) {
  const auto found = contest.teams.find(name);
  if (found == contest.teams.end()) return;
  bool leftTheOrder = false;
  for (const ContestantNumber number : found->second.members) {
    ReasonsPlace* place = contest.reasonsPlace.find(number);
    if (place != nullptr && place->isAssigned()) {
      contest.reasonsOrder.setCell(place->position, place->group, kNobody);
      *place = ReasonsPlace{};
      leftTheOrder = true;
    }
    contest.contestantNames.erase(number);
  }
  if (leftTheOrder) compactReasonsOrder(contest);
  contest.teams.erase(found);
}

void removeAllTeams(Contest& contest) {
  contest.teams.clear();
  contest.contestantNames.clear();
  contest.settings.nextContestantNum = contest.settings.startNum;
}

}  // namespace scorvane
