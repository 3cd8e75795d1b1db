// Which members of a team count, and the ranking of teams.
#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "results/individual_ranking.h"

namespace scorvane {

/// Slots of regular members that a team really has: numPerTeam of them, but no more than it has
/// members, and none when numPerTeam is below 0. Later slots hold alternates, who never count.
[[nodiscard]] std::size_t regularSlots(const ContestSettings& settings, const Team& team);

/// Chooses the members whose scores make up a team's total: the numToScore best.
///
/// `scores` holds the score of each regular slot; slots below numPerTeam that the team does not
/// have count as members with 0. `counting` becomes the slots that count, best first. With
/// numToScore below 1, or above numPerTeam, nobody counts and every total is 0
/// (odd but required, docs/required-behaviour.md: too-many-to-score). Among equal scores the one
/// that the exchanges of the sort leave first counts first.
void chooseCountingSlots(const ContestSettings& settings, std::span<const std::int32_t> scores,
                         std::vector<std::size_t>& counting);

struct TeamRankEntry {
  std::map<std::string, Team>::const_iterator team;  ///< into the contest that was ranked
  RankValues values;                                 ///< summed over the members that count
};

/// The sums of a number among `totals`, which contestantTotals() made of the same contest; zeros
/// for a number without scores.
[[nodiscard]] RankValues totalsOf(const Contest& contest,
                                  const std::vector<IndividualRankEntry>& totals,
                                  ContestantNumber number);

/// The slots whose members make up a team's total by `totals`, best first.
[[nodiscard]] std::vector<std::size_t> countingSlots(const Contest& contest,
                                                     const std::vector<IndividualRankEntry>& totals,
                                                     const Team& team);

/// All teams, best first. A team's values are the sums over the numToScore best of its regular
/// members, the very same members for the score and for the values that break ties. A slot whose
/// contestant has no name counts as a member with zeros.
[[nodiscard]] std::vector<TeamRankEntry> rankTeams(const Contest& contest,
                                                   const std::vector<IndividualRankEntry>& totals,
                                                   TieOrder order);

}  // namespace scorvane
