// The entered scores, to be checked against the cards: grids of contestants by classes.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// Every named contestant's stored letter for every class, in a block for each group. Contestants
/// whose group letter is none of the contest's (numbers below startNum) are in no block.
[[nodiscard]] std::string verifyScoresReport(const Contest& contest);

/// Each team's placings with the official placings and cuts above them.
[[nodiscard]] std::string verifyPlacingsReport(const Contest& contest);

/// Each team's reasons scores. A member's total adds the reasons scores of all classes.
/// Odd but required, docs/required-behaviour.md: reasons-total-of-all-classes
[[nodiscard]] std::string reasonsByTeamReport(const Contest& contest);

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
