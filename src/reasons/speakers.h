// The contestants of the reasons order, as the editor and the report list them.
#pragma once

#include <string>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// "     101 - Ann Lee".
[[nodiscard]] std::string speakerLine(const Contest& contest, ContestantNumber number);

/// The named contestants without a reasons place, in ascending order.
[[nodiscard]] std::vector<ContestantNumber> unassignedSpeakers(const Contest& contest);

}  // namespace scorvane
