// Contests with a reasons order, for the tests of everything that reads or changes it, and whether
// the order and the contestants' places tell the same story.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/contest_builder.h"

namespace scorvane {

/// `groups` reasons groups, `reasonsClasses` classes with reasons behind one without, and teams of
/// one for 101, 102, ... named "Taker 101" and so on; an empty order with a row for each.
inline Contest reasonsContest(std::int32_t groups, int reasonsClasses, int contestants) {
  ContestBuilder builder;
  builder.contest.settings.numReasonsGroups = groups;
  builder.members(1, 1, 1).addClass({.name = "Market Lambs"});
  for (int i = 1; i <= reasonsClasses; ++i) {
    builder.addClass({.name = "Ewes " + std::to_string(i) + " in Milk", .reasons = true});
  }
  for (int number = 101; number < 101 + contestants; ++number) {
    const std::string name = std::to_string(number);
    builder.team("Team " + name, "", {"Taker " + name});
  }
  builder.contest.reasonsOrder.reset(contestants, groups);
  return builder.contest;
}

/// Puts speakers into one group, from its first row on.
inline void placeGroup(Contest& contest, std::int32_t group,
                       const std::vector<ContestantNumber>& speakers) {
  std::int32_t row = 0;
  for (const ContestantNumber number : speakers) {
    contest.reasonsOrder.setCell(row, group, number);
    if (number != kNobody) contest.reasonsPlace[number] = {group, row};
    ++row;
  }
}

/// A contestant is in a cell of a reasons group exactly when the place names that cell. Deleting
/// somebody in the first row or the first group breaks this.
inline bool orderAgreesWithPlaces(const Contest& contest) {
  const ReasonsOrder& order = contest.reasonsOrder;
  return std::all_of(order.cells().begin(), order.cells().end(),
                     [&](const auto& entry) {
                       const auto [group, row] = entry.first;
                       return group < contest.settings.numReasonsGroups &&
                              reasonsPlaceOf(contest, entry.second) == ReasonsPlace{group, row};
                     }) &&
         std::all_of(
             contest.reasonsPlace.begin(), contest.reasonsPlace.end(), [&](const auto& entry) {
               const auto& [contestant, place] = entry;
               return !place.isAssigned() || order.cell(place.position, place.group) == contestant;
             });
}

}  // namespace scorvane
