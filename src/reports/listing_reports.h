// The listings to check the set-up by before the contest: classes, officials, contestants, teams.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// Every class with its kind and category.
[[nodiscard]] std::string classesReport(const Contest& contest);

/// Every class with its kind, official placing and cuts, to be checked against the officials'
/// cards. A class whose official letter names no order shows the digits 0000.
[[nodiscard]] std::string officialPlacingsReport(const Contest& contest);

/// The named contestants by number with group and team. An alternate is told by the position among
/// the team's consecutive lines, not by the slot in the team.
[[nodiscard]] std::string contestantsReport(const Contest& contest);

/// The teams by name with their named members in slot order, and the coach.
[[nodiscard]] std::string teamReport(const Contest& contest);

}  // namespace scorvane
