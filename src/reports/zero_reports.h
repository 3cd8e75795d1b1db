// The grids that list contestants with a score of zero, and all questions scores.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// The contestants with a placing score of 0 in some class, marked " | -@-" among their letters.
/// A class without a record counts as 0.
[[nodiscard]] std::string zeroScoresReport(const Contest& contest);

/// The contestants with a reasons (questions) score of 0 in some class that carries reasons
/// (questions). The rules are as long as if every class had a column.
[[nodiscard]] std::string zeroReasonsReport(const Contest& contest);
[[nodiscard]] std::string zeroQuestionsReport(const Contest& contest);

/// Every named contestant's questions scores, in the same columns.
[[nodiscard]] std::string verifyQuestionsScoresReport(const Contest& contest);

}  // namespace scorvane
