// The reports that rest on the rotation of the groups through the classes.
#pragma once

#include <cstdint>
#include <string>

#include "model/contest.h"

namespace scorvane {

/// Which group judges which class in which round.
[[nodiscard]] std::string roundAssignmentsReport(const Contest& contest);

/// The contestant numbers in a column for each group. The columns follow the distance from
/// startNum alone, as the numbering does; stored group letters are not looked up.
[[nodiscard]] std::string groupAssignmentsReport(const Contest& contest);

/// The placing letter of every contestant for the class that the contestant's group judges in a
/// round (from 0). A group that judges no class in it shows its letters of the first class.
[[nodiscard]] std::string roundVerificationReport(const Contest& contest, std::int32_t round);

}  // namespace scorvane
