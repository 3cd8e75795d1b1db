// What a new, empty contest looks like.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// Today's local date as "March 05, 2024" ("%B %d, %Y").
[[nodiscard]] std::string todaysDate();

/// A contest with the defaults of a new one, dated today. It has no group letters yet: those are
/// made when a contest is loaded or set up, and when the program starts.
[[nodiscard]] Contest newContest();

}  // namespace scorvane
