#include "model/team_index.h"

#include <algorithm>

namespace scorvane {

namespace {

const std::string kNoTeam;

}  // namespace

bool isMember(const Team& team, ContestantNumber number) {
  return std::find(team.members.begin(), team.members.end(), number) != team.members.end();
}

const std::string& teamOf(const Contest& contest, ContestantNumber number) {
  if (!contest.contestantNames.contains(number)) return kNoTeam;
  for (const auto& [name, team] : contest.teams) {
    if (isMember(team, number)) return name;
  }
  return kNoTeam;
}

TeamIndex::TeamIndex(const Contest& contest)
    : contest_(contest), teams_(contest.contestantNames.size()) {
  for (const auto& [name, team] : contest.teams) {
    for (const ContestantNumber number : team.members) {
      const std::size_t position = contest.contestantNames.positionOf(number);
      if (position == teams_.size()) continue;
      if (teams_[position] == nullptr) teams_[position] = &name;
    }
  }
}

const std::string& TeamIndex::teamOf(ContestantNumber number) const {
  const std::string* team = find(number);
  return team == nullptr ? kNoTeam : *team;
}

const std::string* TeamIndex::find(ContestantNumber number) const {
  const std::size_t position = contest_.contestantNames.positionOf(number);
  return position == teams_.size() ? nullptr : teams_[position];
}

}  // namespace scorvane
