// Whose cards are entered with a group, in which order, and how many have been entered already.
#pragma once

#include <cstdint>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// The contestants of a rotation group who have a name, in ascending number.
[[nodiscard]] std::vector<ContestantNumber> groupMembers(const Contest& contest, char group);

/// Everybody in a reasons group (from 0), in speaking order.
[[nodiscard]] std::vector<ContestantNumber> groupSpeakers(const Contest& contest,
                                                          std::int32_t reasonsGroup);

/// The speakers whose cards are entered: down the column of the reasons order to its first hole.
/// A hole in the first row is passed over.
[[nodiscard]] std::vector<ContestantNumber> speakersUpToHole(const ReasonsOrder& order,
                                                             std::int32_t reasonsGroup);

/// One of the scores of a record.
using ScoreField = std::int32_t ScoreRecord::*;

/// How many contestants have a score.
struct EnteredCount {
  int entered = 0;  ///< score other than 0
  int missing = 0;  ///< score 0
};

/// Counts those of some contestants who have a name by their score for a class (index from 0).
[[nodiscard]] EnteredCount countEntered(const Contest& contest,
                                        const std::vector<ContestantNumber>& contestants,
                                        std::int32_t classIndex, ScoreField score);

}  // namespace scorvane
