// Who stands in a rotation group, and how much of the group's scores has been entered.
#pragma once

#include <cstdint>
#include <optional>

#include "model/contest.h"

namespace scorvane {

/// A member of a group has its letter and a name; numbers without a name are passed over.
/// The group's member with the lowest number; nothing when it has none.
[[nodiscard]] std::optional<ContestantNumber> firstMember(const Contest& contest, char group);

/// The group's member with the lowest number above `number`; nothing when there is none.
[[nodiscard]] std::optional<ContestantNumber> nextMember(const Contest& contest, char group,
                                                         ContestantNumber number);

/// One of the scores of a record.
using ScoreField = std::int32_t ScoreRecord::*;

/// How many contestants have a score.
struct EnteredCount {
  int entered = 0;  ///< score other than 0
  int missing = 0;  ///< score 0
  void add(std::int32_t score) { ++(score != 0 ? entered : missing); }
};

/// Counts a group's members by their score for a class (index from 0).
[[nodiscard]] EnteredCount countEntered(const Contest& contest, char group, std::int32_t classIndex,
                                        ScoreField score);

}  // namespace scorvane
