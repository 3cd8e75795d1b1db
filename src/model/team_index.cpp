#include "model/team_index.h"

namespace scorvane {

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
  static const std::string none;
  const std::string* team = find(number);
  return team == nullptr ? none : *team;
}

const std::string* TeamIndex::find(ContestantNumber number) const {
  const std::size_t position = contest_.contestantNames.positionOf(number);
  return position == teams_.size() ? nullptr : teams_[position];
}

}  // namespace scorvane
