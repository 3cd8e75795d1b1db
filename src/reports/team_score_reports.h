// Entered scores team by team, to be checked against the cards.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// Each team's placings with the official placings and cuts above them.
[[nodiscard]] std::string verifyPlacingsReport(const Contest& contest);

/// Each team's reasons scores. A member's total deliberately adds the reasons scores of all
/// classes, also of those that carry none (any more).
[[nodiscard]] std::string reasonsByTeamReport(const Contest& contest);

}  // namespace scorvane
