// How the field saw each class.
//
//    1. Market Steers
//       Official D 1342   Cuts 4-5-1
//       44 cards, average 39.2, highest 50, lowest 18, 6 perfect
//
//       Placing  Cards  Score    Placing  Cards  Score    Placing  Cards  Score
//       D 1342       6     50    C 1324       5     45    A 1234       4     41
//
//       1 over 3: 31 of 44       3 over 4: 28 of 44       4 over 2: 20 of 44
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// Per class what was placed and how it scored; a line names an official placing that may have been
/// meant when most cards would score higher under it. Classes are kept together on pages. Lines
/// stay within 80 characters.
[[nodiscard]] std::string classAnalysisReport(const Contest& contest);

}  // namespace scorvane
