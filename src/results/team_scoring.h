// Which members of a team count.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// Slots of regular members that a team really has: numPerTeam of them, but no more than it has
/// members, and none when numPerTeam is below 0. Later slots hold alternates, who never count.
[[nodiscard]] std::size_t regularSlots(const ContestSettings& settings, const Team& team);

/// Chooses the members whose scores make up a team's total: the numToScore best.
///
/// `scores` holds the score of each regular slot; slots below numPerTeam that the team does not
/// have count as members with 0. `counting` becomes the slots that count, best first. With
/// numToScore above numPerTeam, or below 1, nobody counts; every total is then 0, which is
/// deliberate. Among equal scores the one that the exchanges of the sort leave first counts first.
void chooseCountingSlots(const ContestSettings& settings, std::span<const std::int32_t> scores,
                         std::vector<std::size_t>& counting);

}  // namespace scorvane
