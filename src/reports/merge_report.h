// What came of joining two files of a contest: lists to be gone through with the cards in hand.
#pragma once

#include <string>

#include "model/bring_in_scores.h"
#include "model/contest_merge.h"

namespace scorvane {

/// The values that differed, the scores by class, the removals that lost and the new numbers. "-"
/// where nothing was entered.
[[nodiscard]] std::string mergeReport(const Merge& merge);

/// The scores brought in, those that differ, and who and which classes were left out.
[[nodiscard]] std::string broughtScoresReport(const BroughtScores& brought);

}  // namespace scorvane
