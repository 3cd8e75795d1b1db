// Everybody's scores class by class, with totals.
//
//   Total Summary Report
//
//   PLC = placings, RSN = reasons, QUE = questions.  alt = never in a team total.
//   Team Total = each column's 3 best regular members; it need not add up.
//
//   Class  Description                             Category
//   -----  --------------------------------------  ------------------------------
//       1  Angus Heifers                           Beef
//       2  Market Lambs                            Sheep
//
//        Team:  Adams                                   Coach:  Coach Hill
//                        Class |   1 |   2     | Beef      | Sheep
//                              | PLC | PLC RSN | PLC Total | PLC RSN Total
//   ------------------------------------------------------------------------
//     101 Ann Baker            |  50 |  44  41 |  50    50 |  44  41    85
//     105 Eve Frost        alt |  38 |  50  40 |  38    38 |  50  40    90
//         Team Total           |  ...
//
//                              | All Classes
//                              | PLC RSN QUE Overall
//   ------------------------------------------------
//     101 Ann Baker            |  94  41   0     135
//     ...
//
// A printed page repeats the first four lines. Teams come in name order, each with its own
// headings, so that every page and every screen can be read by itself, and is on one page if it can
// be. Lines stay within 80 characters: what does not fit goes to further bands of columns below,
// each with the names again.
// Behind the teams, contestants without a team are listed, and at the end come the average score
// and the percentages of contestants who reached 50, 45 and 40, for each score of each class. They
// count everybody listed.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// Every total is the one that the High Individual and High Team reports, or a custom report of a
/// category, rank by. A damaged contest of far too many lines makes a report that only says so.
[[nodiscard]] std::string totalSummaryReport(const Contest& contest);

}  // namespace scorvane
