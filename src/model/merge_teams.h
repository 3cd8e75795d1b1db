// What a merge puts into the slots of the teams.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "model/merge_numbers.h"
#include "model/merge_values.h"

namespace scorvane {

/// What a team's slot holds: a person, or a number that is no contestant's.
struct TeamSlot {
  std::optional<std::size_t> person;  ///< position in SameRoster::people
  ContestantNumber number = 0;        ///< on the side that the slot is from
  /// The same person, or the same number that is nobody's.
  friend bool operator==(const TeamSlot& a, const TeamSlot& b) {
    return a.person == b.person && (a.person || a.number == b.number);
  }
};

/// A slot (from 0) of a team on a side that has it. A number that was there before and whose person
/// was removed still means that person.
[[nodiscard]] TeamSlot slotOn(const MergeState& state, Side side, std::size_t team,
                              std::size_t slot);

/// Merges the teams that stay; everybody has a number and a name. Numbers that new teams reserved
/// and nobody needs are taken back.
void mergeTeams(MergeState& state, MergedNumbers& numbers, const std::vector<bool>& staysTeam);

}  // namespace scorvane
