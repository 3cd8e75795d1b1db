// The contestants of the reasons order, as the editor and the report list them.
#pragma once

#include <string>
#include <vector>

#include "model/contest.h"

/// "     101 - Ann Lee".
[[nodiscard]] std::string takerLine(const Contest& contest, ContestantNumber number);

/// The lines of the named contestants without a place, in ascending number order.
[[nodiscard]] std::vector<std::string> unassignedTakers(const Contest& contest);
