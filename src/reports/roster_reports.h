// The listings of contestants and teams, to check numbering and groups before the contest.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// The named contestants by number with group and team. An alternate is told by the place among
/// the team's consecutive lines, not by the slot in the team.
[[nodiscard]] std::string contestantsReport(const Contest& contest);

/// The teams by name with their named members in slot order, and the coach.
[[nodiscard]] std::string teamReport(const Contest& contest);

}  // namespace scorvane
