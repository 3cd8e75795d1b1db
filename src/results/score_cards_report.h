// Everybody's cards for the coaches, team by team.
//
//   Team:  Adams                                Coach:  Coach Hill
//
//            Placings    Reasons  Questions    Overall
//   Score         294         85          0        379   by the 3 best of each
//   Place         2nd        1st        1st        1st   of 12 teams
//
//    101 Ann Baker: 7th of 48, counts for the team
//    # Class             Offic. Cuts   Placed PLC RSN QUE Where the points went
//    1 Angus Heifers     A 1234 2-3-4  B 1243  46  41     4 over 3: -4
//      Beef                                    46  41     Total 87
//      All classes                             46  41     Total 87
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// Each team begins a page of its own; a card that does not fit goes to a further page of its team.
/// Contestants without a team come at the end. Lines stay within 80 characters.
[[nodiscard]] std::string scoreCardsReport(const Contest& contest);

}  // namespace scorvane
