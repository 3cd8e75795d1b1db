// Whether the reasons order and the contestants' places tell the same story.
#pragma once

#include <string>

#include "model/contest.h"

/// Walks the reasons order and all places: a contestant stands in a cell exactly when the place
/// names that cell. Gives the first contradiction in words, "" when there is none.
///
/// Deleting a contestant who stands in the first row or the first group deliberately keeps the
/// cell while the place is given up; this says so like any other contradiction.
[[nodiscard]] std::string reasonsOrderFault(const Contest& contest);
