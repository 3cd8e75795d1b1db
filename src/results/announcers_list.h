// What the announcer reads on the stage.
//
//   Beef: individuals
//
//   Place  Contestant                     Team                            Score
//   -----  ------------------------------ ------------------------------ ------
//     2nd  Ann Baker                      Adams                             392
//     1st  Bob Archer                     Boone                             392
//          won on reasons in the category, 92 to 90
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// The awards from the last one to the overall champions, each list on a page of its own: for each
/// award the individuals, then the teams, as many as the contest reports of those who have
/// something entered for it. Lines stay within 80
/// characters. A damaged contest of far too many categories makes a report that only says so.
[[nodiscard]] std::string announcersList(const Contest& contest);

}  // namespace scorvane
