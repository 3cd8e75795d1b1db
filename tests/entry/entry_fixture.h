// A contest in the middle of score entry, for the tests of the entry dialogs.
#pragma once

#include "tests/support/contest_builder.h"

/// Groups A (101, 105) and B (102, 106), with nobody behind 103 and 104, and C without anybody.
/// Of three classes the first and third have questions, the second and third reasons. Reasons
/// groups: 105, 101, a hole, 102; a hole, 106; two holes, 102.
inline Contest contestAtEntry() {
  ContestBuilder builder;
  builder.contest.settings.numGroups = 2;
  builder.contest.groupLetters = {'A', 'B', 'C'};
  builder.addClass({.name = "Steers", .questions = true, .official = 'A', .cuts = {2, 3, 4}});
  builder.addClass({.name = "Ewes", .reasons = true, .official = 'X', .cuts = {5, 5, 5}});
  builder.addClass({.name = "Gilts", .reasons = true, .questions = true, .official = ' '});
  builder.team("Avon", "", {"Ann", "Bob", "", "", "Eve", "Fay"});
  ReasonsOrder& order = builder.contest.reasonsOrder;
  order.reset(6, 3);
  order.setCells({{{0, 0}, 105}, {{0, 1}, 101}, {{0, 3}, 102}, {{1, 1}, 106}, {{2, 2}, 102}});
  return builder.contest;
}
