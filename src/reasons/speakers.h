// The contestants of the reasons order, as the editor and the report list them.
#pragma once

#include <string>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// "     101 - Ann Lee".
[[nodiscard]] std::string speakerLine(const Contest& contest, ContestantNumber number);

/// The lines of the named contestants without a place, in ascending number order.
[[nodiscard]] std::vector<std::string> unassignedSpeakers(const Contest& contest);

}  // namespace scorvane
