// What a new, empty contest looks like.
#pragma once

#include <string>

#include "model/contest.h"

/// Today's local date as "March 05, 2024" ("%B %d, %Y").
[[nodiscard]] std::string todaysDate();

/// A contest with the defaults of a new one, dated today; it has no group letters yet, as those
/// are made when a contest is loaded or set up.
[[nodiscard]] Contest newContest();
