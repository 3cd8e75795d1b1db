// All placing letters, group by group.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// Every named contestant's stored letter for every class, in a block for each group. Contestants
/// whose group letter is none of the contest's (numbers below startNum) stand in no block.
[[nodiscard]] std::string verifyScoresReport(const Contest& contest);

}  // namespace scorvane
