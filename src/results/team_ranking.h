// Ranking of teams.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "results/tie_breakers.h"

namespace scorvane {

struct TeamRankEntry {
  std::map<std::string, Team>::const_iterator team;  ///< into the contest that was ranked
  RankValues values;                                 ///< summed over the members that count
};

/// The sums of a number among `totals`, which contestantTotals() made of the same contest; zeros
/// for a number without scores.
[[nodiscard]] RankValues totalsOf(const Contest& contest,
                                  const std::vector<IndividualRankEntry>& totals,
                                  ContestantNumber number);

/// All teams, best first. A team's values are the sums over the numToScore best of its regular
/// members, the very same members for the score and for the values that break ties. A slot whose
/// contestant has no name counts as a member with zeros.
[[nodiscard]] std::vector<TeamRankEntry> rankTeams(const Contest& contest,
                                                   const std::vector<IndividualRankEntry>& totals,
                                                   TieOrder order);

}  // namespace scorvane
