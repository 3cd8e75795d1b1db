// What was entered of what is expected, and what is missing.
//
//    # Class              Entered          A       B       C     All
//    1 Market Steers      placings     12/12   11/12   12/12   35/36
//    4 Angus Heifers      placings     12/12   12/12   12/12   36/36
//                         reasons      12/12    0/12   12/12   24/36
//
//   Missing:
//
//    1 Market Steers, placings: 1
//      B    106 Abby Rollins
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// Class by group, in bands of columns where the groups do not fit into 80 characters; then what is
/// missing, as numbers and names, and the contestants with nothing entered in any class, who are
/// not expected.
[[nodiscard]] std::string entryProgressReport(const Contest& contest);

}  // namespace scorvane
